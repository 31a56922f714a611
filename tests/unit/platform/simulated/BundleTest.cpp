#include "platform/Bundle.h"

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::Bundle;
using simulated::desktop;
using simulated::pngFile;

TEST(SimulatedBundle, IsOneWithAReverseDomainName) {
    EXPECT_EQ(&Bundle::main(), &Bundle::main());
    EXPECT_EQ(Bundle::main().bundleIdentifier(), "io.github.quellbar.Quellbar");
}

TEST(SimulatedBundle, MayHaveNoName) {
    desktop().bundle.identifier.clear();
    EXPECT_EQ(Bundle::main().bundleIdentifier(), "");
}

TEST(SimulatedBundle, IsWhereItIsInstalled) {
    EXPECT_EQ(Bundle::main().bundlePath(), "/Applications/Quellbar");
    desktop().bundle.path = "/opt/quellbar";
    EXPECT_EQ(Bundle::main().bundlePath(), "/opt/quellbar");
}

TEST(SimulatedBundle, FindsItsImagesByName) {
    desktop().files.addFile("/Applications/Quellbar/icon.png", pngFile(18, 18));
    EXPECT_NE(Bundle::main().imageForResource("icon"), nullptr);
    EXPECT_EQ(Bundle::main().imageForResource("ico"), nullptr);
}

TEST(SimulatedBundle, IsAnyFolderAndNoFile) {
    desktop().files.addFile("/images.bundle/file", "");
    const auto bundle = Bundle::withPath("/images.bundle");
    ASSERT_NE(bundle, nullptr);
    EXPECT_EQ(bundle->bundlePath(), "/images.bundle");
    EXPECT_EQ(bundle->bundleIdentifier(), "");
    EXPECT_EQ(Bundle::withPath("/images.bundle/file"), nullptr);
    EXPECT_EQ(Bundle::withPath("/none.bundle"), nullptr);
}

TEST(SimulatedBundle, FindsFilesInItselfOrInAFolderOfIts) {
    desktop().files.addFile("/images.bundle/a.png", "");
    desktop().files.addFile("/images.bundle/Resources/b.png", "");
    const auto bundle = Bundle::withPath("/images.bundle");
    EXPECT_EQ(bundle->fileForResource("a", "png"), "/images.bundle/a.png");
    EXPECT_EQ(bundle->fileForResource("b", "png", "Resources"), "/images.bundle/Resources/b.png");
    EXPECT_EQ(bundle->fileForResource("a", "png", "Resources"), std::nullopt);
    EXPECT_EQ(bundle->fileForResource("b", "png"), std::nullopt);
    EXPECT_EQ(bundle->fileForResource("a", "svg"), std::nullopt);
}

} // namespace
