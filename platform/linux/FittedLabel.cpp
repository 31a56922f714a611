#include "platform/linux/FittedLabel.h"

#include "platform/linux/Appearance.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace platform::linux_host {

namespace {

constexpr int smallestFont = 7; // pixels; what is larger even so is cut

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
    return textSizeIn(wantedFont_);
}

void FittedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    fit();
}

QSize FittedLabel::textSizeIn(const QFont& font) const {
    const QFontMetrics metrics(font);
    if (!wordWrap()) {
        return {metrics.horizontalAdvance(text()), metrics.height()};
    }
    const QRect room(0, 0, width(), QWIDGETSIZE_MAX);
    return metrics.boundingRect(room, Qt::TextWordWrap, text()).size();
}

// Of one line only the width counts: what a font leaves free above and below may well be cut.
bool FittedLabel::fits(const QFont& font) const {
    const QSize size = textSizeIn(font);
    return size.width() <= width() && (!wordWrap() || size.height() <= height());
}

void FittedLabel::fit() {
    QFont font = wantedFont_;
    for (int pixels = QFontInfo(font).pixelSize(); pixels > smallestFont && !fits(font);) {
        font.setPixelSize(--pixels);
    }
    setFont(font);
}

} // namespace platform::linux_host
