#include "platform/linux/statusitem/Strip.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/QtConnection.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace platform::linux_host {

namespace {

constexpr int height = 22; // points

} // namespace

// A panel to the window manager: on every desktop, in no task bar, never minimized. It does not
// take the keyboard by itself, but the user may give it.
Strip::Strip(const StatusButtonContent& content, std::function<void()> onPress)
    : view_(std::move(onPress)) {
    view_.setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setWindowType(static_cast<xcb_window_t>(view_.winId()),
                  Connection::shared().atom(Atom::netWmWindowTypeDock));
    view_.setAttribute(Qt::WA_ShowWithoutActivating);
    view_.setFocusPolicy(Qt::StrongFocus);
    view_.onAppearanceChange = [this] { updateSurroundings(); };
    updateSurroundings();
    setContent(content);
    watchScreens();
    view_.show();
}

void Strip::setContent(const StatusButtonContent& content) {
    view_.setContent(content);
    place();
}

PixelRect Strip::frame() const {
    const QPoint origin = view_.screen()->geometry().topLeft();
    const double scale = view_.devicePixelRatioF();
    const QPoint offset = view_.pos() - origin;
    return {origin.x() + qRound(offset.x() * scale), origin.y() + qRound(offset.y() * scale),
            qRound(view_.width() * scale), qRound(view_.height() * scale)};
}

void Strip::updateSurroundings() {
    view_.setSurroundings(QGuiApplication::palette());
}

void Strip::watchScreens() {
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &view_,
                     [this](QScreen* screen) {
                         watch(screen);
                         place();
                     });
    watch(QGuiApplication::primaryScreen());
}

void Strip::watch(QScreen* screen) {
    if (screen != nullptr) {
        QObject::connect(screen, &QScreen::availableGeometryChanged, &view_, [this] { place(); });
        QObject::connect(screen, &QScreen::geometryChanged, &view_, [this] { place(); });
    }
}

void Strip::place() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return;
    }
    const double scale = screen->devicePixelRatio();
    const int pixels = qRound(height * scale);
    const int width = static_cast<int>(std::ceil(view_.face().fullWidth(pixels) / scale));
    const QRect area = screen->availableGeometry();
    view_.setFixedSize(width, height);
    view_.setGeometry(area.right() + 1 - width, area.top(), width, height);
    view_.setRoom(QSize(width, height) * scale, StatusButtonFace::Form::full);
}

} // namespace platform::linux_host
