#pragma once

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// The product's name as its sign: in the serif face, on one line, and the same in every language.
struct Wordmark {
    View body(const Environment& environment) const;
};

}
