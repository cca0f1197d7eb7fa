#pragma once

namespace orvel {

/// One callable made of several, for `std::visit`: name every case, so that a new one shows each place to think about.
template <typename... Cases>
struct Match : Cases... {
    using Cases::operator()...;
};

}
