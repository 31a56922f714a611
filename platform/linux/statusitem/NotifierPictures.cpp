#include "platform/linux/statusitem/NotifierPictures.h"

#include <QPainter>
#include <QtEndian>
#include <array>

namespace platform::linux_host {

namespace {

// Those of small and ordinary panels, and of both at twice the pixels.
constexpr std::array sides{16, 22, 24, 32, 44, 48, 64};
constexpr double menuBarHeight = 22; // points: what a face is made for

// Qt's pixels are numbers, and bytes in the order of the machine.
QImage inNetworkOrder(const QImage& picture) {
    QImage result = picture.convertToFormat(QImage::Format_ARGB32);
    qToBigEndian<quint32>(result.constBits(), result.sizeInBytes() / qsizetype{sizeof(quint32)},
                          result.bits());
    return result;
}

QImage pictureOf(const StatusButtonContent& content, const QPalette& surroundings, int side) {
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    StatusButtonFace(content, side / menuBarHeight)
        .paint(painter, picture.size(), StatusButtonFace::Form::compact, surroundings);
    return inNetworkOrder(picture);
}

} // namespace

std::vector<QImage> notifierPictures(const StatusButtonContent& content,
                                     const QPalette& surroundings) {
    std::vector<QImage> pictures;
    pictures.reserve(sides.size());
    for (const int side : sides) {
        pictures.push_back(pictureOf(content, surroundings, side));
    }
    return pictures;
}

} // namespace platform::linux_host
