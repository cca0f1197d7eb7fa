#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"
#include "OrvelWidgets/FocusNowControlIntent.h"
#include "OrvelWidgets/OpenBreatheIntent.h"

namespace orvel {

/// An intent that a host asks for, with its parameters in place.
using IntentCall = std::variant<OpenBreatheIntent, FocusNowControlIntent>;

/// The intent of a name. Parameters that it does not take are passed over; one of a wrong type and a required one that
/// is missing are bad arguments, whose sentence names it.
Answer<IntentCall> intentCall(std::string_view name, const IntentParameters& parameters);

/// Runs a call, or says why there is none.
Task<Answer<void>> performed(Answer<IntentCall> call, IntentSurroundings in);

}
