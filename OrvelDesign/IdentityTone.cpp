#include "OrvelDesign/IdentityTone.h"

#include "OrvelDesign/TokensColor.h"

namespace orvel {

OrvelColor color(IdentityTone tone)
{
    switch (tone) {
    case IdentityTone::lavender:
        return { Tokens::Color::blockLavender, "block-lavender" };
    case IdentityTone::periwinkle:
        return { Tokens::Color::blockPeriwinkle, "block-periwinkle" };
    case IdentityTone::sky:
        return { Tokens::Color::blockSky, "block-sky" };
    case IdentityTone::teal:
        return { Tokens::Color::blockTeal, "block-teal" };
    case IdentityTone::sage:
        return { Tokens::Color::blockSage, "block-sage" };
    case IdentityTone::sand:
        return { Tokens::Color::blockSand, "block-sand" };
    case IdentityTone::rose:
        return { Tokens::Color::blockRose, "block-rose" };
    case IdentityTone::mauve:
        return { Tokens::Color::blockMauve, "block-mauve" };
    }
    return { Tokens::Color::blockLavender, "block-lavender" };
}

IdentityTone toneOrLavender(std::string_view name)
{
    return fromRawValue<IdentityTone>(name).value_or(IdentityTone::lavender);
}

}
