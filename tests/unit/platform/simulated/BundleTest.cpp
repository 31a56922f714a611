#include "platform/Bundle.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

TEST(SimulatedBundle, IsOneWithAReverseDomainName) {
    EXPECT_EQ(&platform::Bundle::main(), &platform::Bundle::main());
    EXPECT_EQ(platform::Bundle::main().bundleIdentifier(), "io.github.quellbar.Quellbar");
}

TEST(SimulatedBundle, MayHaveNoName) {
    simulated::desktop().bundle.identifier.clear();
    EXPECT_EQ(platform::Bundle::main().bundleIdentifier(), "");
}

} // namespace
