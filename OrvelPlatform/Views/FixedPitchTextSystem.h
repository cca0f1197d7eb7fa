#pragma once

#include "OrvelPlatform/Views/TextSystem.h"

namespace orvel {

/// Letters of one width, for layouts that are looked at as text: every character is half its style's size wide (and the
/// tracking more), a line breaks at spaces, and a baseline lies 0.8 of the size below the letters' top.
class FixedPitchTextSystem final : public TextSystem {
public:
    std::shared_ptr<const ShapedText> shape(const TextBlock& block, double width) override;
};

}
