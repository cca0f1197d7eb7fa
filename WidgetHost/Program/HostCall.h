#pragma once

#include <expected>
#include <string>
#include <variant>

#include "WidgetHost/State/HostState.h"

namespace orvel {

/// What a call of the program asks for.
struct HostCall {
    struct Show {
        bool isInBackground; // never the gallery
    };
    struct ShowGallery { };
    struct ShowControls { };
    struct List { };
    struct Add {
        std::string kind;
        std::string family;
        ChosenLook look;
    };
    struct Quit { };

    using Task = std::variant<Show, ShowGallery, ShowControls, List, Add, Quit>;
    Task task;
};

/// A call that is over once its text is written: help and the version to standard output, or why it is wrong.
struct CallEnd {
    std::string text;
    bool isWrong;
};

/// Understands the arguments of main.
std::expected<HostCall, CallEnd> hostCall(int argc, const char* const* argv);

}
