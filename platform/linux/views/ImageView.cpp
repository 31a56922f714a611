#include "platform/ImageView.h"

#include "platform/linux/views/ImagePeer.h"
#include "platform/linux/views/ViewPeer.h"

#include <QPainter>

namespace platform {

namespace {

/// Paints a picture in the middle, as large as it is or scaled down to fit.
class PictureWidget final : public QWidget {
  public:
    void setImage(std::shared_ptr<Image> image) {
        image_ = std::move(image);
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        if (!image_) {
            return;
        }
        const QSizeF extent = fittedSize();
        const QRectF place(
            QPointF((width() - extent.width()) / 2, (height() - extent.height()) / 2), extent);
        const double scale = devicePixelRatioF();
        const QImage picture = image_->peer().pictureFor(scale).scaled(
            (extent * scale).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QPainter(this).drawImage(place, picture);
    }

  private:
    [[nodiscard]] QSizeF fittedSize() const {
        const QSizeF own(image_->size().width, image_->size().height);
        const QSizeF room = size();
        const bool fits = own.width() <= room.width() && own.height() <= room.height();
        return fits ? own : own.scaled(room, Qt::KeepAspectRatio);
    }

    std::shared_ptr<Image> image_;
};

} // namespace

ImageView::ImageView(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

std::shared_ptr<ImageView> ImageView::withFrame(Rect frame) {
    return std::make_shared<ImageView>(std::make_unique<Peer>(new PictureWidget, frame));
}

void ImageView::setImage(std::shared_ptr<Image> image) {
    static_cast<PictureWidget&>(*peer().widget).setImage(std::move(image));
}

} // namespace platform
