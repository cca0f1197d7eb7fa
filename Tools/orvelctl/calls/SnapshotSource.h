#pragma once

#include <expected>
#include <string>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvelctl {

/// A snapshot and where it came from, for a person.
struct FoundSnapshot {
    orvel::WidgetSnapshot snapshot;
    std::string origin;
};

/// Reads a file, standard input ("-"), or the container's file ("").
std::expected<FoundSnapshot, orvel::Fault> readSnapshot(const std::string& file);

}
