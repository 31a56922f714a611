#include "platform/linux/statusitem/StatusButtonFace.h"

#include "platform/linux/views/ImagePeer.h"

#include <QApplication>
#include <QPainter>
#include <array>
#include <gmock/gmock.h>

namespace {

using namespace platform;
using linux_host::StatusButtonContent;
using linux_host::StatusButtonFace;
using Form = StatusButtonFace::Form;

constexpr QRgb redOnLight = 0xFFFF3B30;
constexpr QRgb redOnDark = 0xFFFF453A;

QPalette paletteOf(const QColor& text, const QColor& ground) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Window, ground);
    return palette;
}

QImage filled(int side, const QColor& color) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/// A picture of one colour, and of another one where it is drawn from its larger variant.
std::shared_ptr<Image> picture(bool isTemplate) {
    return std::make_shared<Image>(
        std::make_unique<Image::Peer>(Image::Peer{.picture = filled(18, Qt::blue),
                                                  .detailed = filled(36, Qt::green),
                                                  .isTemplate = isTemplate}));
}

AttributedString countdown(std::string time) {
    return {.string = " " + std::move(time),
            .foregroundColor = Color::systemRed,
            .font = Font::menuBar(0),
            .baselineOffset = 0};
}

class StatusButtonFaceTest : public testing::Test {
  protected:
    StatusButtonFaceTest() {
        static auto name = std::to_array("test");
        static std::array<char*, 2> arguments{name.data(), nullptr};
        static int count = 1;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static const auto* const application = new QApplication(count, arguments.data());
        static_cast<void>(application);
    }

    static StatusButtonFace idle(double scale = 1) { return {{.image = picture(true)}, scale}; }
    static StatusButtonFace counting(const std::string& time, double scale = 1) {
        return {{.image = picture(false), .title = countdown(time)}, scale};
    }

    static QImage paint(const StatusButtonFace& face, QSize size, Form form,
                        const QPalette& palette = paletteOf(Qt::black, Qt::white)) {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(palette.color(QPalette::Window));
        QPainter painter(&image);
        face.paint(painter, size, form, palette);
        return image;
    }

    static int count(const QImage& image, QRgb color) {
        int number = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                number += image.pixel(x, y) == color ? 1 : 0;
            }
        }
        return number;
    }

    /// The smallest rectangle with everything that is not of the ground's colour.
    /// Thin strokes have no pixel of their full colour.
    static int countReddish(const QImage& image) {
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                found += qRed(pixel) > qGreen(pixel) + 40 ? 1 : 0;
            }
        }
        return found;
    }

    static QRect inked(const QImage& image, QRgb ground = 0xFFFFFFFF) {
        QRect rect;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                rect |= image.pixel(x, y) == ground ? QRect() : QRect(x, y, 1, 1);
            }
        }
        return rect;
    }
};

TEST_F(StatusButtonFaceTest, WithoutATitleIsSquare) {
    EXPECT_EQ(idle().fullWidth(22), 22);
    EXPECT_EQ(idle().fullWidth(24), 24);
    EXPECT_EQ(idle(2).fullWidth(44), 44);
}

TEST_F(StatusButtonFaceTest, KeepsItsWidthWhileTheCountdownKeepsItsShape) {
    const int width = counting("1:11:11").fullWidth(22);
    EXPECT_EQ(counting("2:00:48").fullWidth(22), width);
    EXPECT_EQ(counting("8:38:59").fullWidth(22), width);
    EXPECT_LT(counting("59:59").fullWidth(22), width);
}

TEST_F(StatusButtonFaceTest, IsWideEnoughForEveryCountdownOfAShape) {
    for (const char* const time : {"1:11:11", "0:00:00", "8:48:48", "4:44:44"}) {
        const StatusButtonFace face = counting(time);
        const int width = face.fullWidth(22);
        EXPECT_LT(inked(paint(face, {width, 22}, Form::full)).right(), width) << time;
        const QImage wider = paint(face, {width + 100, 22}, Form::full);
        EXPECT_LE(inked(wider).width(), width) << time;
    }
}

TEST_F(StatusButtonFaceTest, DrawsAnImageOfItsOwnSizePixelByPixel) {
    const QImage image = paint(idle(), {22, 22}, Form::full);
    EXPECT_EQ(inked(image), QRect(2, 2, 18, 18));
    EXPECT_EQ(count(image, 0xFF000000), 18 * 18);
}

TEST_F(StatusButtonFaceTest, DrawsTheLargerVariantAtTwoPixelsAPoint) {
    const QImage image = paint({{.image = picture(false)}, 2}, {44, 44}, Form::full);
    EXPECT_EQ(count(image, 0xFF00FF00), 36 * 36);
    EXPECT_EQ(inked(image), QRect(4, 4, 36, 36));
}

TEST_F(StatusButtonFaceTest, DrawsWithinLowPanels) {
    for (const int height : {12, 16, 20, 24}) {
        const StatusButtonFace face = counting("1:30:00", 2);
        const QImage image = paint(face, {face.fullWidth(height), height}, Form::full);
        EXPECT_GT(inked(image).top(), 0) << height;
        EXPECT_LT(inked(image).bottom(), height - 1) << height;
    }
}

TEST_F(StatusButtonFaceTest, DrawsATemplateInTheColorOfTheTextAround) {
    const QImage image =
        paint(idle(), {22, 22}, Form::full, paletteOf(QColor(Qt::cyan), QColor(Qt::black)));
    EXPECT_EQ(count(image, 0xFF00FFFF), 18 * 18);
}

TEST_F(StatusButtonFaceTest, DrawsOtherImagesInTheirOwnColors) {
    const QImage image = paint({{.image = picture(false)}, 1}, {22, 22}, Form::full);
    EXPECT_EQ(count(image, 0xFF0000FF), 18 * 18);
}

TEST_F(StatusButtonFaceTest, TakesTheRedForLightAndForDark) {
    const StatusButtonFace face = counting("1:30:00");
    const QSize size(face.fullWidth(22), 22);
    EXPECT_GT(count(paint(face, size, Form::full), redOnLight), 0);
    EXPECT_GT(count(paint(face, size, Form::full, paletteOf(Qt::white, Qt::black)), redOnDark), 0);
}

TEST_F(StatusButtonFaceTest, ShowsTheTimeInASquareToo) {
    for (const char* const time : {"1:30:00", "29:59", "0:01", "2376:00:00"}) {
        const QImage image = paint(counting(time), {24, 24}, Form::compact);
        EXPECT_GT(countReddish(image), 0) << time;
        EXPECT_LE(inked(image).width(), 24) << time;
    }
}

TEST_F(StatusButtonFaceTest, ShortensTheTimeToItsTwoLeadingParts) {
    EXPECT_EQ(counting("1:30:00").shortTitle(), QStringLiteral("1:30"));
    EXPECT_EQ(counting("59:59").shortTitle(), QStringLiteral("59:59"));
    EXPECT_EQ(counting("2376:00:00").shortTitle(), QStringLiteral("2376:00"));
    EXPECT_EQ(idle().shortTitle(), QString());
}

TEST_F(StatusButtonFaceTest, SpeaksInFullWhateverTheForm) {
    EXPECT_EQ(counting("1:30:00").spokenText(),
              QStringLiteral("Quellbar, Keep Awake 1:30:00 remaining"));
    EXPECT_EQ(idle().spokenText(), QStringLiteral("Quellbar"));
}

TEST_F(StatusButtonFaceTest, WithoutAnImageShowsTheNameOfTheProgram) {
    const StatusButtonFace face({}, 1);
    EXPECT_GT(face.fullWidth(22), 22);
    EXPECT_FALSE(inked(paint(face, {face.fullWidth(22), 22}, Form::full)).isEmpty());
    EXPECT_EQ(face.shortTitle(), QStringLiteral("Q"));
    EXPECT_FALSE(inked(paint(face, {22, 22}, Form::compact)).isEmpty());
}

TEST_F(StatusButtonFaceTest, FitsImagesOfAnySizeIntoThePanel) {
    for (const QSize size : {QSize(1, 1), QSize(4096, 4096), QSize(300, 10)}) {
        QImage odd(size, QImage::Format_ARGB32_Premultiplied);
        odd.fill(Qt::black);
        const auto image = std::make_shared<Image>(std::make_unique<Image::Peer>(
            Image::Peer{.picture = odd, .detailed = {}, .isTemplate = true}));
        const QRect ink = inked(paint({{.image = image}, 1}, {22, 22}, Form::full));
        EXPECT_TRUE(QRect(2, 2, 18, 18).contains(ink)) << size.width();
        EXPECT_FALSE(ink.isEmpty()) << size.width();
    }
}

TEST_F(StatusButtonFaceTest, HidesWhatTheImagePositionHides) {
    const StatusButtonContent content{.image = picture(true), .title = countdown("1:30:00")};
    StatusButtonContent imageOnly = content;
    imageOnly.imagePosition = ImagePosition::imageOnly;
    EXPECT_EQ(StatusButtonFace(imageOnly, 1).fullWidth(22), 22);
    StatusButtonContent noImage = content;
    noImage.imagePosition = ImagePosition::noImage;
    const StatusButtonFace face(noImage, 1);
    EXPECT_EQ(count(paint(face, {face.fullWidth(22), 22}, Form::full), 0xFF000000), 0);
}

} // namespace
