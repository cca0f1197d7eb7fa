#include "OrvelPlatform/Base/LoadedLibrary.h"

#include <gmock/gmock.h>

namespace orvel {
namespace {

using testing::HasSubstr;

TEST(LoadedLibrary, FindsASymbolOrSaysWhatIsMissing)
{
    EXPECT_TRUE(loadedSymbol("libm.so.6", "cbrt"));

    const auto noLibrary = loadedSymbol("/nowhere/libnone.so", "cbrt");
    ASSERT_FALSE(noLibrary);
    EXPECT_EQ(noLibrary.error().where, "/nowhere/libnone.so");
    EXPECT_THAT(noLibrary.error().why, HasSubstr("No such file"));

    const auto noSymbol = loadedSymbol("libm.so.6", "thereIsNoSuchFunction");
    ASSERT_FALSE(noSymbol);
    EXPECT_THAT(noSymbol.error().why, HasSubstr("thereIsNoSuchFunction"));
}

}
}
