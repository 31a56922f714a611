#include "platform/linux/views/TextBlock.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace platform::linux_host {

namespace {

constexpr double closestSpacing = 1.13; // of the font's size

QString withLineSeparators(QString text) {
    return text.replace(u'\n', QChar(QChar::LineSeparator));
}

double spacingFor(const QFont& font, double room) {
    const double closest = closestSpacing * QFontInfo(font).pixelSize();
    return std::clamp(room, closest, std::max(closest, QFontMetricsF(font).lineSpacing()));
}

} // namespace

TextBlock::TextBlock(const QString& text, const QFont& font, QSizeF area)
    : layout_(withLineSeparators(text), font) {
    layout_.beginLayout();
    for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setLineWidth(area.width());
    }
    layout_.endLayout();
    spacing_ = spacingFor(font, area.height() / std::max(layout_.lineCount(), 1));
    placeLines(font);
}

// In the middle of its place is what is seen of a line, from the top of a "d" to the foot of a "g".
void TextBlock::placeLines(const QFont& font) {
    const QRectF ink = QFontMetricsF(font).tightBoundingRect(QStringLiteral("dg"));
    const double baseline = (spacing_ - ink.height()) / 2 - ink.top();
    for (int i = 0; i < layout_.lineCount(); ++i) {
        QTextLine line = layout_.lineAt(i);
        // Rounded up, the foot of the last line would be beyond the end of the area.
        line.setPosition({0, std::floor(i * spacing_ + baseline) - line.ascent()});
    }
}

} // namespace platform::linux_host
