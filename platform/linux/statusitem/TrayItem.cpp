#include "platform/linux/statusitem/TrayItem.h"

#include "platform/linux/statusitem/Surroundings.h"
#include "platform/linux/x11/QtConnection.h"

#include <QGuiApplication>
#include <cmath>

namespace platform::linux_host {

namespace {

using namespace std::chrono_literals;

constexpr int wantedHeight = 22; // points
constexpr int leastHeight = 8;   // a low tray would give more than it has, and cut the rest off
constexpr auto timeToMakeRoom = 500ms;

} // namespace

TrayItem::TrayItem(Connection& connection, const SystemTray& tray,
                   const StatusButtonContent& content, std::function<void()> onPress,
                   std::function<void()> onChange)
    : connection_(connection), tray_(tray.window()), style_(tray.style()),
      onChange_(std::move(onChange)), view_(std::move(onPress)),
      dock_(connection, createWindow(),
            [this](TrayDock::Change change) { dockDidChange(change); }) {
    patience_.setSingleShot(true);
    patience_.setInterval(timeToMakeRoom);
    QObject::connect(&patience_, &QTimer::timeout, &view_, [this] {
        isCramped_ = true;
        readRoom();
    });
    view_.onAppearanceChange = [this] { updateSurroundings(); };
    setContent(content);
    tray.requestDock(static_cast<xcb_window_t>(view_.winId()));
}

// No window manager touches it, whatever becomes of the tray: when one dies, the server hands the
// window to the root and shows it there.
xcb_window_t TrayItem::createWindow() {
    view_.setWindowFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    view_.setAttribute(Qt::WA_TranslucentBackground, style_.blends);
    view_.setMinimumSize(leastHeight, leastHeight);
    view_.resize(wantedHeight, wantedHeight);
    const auto window = static_cast<xcb_window_t>(view_.winId());
    synchronizeQt(); // the window exists now, whichever connection asks
    return window;
}

void TrayItem::setContent(const StatusButtonContent& content) {
    view_.setContent(content);
    askForRoom();
    useRoom();
}

// Shown only once the tray has the window: Qt tells the window's size as it shows it, and the tray
// listens to that only for windows that it has.
void TrayItem::dockDidChange(TrayDock::Change change) {
    switch (change) {
    case TrayDock::Change::state:
        if (state() == TrayDock::State::docked) {
            view_.show();
            patience_.start();
            readRoom();
        }
        onChange_();
        return;
    case TrayDock::Change::size:
    case TrayDock::Change::ground:
        readRoom();
        updateSurroundings();
        return;
    }
}

void TrayItem::readRoom() {
    if (state() != TrayDock::State::docked) {
        return;
    }
    const PixelRect frame = dock_.frame();
    granted_ = {frame.width, frame.height};
    askForRoom();
    useRoom();
}

int TrayItem::wantedWidth() const {
    const double scale = view_.devicePixelRatioF();
    return view_.face().fullWidth(granted_.isEmpty() ? qRound(wantedHeight * scale)
                                                     : granted_.height());
}

void TrayItem::askForRoom() {
    const int points = static_cast<int>(std::ceil(wantedWidth() / view_.devicePixelRatioF()));
    if (view_.minimumWidth() == points) {
        return;
    }
    view_.setMinimumSize(points, leastHeight);
    view_.resize(points, wantedHeight);
    patience_.start();
}

// A tray that has once been seen to give no more room is not waited for again.
void TrayItem::useRoom() {
    using Form = StatusButtonFace::Form;
    const bool isEnough = granted_.width() >= wantedWidth();
    isCramped_ = isCramped_ && !isEnough;
    view_.setRoom(granted_, isCramped_ ? Form::compact : Form::full);
}

void TrayItem::setStyle(const TrayStyle& style) {
    style_.foreground = style.foreground;
    updateSurroundings();
}

void TrayItem::updateSurroundings() {
    if (state() != TrayDock::State::docked) {
        return;
    }
    const QImage ground = style_.blends ? QImage() : dock_.readGround();
    view_.setSurroundings(surroundingsIn(style_, ground, QGuiApplication::palette()), ground);
}

} // namespace platform::linux_host
