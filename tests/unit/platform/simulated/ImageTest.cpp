#include "platform/Image.h"

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::Image;
using platform::Size;
using simulated::desktop;
using simulated::pngFile;
using simulated::sizeOfPng;

TEST(SimulatedImage, IsLoadedFromItsFileWithAPointForEachPixel) {
    desktop().files.addFile("/icon.png", pngFile(18, 20));
    const auto image = Image::withContentsOfFile("/icon.png");
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->size(), (Size{18, 20}));
    EXPECT_EQ(simulated::stateOf(*image).file, "/icon.png");
}

TEST(SimulatedImage, IsNoneWithoutAFileOrWithAFolderInItsPlace) {
    desktop().files.addFolder("/folder.png");
    EXPECT_EQ(Image::withContentsOfFile("/icon.png"), nullptr);
    EXPECT_EQ(Image::withContentsOfFile("/folder.png"), nullptr);
}

TEST(SimulatedImage, IsATemplateOnlyWhenItIsMadeOne) {
    desktop().files.addFile("/icon.png", pngFile(18, 18));
    const auto image = Image::withContentsOfFile("/icon.png");
    EXPECT_FALSE(image->isTemplate());
    image->setTemplate(true);
    EXPECT_TRUE(image->isTemplate());
    image->setTemplate(false);
    EXPECT_FALSE(image->isTemplate());
}

TEST(SimulatedImage, IsANewOneEachTime) {
    desktop().files.addFile("/icon.png", pngFile(18, 18));
    EXPECT_NE(Image::withContentsOfFile("/icon.png"), Image::withContentsOfFile("/icon.png"));
}

TEST(SimulatedImage, OutlivesItsFile) {
    desktop().files.addFile("/icon.png", pngFile(18, 18));
    const auto image = Image::withContentsOfFile("/icon.png");
    desktop().files.remove("/icon.png");
    EXPECT_EQ(image->size(), (Size{18, 18}));
}

TEST(SimulatedPng, HasTheSizeThatItWasMadeWith) {
    EXPECT_EQ(sizeOfPng(pngFile(1, 1)), (Size{1, 1}));
    EXPECT_EQ(sizeOfPng(pngFile(4096, 3)), (Size{4096, 3}));
}

TEST(SimulatedPng, IsNoneAnywhereShortOfItsEnd) {
    const std::string whole = pngFile(18, 18);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(sizeOfPng(whole.substr(0, length)), std::nullopt) << length;
    }
    EXPECT_NE(sizeOfPng(whole + "more"), std::nullopt);
}

TEST(SimulatedPng, IsNoneWithoutWidthOrHeight) {
    EXPECT_EQ(sizeOfPng(pngFile(0, 18)), std::nullopt);
    EXPECT_EQ(sizeOfPng(pngFile(18, 0)), std::nullopt);
}

TEST(SimulatedPng, IsNoneWithoutAPicture) {
    std::string content = pngFile(18, 18);
    content.erase(content.find("IDAT") - 4, 12);
    EXPECT_EQ(sizeOfPng(content), std::nullopt);
}

TEST(SimulatedPng, IsNoneWithAnotherSignatureOrAPartThatPretendsToBeLong) {
    std::string content = pngFile(18, 18);
    content.at(1) = 'J';
    EXPECT_EQ(sizeOfPng(content), std::nullopt);
    content = pngFile(18, 18);
    content.at(8) = '\xFF';
    EXPECT_EQ(sizeOfPng(content), std::nullopt);
}

} // namespace
