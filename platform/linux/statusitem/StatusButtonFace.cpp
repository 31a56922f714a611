#include "platform/linux/statusitem/StatusButtonFace.h"

#include "platform/linux/application/ApplicationId.h"
#include "platform/linux/views/Appearance.h"
#include "platform/linux/views/ImagePeer.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace platform::linux_host {

namespace {

constexpr double imagePoints = 18;
constexpr double marginPoints = 2;
constexpr double mostMargin = 1.0 / 11;   // of the height, in a low panel
constexpr double mostOfHeight = 0.75;     // a line of text in a low panel
constexpr double imageAboveTitle = 0.6;   // of the height, in the compact form
constexpr double compactHeight = 0.55;    // the short title in its square, at most ...
constexpr int leastCompactPixels = 7;     // ... and at least
constexpr double narrowestLetters = 0.75; // how far they may be pressed together

QString programName() {
    return QString::fromUtf8(applicationName);
}

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

QChar widestDigit(const QFontMetricsF& metrics) {
    QChar widest = u'0';
    for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
        if (metrics.horizontalAdvance(digit) > metrics.horizontalAdvance(widest)) {
            widest = digit;
        }
    }
    return widest;
}

// The baseline that centres digits and capitals, which is what there is to read here.
double baselineFor(const QFontMetricsF& metrics, int height) {
    return std::round((height + metrics.capHeight()) / 2);
}

// Of the two pictures, the one that keeps the most of it.
const QImage& pictureFor(const Image& image, int side) {
    const Image::Peer& peer = image.peer();
    const int plain = std::max(peer.picture.width(), peer.picture.height());
    return side == plain || peer.detailed.isNull() ? peer.picture : peer.detailed;
}

QImage tinted(const QImage& mask, const QColor& color) {
    QImage result = mask.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    result.setDevicePixelRatio(1);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), color);
    return result;
}

QRect centred(QSize size, QRect room) {
    return {room.x() + (room.width() - size.width()) / 2,
            room.y() + (room.height() - size.height()) / 2, size.width(), size.height()};
}

} // namespace

StatusButtonFace::StatusButtonFace(StatusButtonContent content, double scale)
    : content_(std::move(content)), scale_(scale) {}

const Image* StatusButtonFace::image() const {
    return content_.imagePosition == ImagePosition::noImage ? nullptr : content_.image.get();
}

// A button with nothing to show, because its image is missing, would be a hole in the panel.
QString StatusButtonFace::title() const {
    const QString title = content_.imagePosition == ImagePosition::imageOnly
                              ? QString()
                              : QString::fromStdString(content_.title.string);
    return title.isEmpty() && image() == nullptr ? programName() : title;
}

QString StatusButtonFace::shortTitle() const {
    if (content_.title.string.empty()) {
        return title().left(1);
    }
    const QString time = title().trimmed();
    return time.count(u':') > 1 ? time.left(time.lastIndexOf(u':')) : time;
}

QString StatusButtonFace::spokenText() const {
    const QString time = QString::fromStdString(content_.title.string).trimmed();
    return time.isEmpty() ? programName()
                          : QStringLiteral("%1, Keep Awake %2 remaining").arg(programName(), time);
}

QFont StatusButtonFace::titleFont(int height) const {
    QFont font = qFont(content_.title.font.value_or(Font::menuBar(0)));
    const double pixels = QFontInfo(font).pixelSize() * scale_;
    font.setPixelSize(std::max(1, static_cast<int>(std::min(pixels, height * mostOfHeight))));
    return font;
}

// Without a text nothing is measured: the first measure has all fonts of the desktop looked up.
double StatusButtonFace::titleWidth(int height) const {
    QString widest = title();
    if (widest.isEmpty()) {
        return 0;
    }
    const QFontMetricsF metrics(titleFont(height));
    std::replace_if(widest.begin(), widest.end(), isDigit, widestDigit(metrics));
    return metrics.horizontalAdvance(widest);
}

int StatusButtonFace::margin(int height) const {
    return qRound(std::min(marginPoints * scale_, height * mostMargin));
}

// An image at its own size is sharp; it is scaled only where it would be cut off or look lost.
int StatusButtonFace::imageSide(int height) const {
    const int natural = qRound(imagePoints * scale_);
    const int room = std::max(1, height - 2 * margin(height));
    const bool looksLost = 2 * room >= 3 * natural;
    return room < natural || looksLost ? room : natural;
}

int StatusButtonFace::fullWidth(int height) const {
    const int imageWidth = image() != nullptr ? imageSide(height) : 0;
    const int width =
        imageWidth + static_cast<int>(std::ceil(titleWidth(height))) + 2 * margin(height);
    return std::max(width, height);
}

QColor StatusButtonFace::titleColor(const QPalette& surroundings) const {
    return qColor(content_.title.foregroundColor.value_or(Color::label), surroundings);
}

void StatusButtonFace::paint(QPainter& painter, QSize size, Form form,
                             const QPalette& surroundings) const {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (form == Form::full) {
        paintFull(painter, size, surroundings);
    } else {
        paintCompact(painter, size, surroundings);
    }
}

void StatusButtonFace::paintFull(QPainter& painter, QSize size,
                                 const QPalette& surroundings) const {
    const int height = size.height();
    const int side = image() != nullptr ? imageSide(height) : 0;
    if (title().isEmpty()) {
        paintImage(painter, centred({side, side}, QRect(QPoint(), size)), surroundings);
        return;
    }
    const int left = std::max(0, (size.width() - fullWidth(height)) / 2) + margin(height);
    paintImage(painter, centred({side, side}, QRect(left, 0, side, height)), surroundings);
    paintTitle(painter, left + side, height, surroundings);
}

void StatusButtonFace::paintTitle(QPainter& painter, int left, int height,
                                  const QPalette& surroundings) const {
    const QFont font = titleFont(height);
    const double baseline = baselineFor(QFontMetricsF(font), height) -
                            content_.title.baselineOffset.value_or(0) * scale_;
    painter.setFont(font);
    painter.setPen(titleColor(surroundings));
    painter.drawText(QPointF(left, baseline), title());
}

// The image gives way to the time. It keeps its colours: what is faint is darker in trays that take
// colours not to be multiplied by their opacity, as tint2 does.
void StatusButtonFace::paintCompact(QPainter& painter, QSize size,
                                    const QPalette& surroundings) const {
    const bool hasTitle = !shortTitle().isEmpty();
    const int side = hasTitle ? qRound(size.height() * imageAboveTitle)
                              : imageSide(std::min(size.width(), size.height()));
    const QRect room(0, 0, size.width(), hasTitle ? side : size.height());
    paintImage(painter, centred({side, side}, room), surroundings);
    if (hasTitle) {
        paintShortTitle(painter, size, surroundings);
    }
}

void StatusButtonFace::paintImage(QPainter& painter, QRect square,
                                  const QPalette& surroundings) const {
    if (image() == nullptr) {
        return;
    }
    const QImage& picture = pictureFor(*image(), square.width());
    const QSize fitting = picture.size().scaled(square.size(), Qt::KeepAspectRatio);
    const QRect place = centred(fitting.expandedTo({1, 1}), square);
    painter.drawImage(place, image()->isTemplate()
                                 ? tinted(picture, surroundings.color(QPalette::WindowText))
                                 : picture);
}

// As large as the square allows; letters that are pressed together a little are larger ones.
void StatusButtonFace::paintShortTitle(QPainter& painter, QSize size,
                                       const QPalette& surroundings) const {
    const QString text = shortTitle();
    QFont font = titleFont(size.height());
    font.setBold(true);
    double width = 0;
    for (int pixels = static_cast<int>(size.height() * compactHeight);; --pixels) {
        font.setPixelSize(std::max(pixels, leastCompactPixels));
        width = QFontMetricsF(font).horizontalAdvance(text);
        if (width * narrowestLetters <= size.width() || pixels <= leastCompactPixels) {
            break;
        }
    }
    const double squeeze = std::min(1.0, size.width() / width);
    painter.save();
    painter.translate((size.width() - width * squeeze) / 2,
                      size.height() - margin(size.height()) / 2.0);
    painter.scale(squeeze, 1);
    painter.setFont(font);
    painter.setPen(titleColor(surroundings));
    painter.drawText(QPointF(0, 0), text);
    painter.restore();
}

} // namespace platform::linux_host
