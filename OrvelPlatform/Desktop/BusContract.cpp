#include "OrvelPlatform/Desktop/BusContract.h"

#include <algorithm>
#include <array>
#include <gio/gio.h>
#include <utility>

#include "OrvelPlatform/Base/Precondition.h"
#include "OrvelPlatform/Base/UTF8.h"
#include "OrvelPlatform/Desktop/GlibHandles.h"

namespace orvel {

namespace {

using Kind = RequestFault::Kind;

constexpr std::array<std::pair<Kind, std::string_view>, 6> errors { {
    { Kind::unknownKind, "app.orvel.Error.UnknownKind" },
    { Kind::unknownIntent, "app.orvel.Error.UnknownIntent" },
    { Kind::badEntry, "app.orvel.Error.BadEntry" },
    { Kind::badArgument, "app.orvel.Error.BadArgument" },
    { Kind::cannotDraw, "app.orvel.Error.CannotDraw" },
    { Kind::busy, "app.orvel.Error.Busy" },
} };

NodeInfoHandle readContract()
{
    ErrorHandle error;
    NodeInfoHandle node(g_dbus_node_info_new_for_xml(busContract, ErrorOut { error }));
    precondition(node != nullptr, error ? error->message : "the contract cannot be read");
    return node;
}

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}

_GDBusInterfaceInfo* contractInterface(const char* name)
{
    static const NodeInfoHandle node = readContract();
    auto* found = g_dbus_node_info_lookup_interface(node.get(), name);
    precondition(found != nullptr, "an interface is not in the contract");
    return found;
}

std::optional<std::string_view> errorName(Kind kind)
{
    const auto* found = std::ranges::find(errors, kind, &std::pair<Kind, std::string_view>::first);
    return found == errors.end() ? std::nullopt : std::optional(found->second);
}

std::optional<Kind> kindOfError(std::string_view errorName)
{
    const auto* found = std::ranges::find(errors, errorName, &std::pair<Kind, std::string_view>::second);
    return found == errors.end() ? std::nullopt : std::optional(found->first);
}

std::string boundedText(std::string_view text)
{
    auto end = std::min(text.size(), BusBound::text);
    while (end < text.size() && end > 0 && continuesCharacter(text[end]))
        --end;
    text = text.substr(0, end);
    if (isUTF8(text) && !text.contains('\0'))
        return std::string(text);
    const GlibText valid(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
    return boundedText(valid.get()); // replacement characters are longer than what they replace
}

RequestFault requestFault(Kind kind, std::string_view sentence)
{
    return { .kind = kind, .sentence = boundedText(sentence) };
}

}
