#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Views/Symbol.h"

namespace orvel {

/// The symbols of a bundle: a text file with a line for each. A drawing is read when its name is first asked for.
class SymbolTable final : public SymbolSource {
public:
    explicit SymbolTable(std::string text);

    /// Also finds the filled variant's name ("moon.fill"): all drawings here are of lines.
    std::shared_ptr<const Symbol> find(std::string_view name) const override;

private:
    std::string m_text;
    std::map<std::string_view, std::string_view, std::less<>> m_lines; // into the text
    mutable std::map<std::string, std::shared_ptr<const Symbol>, std::less<>> m_read;
};

/// A path from its text: M, L and C with absolute numbers, and Z. Absent for anything else.
std::optional<Path> parsedPath(std::string_view text);

}
