#include "platform/linux/views/Appearance.h"

#include <QApplication>
#include <QGuiApplication>
#include <QRgb>

namespace platform {

namespace linux_host {

namespace {

constexpr double standardSystemFontSize = 13;
constexpr double secondaryOpacity = 0.6; // the least that reads well on light and on dark

constexpr QRgb redOnLight = 0xFFFF3B30;
constexpr QRgb redOnDark = 0xFFFF453A;

QColor secondaryLabel(const QPalette& palette) {
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(static_cast<float>(secondaryOpacity));
    return color;
}

// The fonts of menus are told apart by the class of the widget; null stands for the rest.
const char* widgetClassOf(Font::Purpose purpose) {
    switch (purpose) {
    case Font::Purpose::menu:
        return "QMenu";
    case Font::Purpose::menuBar:
        return "QMenuBar";
    case Font::Purpose::system:
    case Font::Purpose::boldSystem:
        return nullptr;
    }
    return nullptr;
}

} // namespace

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() >
           palette.color(QPalette::Window).lightness();
}

QColor qColor(Color color, const QPalette& palette) {
    switch (color) {
    case Color::label:
        return palette.color(QPalette::WindowText);
    case Color::secondaryLabel:
        return secondaryLabel(palette);
    case Color::white:
        return Qt::white;
    case Color::systemRed:
        return QColor::fromRgb(isDark(palette) ? redOnDark : redOnLight);
    case Color::selectedContentBackground:
    case Color::controlAccent:
        return palette.color(QPalette::Highlight);
    case Color::controlBackground:
        return palette.color(QPalette::Base);
    }
    return {};
}

QFont qFont(const Font& font) {
    const char* const widgetClass = widgetClassOf(font.purpose);
    QFont result = widgetClass != nullptr ? QApplication::font(widgetClass) : QApplication::font();
    const double size =
        font.size == 0 && widgetClass == nullptr ? standardSystemFontSize : font.size;
    if (size > 0) {
        result.setPixelSize(qRound(size));
    }
    result.setBold(result.bold() || font.purpose == Font::Purpose::boldSystem);
    return result;
}

} // namespace linux_host

CGColor cgColor(Color color) {
    const QColor frozen = linux_host::qColor(color, QGuiApplication::palette());
    return {.red = frozen.redF(),
            .green = frozen.greenF(),
            .blue = frozen.blueF(),
            .alpha = frozen.alphaF()};
}

} // namespace platform
