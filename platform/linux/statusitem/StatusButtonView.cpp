#include "platform/linux/statusitem/StatusButtonView.h"

#include "platform/linux/application/ApplicationId.h"

#include <QCursor>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

namespace platform::linux_host {

namespace {

bool opensMenus(int key) {
    switch (key) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
    case Qt::Key_Menu:
        return true;
    default:
        return false;
    }
}

} // namespace

StatusButtonView::StatusButtonView(std::function<void()> onPress) : onPress_(std::move(onPress)) {
    setWindowTitle(QString::fromUtf8(applicationName));
    connect(this, &QAbstractButton::clicked, this, [this] { onPress_(); });
}

void StatusButtonView::setContent(const StatusButtonContent& content) {
    content_ = content;
    setAccessibleName(face().spokenText());
    update();
}

StatusButtonFace StatusButtonView::face() const {
    return {content_, devicePixelRatioF()};
}

void StatusButtonView::setRoom(QSize pixels, StatusButtonFace::Form form) {
    room_ = pixels;
    form_ = form;
    update();
}

void StatusButtonView::setSurroundings(const QPalette& surroundings, const QImage& ground) {
    surroundings_ = surroundings;
    ground_ = ground;
    update();
}

void StatusButtonView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    paintGround(painter);
    face().paint(painter, room_, form_, surroundings_);
}

void StatusButtonView::paintGround(QPainter& painter) const {
    if (testAttribute(Qt::WA_TranslucentBackground)) {
        return;
    }
    painter.fillRect(QRect(QPoint(), room_), surroundings_.color(QPalette::Window));
    painter.drawImage(QPoint(), ground_);
}

// As in every menu bar: at the press, so that one movement can open the menu and choose from it.
void StatusButtonView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    onPress_();
}

void StatusButtonView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

void StatusButtonView::keyPressEvent(QKeyEvent* event) {
    if (opensMenus(event->key())) {
        onPress_();
    } else {
        event->ignore();
    }
}

void StatusButtonView::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && onAppearanceChange) {
        onAppearanceChange();
    }
}

// The tip is made when it is asked for: with every second of a countdown it is another one. Qt does
// not know the place of a window in a tray, so the tip goes by the pointer.
bool StatusButtonView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        QToolTip::showText(QCursor::pos(), face().spokenText());
        return true;
    }
    return QAbstractButton::event(event);
}

} // namespace platform::linux_host
