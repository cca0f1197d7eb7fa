#include "Tools/orvelctl/Table.h"

#include <algorithm>

namespace orvelctl {

namespace {

/// How many characters a text has: each counts as one place of a terminal.
std::size_t width(const std::string& text)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

}

std::string aligned(const Table& table)
{
    std::vector<std::size_t> widths;
    for (const auto& row : table) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], width(row[column]));
    }
    std::string lines;
    for (const auto& row : table) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            lines += row[column];
            if (column + 1 < row.size())
                lines.append(widths[column] - width(row[column]) + 2, ' ');
        }
        lines += '\n';
    }
    return lines;
}

}
