#include "OrvelPlatform/Base/Environment.h"

#include <gtest/gtest.h>
#include <string>

using orvel::Environment;

namespace {

struct ScaleKey {
    using Value = double;
    static Value defaultValue() { return 1; }
};

struct NameKey {
    using Value = std::string;
    static Value defaultValue() { return "none"; }
};

}

TEST(Environments, giveDefaultsUntilSetAndLeaveTheirOriginalsAlone)
{
    const Environment plain;
    const auto named = plain.with<NameKey>("first");
    const auto scaled = named.with<ScaleKey>(2).with<NameKey>("second");
    EXPECT_EQ(plain.get<NameKey>(), "none");
    EXPECT_EQ(named.get<NameKey>(), "first");
    EXPECT_EQ(named.get<ScaleKey>(), 1);
    EXPECT_EQ(scaled.get<NameKey>(), "second");
    EXPECT_EQ(scaled.get<ScaleKey>(), 2);
}
