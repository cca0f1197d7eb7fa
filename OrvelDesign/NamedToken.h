#pragma once

#include <string_view>

namespace orvel {

/// A token and its name, for everything that goes through all of them: exports, the gallery.
template <typename Value>
struct NamedToken {
    std::string_view name;
    Value value;
};

}

/// An entry of a namespace's `all`: a token under its own name, so that the two cannot part.
#define ORVEL_TOKEN(token)                                                                                             \
    ::orvel::NamedToken                                                                                                \
    {                                                                                                                  \
#token, token                                                                                                  \
    }
