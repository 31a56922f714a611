#include "app/AppResources.h"

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <optional>
#include <ostream>

namespace {

using simulated::desktop;
using simulated::pngFile;
using testing::ElementsAre;
using testing::IsEmpty;

/// The program without any image, and places to put some.
class AppResourcesTest : public testing::Test {
  protected:
    static std::filesystem::path mainBundle() { return desktop().bundle.path; }
    static std::filesystem::path resourceBundle() {
        return mainBundle() / "Quellbar_Quellbar.bundle";
    }
    static void add(const std::filesystem::path& file, int size = 18) {
        desktop().files.addFile(file, pngFile(size, size));
    }

    /// The file that the image was found in; empty when there is none.
    static std::filesystem::path fileOf(std::string_view name) {
        const auto image = AppResources::image(name);
        return image == nullptr ? std::filesystem::path() : simulated::stateOf(*image).file;
    }

    /// Where the build puts it.
    static std::filesystem::path builtBundle() { return QUELLBAR_BUILT_RESOURCE_BUNDLE; }
};

using AppResourcesDeathTest = AppResourcesTest;

TEST_F(AppResourcesTest, AnImageOfTheMainBundleIsFoundWithoutOpeningAnyOther) {
    add(mainBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), mainBundle() / "icon.png");
    EXPECT_THAT(desktop().calls.all(), ElementsAre("imageForResource(icon)"));
}

TEST_F(AppResourcesTest, AnImageOfTheMainBundleWins) {
    add(mainBundle() / "icon.png");
    add(resourceBundle() / "Resources" / "icon.png");
    EXPECT_EQ(fileOf("icon"), mainBundle() / "icon.png");
}

TEST_F(AppResourcesTest, AnImageOfTheResourceBundleIsFoundInItsFolder) {
    add(resourceBundle() / "Resources" / "icon.png");
    EXPECT_EQ(fileOf("icon"), resourceBundle() / "Resources" / "icon.png");
}

TEST_F(AppResourcesTest, AnImageOfTheResourceBundleIsFoundAtItsTop) {
    add(resourceBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), resourceBundle() / "icon.png");
}

TEST_F(AppResourcesTest, OfTwoInTheResourceBundleTheOneInTheFolderIsTaken) {
    add(resourceBundle() / "Resources" / "icon.png");
    add(resourceBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), resourceBundle() / "Resources" / "icon.png");
}

TEST_F(AppResourcesTest, ANameThatExistsNowhereHasNoImageAndNoError) {
    desktop().files.addFolder(resourceBundle());
    EXPECT_EQ(AppResources::image("icon"), nullptr);
    EXPECT_THAT(desktop().log.lines, IsEmpty());
    EXPECT_THAT(desktop().log.messages, IsEmpty());
}

TEST_F(AppResourcesTest, AnEmptyNameHasNoImage) {
    desktop().files.addFolder(resourceBundle());
    EXPECT_EQ(AppResources::image(""), nullptr);
}

TEST_F(AppResourcesTest, EachRequestSearchesAgain) {
    desktop().files.addFolder(resourceBundle());
    EXPECT_EQ(AppResources::image("icon"), nullptr);
    add(resourceBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), resourceBundle() / "icon.png");
    add(mainBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), mainBundle() / "icon.png");
}

TEST_F(AppResourcesTest, TheResourceBundleIsLookedForOnce) {
    desktop().files.addFolder(resourceBundle());
    EXPECT_EQ(AppResources::image("icon"), nullptr);
    EXPECT_EQ(AppResources::image("icon"), nullptr);
    EXPECT_THAT(desktop().calls.of({"Bundle::withPath"}),
                ElementsAre("Bundle::withPath(" + resourceBundle().string() + ")"));
    EXPECT_EQ(&AppResources::module(), &AppResources::module());
}

TEST_F(AppResourcesTest, TheResourceBundleIsTakenFromBesideTheProgramFirst) {
    add(resourceBundle() / "icon.png");
    add(builtBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), resourceBundle() / "icon.png");
}

TEST_F(AppResourcesTest, TheResourceBundleIsTakenFromWhereItWasBuiltNext) {
    add(builtBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), builtBundle() / "icon.png");
}

TEST_F(AppResourcesTest, AFileInPlaceOfTheResourceBundleIsPassedOver) {
    desktop().files.addFile(resourceBundle(), "");
    add(builtBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), builtBundle() / "icon.png");
}

TEST_F(AppResourcesDeathTest, WithoutAResourceBundleInEitherPlaceIsFatal) {
    EXPECT_DEATH(AppResources::image("icon"), "Fatal error: could not load resource bundle: from " +
                                                  resourceBundle().string() + " or " +
                                                  builtBundle().string() + "\n");
}

TEST_F(AppResourcesTest, WithoutAResourceBundleIsFatalOnlyWhenThatIsNeeded) {
    add(mainBundle() / "icon.png");
    for (int requests = 0; requests < 3; ++requests) {
        EXPECT_NE(AppResources::image("icon"), nullptr);
    }
    EXPECT_THAT(desktop().calls.of({"Bundle::withPath"}), IsEmpty());
}

TEST_F(AppResourcesTest, ImagesOfEverySizeAreFound) {
    add(mainBundle() / "dot.png", 1);
    add(mainBundle() / "wall.png", 4096);
    EXPECT_EQ(AppResources::image("dot")->size(), (platform::Size{1, 1}));
    EXPECT_EQ(AppResources::image("wall")->size(), (platform::Size{4096, 4096}));
}

/// What stands in the place of an image's file; no content is that of a folder.
struct Stand {
    std::string name;
    std::optional<std::string> content;
};

void PrintTo(const Stand& stand, std::ostream* stream) {
    *stream << stand.name;
}

class BrokenImage : public AppResourcesTest, public testing::WithParamInterface<Stand> {
  protected:
    static void addBroken(const std::filesystem::path& file) {
        if (const auto& content = GetParam().content) {
            desktop().files.addFile(file, *content);
        } else {
            desktop().files.addFolder(file);
        }
    }
};

TEST_P(BrokenImage, InTheMainBundleLeavesTheSearchToTheResourceBundle) {
    addBroken(mainBundle() / "icon.png");
    add(resourceBundle() / "Resources" / "icon.png");
    EXPECT_EQ(fileOf("icon"), resourceBundle() / "Resources" / "icon.png");
}

TEST_P(BrokenImage, InTheFolderOfTheResourceBundleLeavesTheSearchToItsTop) {
    addBroken(resourceBundle() / "Resources" / "icon.png");
    add(resourceBundle() / "icon.png");
    EXPECT_EQ(fileOf("icon"), resourceBundle() / "icon.png");
}

TEST_P(BrokenImage, AtTheTopOfTheResourceBundleIsNoImage) {
    addBroken(resourceBundle() / "icon.png");
    EXPECT_EQ(AppResources::image("icon"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(ThatIs, BrokenImage,
                         testing::Values(Stand{"AFolder", std::nullopt}, Stand{"Empty", ""},
                                         Stand{"Text", "not an image"},
                                         Stand{"CutOffEarly", pngFile(18, 18).substr(0, 40)},
                                         Stand{
                                             "CutOffBeforeItsLastByte",
                                             pngFile(18, 18).substr(0, pngFile(18, 18).size() - 1)},
                                         Stand{"OfNoSize", pngFile(0, 0)}),
                         [](const auto& broken) { return broken.param.name; });

} // namespace
