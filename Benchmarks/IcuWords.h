#pragma once

#include <string>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelWidgets/OrvelEntry.h"
#include "OrvelWidgetsUI/WidgetContent.h"

namespace orvelbench {

/// The words of a widget that come from ICU, and only those: clock times and the week's letters.
struct LocalWords {
    std::vector<std::string> times;
    std::vector<std::string> weekdays;
};

/// The words of an entry in British English, with ICU's formatters made for each call as a first version would.
LocalWords wordsWithIcu(const orvel::OrvelEntry& entry, const orvel::Calendar& calendar);

/// Whether all of them stand in what we made of the same entry.
bool standIn(const LocalWords& words, const orvel::WidgetContent& content);

}
