#pragma once

#include <string>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/HostEnvironment.h"
#include "OrvelPlatform/Desktop/HostPicture.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

/// What a schedule asks of an extension. Every request comes to an end, and one whose task is destroyed is forgotten.
/// A timeline has at least one entry, dates that ascend, and a moment for each. Nothing here calls the schedule back.
class WidgetRequests {
public:
    WidgetRequests() = default;
    WidgetRequests(const WidgetRequests&) = delete;
    WidgetRequests& operator=(const WidgetRequests&) = delete;
    virtual ~WidgetRequests() = default;

    virtual Task<Answer<ExtensionTimeline>> timeline(std::string kind, HostEnvironment environment) = 0;
    virtual Task<Answer<HostPicture>> render(std::string kind, ExtensionEntry entry, HostEnvironment environment) = 0;
};

}
