#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Views/Outline.h"

namespace orvel {

/// A line drawing in a square of `side`.
struct Symbol {
    struct Part {
        Path path;
        bool filled; // else stroked
        bool operator==(const Part&) const = default;
    };

    std::string name;
    double side;
    std::vector<Part> parts;
    bool operator==(const Symbol&) const = default;
};

/// The drawings by name.
class SymbolSource {
public:
    virtual ~SymbolSource() = default;

    /// Null for a name that there is no drawing for. Names come from outside and lead to no file.
    virtual std::shared_ptr<const Symbol> find(std::string_view name) const = 0;
};

/// Where icons find their drawings; null: nowhere, and icons are empty.
struct SymbolSourceKey {
    using Value = std::shared_ptr<const SymbolSource>;
    static Value defaultValue() { return nullptr; }
};

}
