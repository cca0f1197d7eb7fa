#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvel {

/// How an intent may run.
enum class IntentMode {
    background,
    foregroundImmediate, // the application is brought forward before the intent runs
    foregroundDynamic, // the application is brought forward when the intent asks for it
};

/// A value that an intent takes, and how a desktop lets people set it. There are no default values and no ranges.
struct IntentParameter {
    enum class Type { text, integer, truth };
    enum class Editing { field, stepper, toggle };

    std::string_view name;
    std::string title;
    Type type;
    Editing editing;
    bool isOptional;

    bool operator==(const IntentParameter&) const = default;
};

/// What a desktop may know of an intent without running it.
struct IntentMetadata {
    std::string_view name; // on the bus
    std::string title;
    std::vector<IntentParameter> parameters;
    std::vector<IntentMode> supportedModes;

    bool operator==(const IntentMetadata&) const = default;
};

}
