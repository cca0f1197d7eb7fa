#include "Tools/orvelctl/Table.h"

#include <algorithm>

#include "OrvelPlatform/Base/TextColumns.h"

namespace orvelctl {

std::string aligned(const Table& table)
{
    std::vector<std::size_t> widths;
    for (const auto& row : table) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], orvel::columns(row[column]));
    }
    std::string lines;
    for (const auto& row : table) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            lines += row[column];
            if (column + 1 < row.size())
                lines.append(widths[column] - orvel::columns(row[column]) + 2, ' ');
        }
        lines += '\n';
    }
    return lines;
}

}
