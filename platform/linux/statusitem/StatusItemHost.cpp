#include "platform/linux/statusitem/StatusItemHost.h"

#include "platform/linux/menu/MenuPeer.h"
#include "platform/linux/menu/MenuPlace.h"

#include <QGuiApplication>
#include <QScreen>

namespace platform::linux_host {

namespace {

using namespace std::chrono_literals;

constexpr auto timeToDock = 1s;

// Qt's coordinates: each screen begins where it begins in pixels, and is as large as its scale
// makes it.
QRect inPoints(const PixelRect& pixels, const QScreen& screen) {
    const double scale = screen.devicePixelRatio();
    const QPoint origin = screen.geometry().topLeft();
    return {origin.x() + qRound((pixels.x - origin.x()) / scale),
            origin.y() + qRound((pixels.y - origin.y()) / scale), qRound(pixels.width / scale),
            qRound(pixels.height / scale)};
}

const QScreen* screenOf(const PixelRect& pixels) {
    const auto screens = QGuiApplication::screens();
    for (const QScreen* const screen : screens) {
        if (screen->geometry().contains(inPoints(pixels, *screen).center())) {
            return screen;
        }
    }
    return QGuiApplication::primaryScreen();
}

} // namespace

StatusItemHost::StatusItemHost()
    : connection_(Connection::shared()), tray_(connection_, [this] { trayDidChange(); }) {
    updates_.setSingleShot(true);
    patience_.setSingleShot(true);
    patience_.setInterval(timeToDock);
    for (QTimer* const timer : {&updates_, &patience_}) {
        QObject::connect(timer, &QTimer::timeout, timer, [this] { update(); });
    }
    updateLater();
}

StatusItemHost::~StatusItemHost() = default;

void StatusItemHost::contentDidChange() {
    updateLater();
}

void StatusItemHost::setMenu(std::shared_ptr<Menu> menu) {
    menu_ = std::move(menu);
}

// Another tray is for the update; the same one may have other colours.
void StatusItemHost::trayDidChange() {
    if (item_ && item_->tray() == tray_.window()) {
        item_->setStyle(tray_.style());
    }
    updateLater();
}

// What the X server tells may come at any time, even while a window of ours is at work: nothing is
// made or dropped before the loop turns. What comes together then needs one update.
void StatusItemHost::updateLater() {
    updates_.start(0);
}

// From whatever has changed to what follows from it.
void StatusItemHost::update() {
    updateTrayItem();
    updateStrip();
    showContent();
}

void StatusItemHost::updateTrayItem() {
    if (item_ && item_->tray() != tray_.window()) {
        item_.reset();
        patience_.stop();
    }
    if (!item_ && tray_.window() != XCB_WINDOW_NONE) {
        item_ = std::make_unique<TrayItem>(
            connection_, tray_, content_, [this] { openMenu(); }, [this] { updateLater(); });
        patience_.start();
    }
}

// While a tray may still take the item there is no strip yet, but one that is there stays.
void StatusItemHost::updateStrip() {
    const bool isDocked = item_ && item_->state() == TrayDock::State::docked;
    if (isDocked) {
        patience_.stop();
        strip_.reset();
        return;
    }
    const bool mayStillDock =
        item_ && item_->state() == TrayDock::State::waiting && patience_.isActive();
    if (!strip_ && !mayStillDock) {
        strip_ = std::make_unique<Strip>(content_, [this] { openMenu(); });
    }
}

void StatusItemHost::showContent() {
    if (item_) {
        item_->setContent(content_);
    }
    if (strip_) {
        strip_->setContent(content_);
    }
}

PixelRect StatusItemHost::frame() const {
    return strip_ ? strip_->frame() : item_->frame();
}

void StatusItemHost::openMenu() {
    if (!menu_ || (!strip_ && !item_)) {
        return;
    }
    const PixelRect pixels = frame();
    const QScreen* const screen = screenOf(pixels);
    if (screen == nullptr) {
        return;
    }
    QMenu& menu = *menu_->peer().popup;
    const auto placeFor = [&](QSize size) {
        return menuPlace(inPoints(pixels, *screen), size, screen->geometry());
    };
    menu.popup(placeFor(menu.sizeHint()));
    menu.move(placeFor(menu.size())); // what is in it has been measured only now
}

} // namespace platform::linux_host
