#include "platform/linux/statusitem/NotifierPictures.h"

#include "platform/linux/views/ImagePeer.h"

#include <gmock/gmock.h>

namespace {

using namespace platform;
using linux_host::notifierPictures;

// Half of what can be seen through: what is multiplied by its opacity differs from what is not.
constexpr QColor faintOrange(0xFF, 0x80, 0x40, 0x80);

std::shared_ptr<Image> picture(bool isTemplate) {
    QImage image(18, 18, QImage::Format_ARGB32);
    image.fill(faintOrange);
    return std::make_shared<Image>(std::make_unique<Image::Peer>(
        Image::Peer{.picture = image, .detailed = {}, .isTemplate = isTemplate}));
}

std::vector<int> middleOf(const QImage& picture) {
    const uchar* const bytes =
        picture.constScanLine(picture.height() / 2) + 4 * (picture.width() / 2);
    return {bytes[0], bytes[1], bytes[2], bytes[3]};
}

TEST(NotifierPictures, HaveBytesForOpacityRedGreenAndBlue) {
    for (const QImage& each : notifierPictures({.image = picture(false)}, QPalette())) {
        EXPECT_THAT(middleOf(each),
                    testing::ElementsAre(0x80, 0xFF, testing::Ge(0x7F),
                                         testing::AllOf(testing::Ge(0x3F), testing::Le(0x41))));
        EXPECT_EQ(each.sizeInBytes(), 4 * each.width() * each.height());
    }
}

TEST(NotifierPictures, OfATemplateAreInTheColorOfTheText) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, QColor(0x10, 0x20, 0x30));
    for (const QImage& each : notifierPictures({.image = picture(true)}, palette)) {
        const auto middle = middleOf(each);
        EXPECT_EQ(middle.at(0), 0x80);
        EXPECT_NEAR(middle.at(3), 0x30, 2);
    }
}

TEST(NotifierPictures, AreSeenThroughWhereTheImageIsNot) {
    const QImage largest = notifierPictures({.image = picture(false)}, QPalette()).back();
    EXPECT_EQ(*largest.constBits(), 0);
}

} // namespace
