#pragma once

#include <cstddef>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelShared/WidgetMoment.h"

namespace orvel {

/// A moment as a host keeps it, who cannot look inside: a version byte, the CRC-32 of all that follows it (its highest
/// byte first), and the moment as JSON. The date is not among it: it stands in the entry, and moments that differ in
/// nothing else are the same bytes.
///
/// Long texts and lists are cut, so that a moment stays small whatever an application wrote. A fault for text that is
/// not UTF-8 and for dates outside the years 1 to 9999.
[[nodiscard]] std::expected<std::string, Fault> opaqueMoment(const WidgetMoment& moment);

/// The moment of an entry. Absent for bytes of another version and for damaged ones.
std::optional<WidgetMoment> momentFromOpaque(std::string_view bytes, Date date);

/// In a moment, the longest text in bytes, and the most that the texts of one list may have together.
inline constexpr std::size_t longestMomentText = 4096;
inline constexpr std::size_t longestMomentStyle = 1024; // of the breath: escaped, it still fits into a link
inline constexpr std::size_t longestMomentList = std::size_t { 16 } * longestMomentText;

/// `moment` with its texts cut at the ends of characters, and its lists after whole texts.
WidgetMoment bounded(WidgetMoment moment);

}
