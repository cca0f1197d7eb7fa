#include "OrvelPlatform/Drawing/SymbolTable.h"

#include <charconv>
#include <optional>
#include <utility>

namespace orvel {

namespace {

constexpr double side = 24;

/// Cuts the text up to a separator off its front.
std::string_view cut(std::string_view& text, char separator)
{
    const auto at = text.find(separator);
    const auto part = text.substr(0, at);
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
    return part;
}

std::optional<double> number(std::string_view& text)
{
    while (text.starts_with(' '))
        text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

bool readPoints(std::string_view& text, PathStep& step, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const auto x = number(text);
        const auto y = x ? number(text) : std::nullopt;
        if (!y)
            return false;
        step.points.at(i) = { *x, *y };
    }
    return true;
}

struct Command {
    PathStep::Kind kind;
    std::size_t points;
};

std::optional<Command> command(char letter)
{
    switch (letter) {
    case 'M':
        return Command { PathStep::Kind::move, 1 };
    case 'L':
        return Command { PathStep::Kind::line, 1 };
    case 'C':
        return Command { PathStep::Kind::curve, 3 };
    case 'Z':
        return Command { PathStep::Kind::close, 0 };
    default:
        return std::nullopt;
    }
}

std::shared_ptr<const Symbol> symbol(std::string_view name, std::string_view line)
{
    Symbol symbol { std::string(name), side, {} };
    while (!line.empty()) {
        const auto part = cut(line, '\t');
        auto path = part.empty() ? std::nullopt : parsedPath(part.substr(1));
        if (!path)
            return nullptr;
        symbol.parts.push_back({ *std::move(path), part.front() == 'F' });
    }
    return std::make_shared<const Symbol>(std::move(symbol));
}

}

std::optional<Path> parsedPath(std::string_view text)
{
    Path path;
    while (!text.empty()) {
        const auto next = command(text.front());
        text.remove_prefix(1);
        if (!next)
            return std::nullopt;
        path.push_back({ next->kind });
        if (!readPoints(text, path.back(), next->points))
            return std::nullopt;
    }
    return path;
}

SymbolTable::SymbolTable(std::string text) : m_text(std::move(text))
{
    std::string_view rest(m_text);
    while (!rest.empty()) {
        auto line = cut(rest, '\n');
        const auto name = cut(line, '\t');
        m_lines.emplace(name, line);
    }
}

std::shared_ptr<const Symbol> SymbolTable::find(std::string_view name) const
{
    constexpr std::string_view filled = ".fill";
    auto line = m_lines.find(name);
    if (line == m_lines.end() && name.ends_with(filled))
        line = m_lines.find(name.substr(0, name.size() - filled.size()));
    if (line == m_lines.end())
        return nullptr;
    auto read = m_read.find(line->first);
    if (read == m_read.end())
        read = m_read.emplace(line->first, symbol(line->first, line->second)).first;
    return read->second;
}

}
