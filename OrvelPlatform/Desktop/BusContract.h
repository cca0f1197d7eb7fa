#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "OrvelPlatform/Desktop/WidgetExtension.h"

struct _GDBusInterfaceInfo;

/// What the extension, the hosts and the application agreed upon: names, bounds and the text of BusContract.xml.
namespace orvel {

/// The whole of BusContract.xml.
extern const char* const busContract;

namespace BusName {
inline constexpr const char* extension = "app.orvel.Orvel.WidgetExtension";
inline constexpr const char* application = "app.orvel.Orvel";
}

namespace BusPath {
inline constexpr const char* extension = "/app/orvel/Orvel/WidgetExtension";
inline constexpr const char* application = "/app/orvel/Orvel";
inline constexpr const char* widgetCenter = "/app/orvel/WidgetCenter";
}

namespace BusInterface {
inline constexpr const char* widgetExtension = "app.orvel.WidgetExtension1";
inline constexpr const char* intents = "app.orvel.Intents1";
inline constexpr const char* widgetCenter = "app.orvel.WidgetCenter1";
}

namespace BusBound {
inline constexpr std::size_t reply = std::size_t { 4 } << 20; // bytes; a reply is smaller
inline constexpr std::size_t text = 4096; // bytes; a longer one is cut
}

/// The version of the interface that we serve.
inline constexpr unsigned contractVersion = 1;

/// An interface as the contract has it; it lives as long as the program.
_GDBusInterfaceInfo* contractInterface(const char* name);

/// The error's name on the bus, such as "app.orvel.Error.BadEntry"; absent for what arises only at a host.
std::optional<std::string_view> errorName(RequestFault::Kind kind);
std::optional<RequestFault::Kind> kindOfError(std::string_view errorName);

/// At most `BusBound::text` bytes, cut at the end of a character, and UTF-8 whatever came in.
std::string boundedText(std::string_view text);

/// A fault whose sentence is made of what somebody else sent: bounded, and UTF-8.
RequestFault requestFault(RequestFault::Kind kind, std::string_view sentence);

}
