#include "platform/linux/x11/ScreenLayout.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Monitors.h"

#include <QGuiApplication>
#include <QScreen>
#include <functional>

namespace platform::linux_host {

namespace {

// The scale in which Qt draws and places windows, so that all points of this program are alike.
double scaleOfPrimaryScreen() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->devicePixelRatio() : 1;
}

// Qt takes the scale from the resolution that the desktop sets.
void watchScale(const std::function<void()>& onChange) {
    const auto watch = [onChange](const QScreen* screen) {
        if (screen != nullptr) {
            QObject::connect(screen, &QScreen::logicalDotsPerInchChanged, qGuiApp, onChange);
        }
    };
    watch(QGuiApplication::primaryScreen());
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, qGuiApp,
                     [watch, onChange](const QScreen* screen) {
                         watch(screen);
                         onChange();
                     });
}

} // namespace

ScreenLayout& ScreenLayout::shared() {
    static auto* const instance = new ScreenLayout;
    return *instance;
}

ScreenLayout::ScreenLayout() {
    const auto becomeStale = [this] { isStale_ = true; };
    watchMonitors(Connection::shared(), becomeStale);
    watchScale(becomeStale);
}

std::span<const Screen> ScreenLayout::screens() {
    update();
    return screens_;
}

const ScreenSpace& ScreenLayout::space() {
    update();
    return space_;
}

void ScreenLayout::update() {
    if (!std::exchange(isStale_, false)) {
        return;
    }
    const std::vector<PixelRect> monitors = readMonitors(Connection::shared());
    space_ = {.primary = monitors.empty() ? PixelRect() : monitors.front(),
              .scale = scaleOfPrimaryScreen()};
    screens_.clear();
    for (const PixelRect& monitor : monitors) {
        screens_.push_back({.frame = space_.rectOf(monitor)});
    }
}

} // namespace platform::linux_host
