#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Views/TextSystem.h"

struct _PangoFontDescription;

namespace orvel {

/// Only the description's memory is its own; the font's name is fixed.
struct FontDescriptionRelease {
    void operator()(_PangoFontDescription* description) const;
};
using FontDescription = std::unique_ptr<_PangoFontDescription, FontDescriptionRelease>;
FontDescription fontDescription(const TextStyle& style);

/// The library's unit of length, as a whole number.
int pangoUnits(double points);

/// A block's runs as one paragraph of sound UTF-8, ready to be laid out, and what is done to its words where they
/// cannot be shown as they are.
class PangoParagraph {
public:
    explicit PangoParagraph(TextBlock block);

    Handle<_PangoLayout> layout(double width, _PangoContext* context) const;

    /// The same in one line, however long it is.
    Handle<_PangoLayout> uncut(_PangoContext* context) const;

    /// Where runs end, in bytes of a layout's text.
    std::vector<std::size_t> runEnds() const;

    /// The paragraph with a mark for each stretch of letters that a layout of all of it has no typeface for.
    PangoParagraph withoutMissingLetters(_PangoLayout* uncut, std::string_view mark) const;

    /// The paragraph ended better than its layout ends it, ellipsis included: letters that join are not torn apart, and
    /// nothing that only separates stands before the ellipsis. Absent where that is so already.
    std::optional<PangoParagraph> cutWell(_PangoLayout* layout) const;

private:
    std::string text() const;
    PangoParagraph replacing(std::size_t begin, std::size_t end, std::string_view with) const;

    TextBlock m_block;
};

}
