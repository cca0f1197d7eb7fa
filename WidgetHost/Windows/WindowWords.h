#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>

namespace orvel {

/// The words of a widget's menu.
struct WindowWords {
    std::string size; // over the families
    std::map<std::string, std::string, std::less<>> families; // a family that has no words is called by its name
    std::string look;
    std::array<std::string, 5> looks; // in the order of ChosenLook
    std::string addWidgets;
    std::string settings;
    std::string remove;
};

/// The words in a language, or in a list of languages as LANGUAGE has them.
using WindowWordsFor = std::function<WindowWords(const std::string& language)>;

}
