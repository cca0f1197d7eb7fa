#include "OrvelWidgets/ControlIcon.h"

#include <algorithm>

#include "OrvelDesign/DesignBundle.h"
#include "OrvelPlatform/Base/File.h"

namespace orvel {

namespace {

constexpr std::size_t largestSymbolFile = std::size_t { 1 } << 20;

constexpr std::string_view opening =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24" viewBox="0 0 24 24" fill="none" )"
    R"(stroke="currentColor" stroke-width="2" stroke-linecap="round" stroke-linejoin="round">)";

/// The line of a symbol: its name, then its parts, with tabs between. A part is a letter (F for one that is filled) and
/// a path.
std::optional<std::string_view> line(std::string_view symbols, std::string_view name)
{
    while (!symbols.empty()) {
        const auto end = std::min(symbols.find('\n'), symbols.size());
        const auto line = symbols.substr(0, end);
        if (line.starts_with(name) && line.substr(name.size()).starts_with('\t'))
            return line.substr(name.size() + 1);
        symbols.remove_prefix(std::min(end + 1, symbols.size()));
    }
    return std::nullopt;
}

/// The file of all symbols, read once: controls are asked for again and again.
const std::string& symbolFile()
{
    static const auto text =
        readFile(designBundle().resources() / "Symbols.txt", largestSymbolFile).value_or(std::string());
    return text;
}

std::string path(std::string_view part)
{
    const std::string_view fill = part.starts_with('F') ? R"( fill="currentColor")" : "";
    return std::string("<path").append(fill).append(R"( d=")").append(part.substr(1)).append(R"("/>)");
}

}

std::optional<std::string> symbolIcon(std::string_view name)
{
    auto parts = line(symbolFile(), name);
    if (!parts || parts->empty())
        return std::nullopt;
    std::string svg(opening);
    while (!parts->empty()) {
        const auto end = std::min(parts->find('\t'), parts->size());
        svg += path(parts->substr(0, end));
        parts->remove_prefix(std::min(end + 1, parts->size()));
    }
    return svg += "</svg>";
}

}
