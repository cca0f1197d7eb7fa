#include "OrvelDesign/DesignBundle.h"

#include "OrvelPlatform/Base/ResourceBundle.h"

namespace orvel {

namespace {

/// Lies in this module, wherever that was linked into.
constexpr char marker = 0;

}

const Bundle& designBundle()
{
    static const Bundle bundle = resourceBundle("OrvelDesign_OrvelDesign", &marker);
    return bundle;
}

}
