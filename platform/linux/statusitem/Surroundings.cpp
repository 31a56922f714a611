#include "platform/linux/statusitem/Surroundings.h"

#include <cstdlib>

namespace platform::linux_host {

namespace {

constexpr int leastDifference = 96; // of lightness, out of 255, between a text and its ground
constexpr int middleLightness = 128;

QColor meanColor(const QImage& image) {
    return image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

QColor opposite(const QColor& color) {
    return color.lightness() < middleLightness ? Qt::white : Qt::black;
}

bool isReadable(const QColor& text, const QColor& ground) {
    return std::abs(text.lightness() - ground.lightness()) >= leastDifference;
}

} // namespace

QPalette surroundingsIn(const TrayStyle& style, const QImage& ground, const QPalette& program) {
    QPalette palette = program;
    if (!ground.isNull()) {
        palette.setColor(QPalette::Window, meanColor(ground));
    }
    if (style.foreground) {
        const QColor text = QColor::fromRgb(*style.foreground);
        palette.setColor(QPalette::WindowText, text);
        if (ground.isNull()) {
            palette.setColor(QPalette::Window, opposite(text));
        }
    } else if (!isReadable(palette.color(QPalette::WindowText), palette.color(QPalette::Window))) {
        palette.setColor(QPalette::WindowText, opposite(palette.color(QPalette::Window)));
    }
    return palette;
}

} // namespace platform::linux_host
