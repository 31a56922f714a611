#include "platform/linux/views/FittedLabel.h"

#include "platform/linux/views/Appearance.h"
#include "platform/linux/views/TextBlock.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>

namespace platform::linux_host {

namespace {

constexpr int smallestFont = 7; // pixels; what is larger even so is cut
constexpr int sideMargin = 6; // pixels, at each end of a text in the middle, so as not to crowd it

} // namespace

FittedLabel::FittedLabel(const QString& text, Lines lines) : wantedFont_(qFont(Font::system(0))) {
    setTextFormat(Qt::PlainText);
    setWordWrap(lines == Lines::wrapped);
    setAlignment(Qt::AlignLeft | (lines == Lines::wrapped ? Qt::AlignTop : Qt::AlignVCenter));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFont(wantedFont_);
    showText(text);
}

void FittedLabel::showText(const QString& text) {
    setText(text);
    fit();
}

void FittedLabel::setWantedFont(const QFont& font) {
    wantedFont_ = font;
    fit();
    updateGeometry();
}

QSize FittedLabel::sizeHint() const {
    if (wordWrap()) {
        return {width(), qCeil(TextBlock(text(), wantedFont_, size()).height())};
    }
    const QFontMetrics metrics(wantedFont_);
    return {metrics.horizontalAdvance(text()), metrics.height()};
}

void FittedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    fit();
}

void FittedLabel::showEvent(QShowEvent* event) {
    QLabel::showEvent(event);
    fit();
}

void FittedLabel::paintEvent(QPaintEvent* event) {
    if (!wordWrap()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    TextBlock(text(), font(), size()).draw(painter);
}

// Of one line only the width counts: what a font leaves free above and below may well be cut.
bool FittedLabel::fits(const QFont& font) const {
    if (wordWrap()) {
        return TextBlock(text(), font, size()).height() <= height();
    }
    const int margins = alignment().testFlag(Qt::AlignHCenter) ? 2 * sideMargin : 0;
    return QFontMetrics(font).horizontalAdvance(text()) + margins <= width();
}

// Not before it is seen: the first text to be measured has all fonts of the desktop looked up.
void FittedLabel::fit() {
    if (!isVisible()) {
        return;
    }
    QFont font = wantedFont_;
    for (int pixels = QFontInfo(font).pixelSize(); pixels > smallestFont && !fits(font);) {
        font.setPixelSize(--pixels);
    }
    setFont(font);
}

} // namespace platform::linux_host
