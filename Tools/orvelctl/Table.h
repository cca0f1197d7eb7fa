#pragma once

#include <string>
#include <vector>

namespace orvelctl {

/// Rows of cells, which need not be equally many.
using Table = std::vector<std::vector<std::string>>;

/// The rows as lines with aligned columns, two spaces apart.
std::string aligned(const Table& table);

}
