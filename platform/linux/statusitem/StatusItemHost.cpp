#include "platform/linux/statusitem/StatusItemHost.h"

#include "platform/linux/menu/MenuPeer.h"
#include "platform/linux/menu/MenuPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace platform::linux_host {

namespace {

using namespace std::chrono_literals;

constexpr auto timeToAnswer = 1s;

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
    for (QTimer* const patience : {&trayPatience_, &panelPatience_}) {
        patience->setInterval(timeToAnswer);
    }
    for (QTimer* const timer : {&updates_, &trayPatience_, &panelPatience_}) {
        timer->setSingleShot(true);
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
    Need need = Need::certain;
    if (prefersNotifier_) {
        need = updateTrayItem(updateNotifier(need));
    } else {
        need = updateNotifier(updateTrayItem(need));
    }
    updateStrip(need);
    showContent();
}

StatusItemHost::Need StatusItemHost::updateTrayItem(Need need) {
    if (item_ && (need == Need::none || item_->tray() != tray_.window())) {
        item_.reset();
    }
    if (!item_ && need == Need::certain && tray_.window() != XCB_WINDOW_NONE) {
        item_ = std::make_unique<TrayItem>(
            connection_, tray_, content_, [this] { openMenu(item_->frame()); },
            [this] { updateLater(); });
        trayPatience_.start();
    }
    return needAfterTrayItem(need);
}

StatusItemHost::Need StatusItemHost::needAfterTrayItem(Need need) const {
    if (item_ && item_->state() == TrayDock::State::docked) {
        return Need::none;
    }
    const bool mayStillDock =
        item_ && item_->state() == TrayDock::State::waiting && trayPatience_.isActive();
    return mayStillDock ? std::min(need, Need::perhaps) : need;
}

StatusItemHost::Need StatusItemHost::updateNotifier(Need need) {
    if (!panel_ && need == Need::certain) {
        panel_ = std::make_unique<NotifierPanel>([this] { updateLater(); });
        panelPatience_.start();
    }
    const bool isPresent = panel_ && panel_->state() == NotifierPanel::State::present;
    if (need == Need::none || !isPresent || notifierGeneration_ != panel_->generation()) {
        notifier_.reset();
    }
    if (!notifier_ && need == Need::certain && isPresent) {
        listNotifier();
    }
    return needAfterNotifier(need);
}

void StatusItemHost::listNotifier() {
    notifierGeneration_ = panel_->generation();
    notifier_ = std::make_unique<NotifierItem>(
        content_,
        [this](QPoint place) {
            openMenu({place.x(), place.y(), 1, 1});
        },
        [this] { updateLater(); });
    panelPatience_.start();
}

StatusItemHost::Need StatusItemHost::needAfterNotifier(Need need) const {
    if (notifier_ && notifier_->state() == NotifierItem::State::listed) {
        return Need::none;
    }
    const bool mayStillBeListed =
        panelPatience_.isActive() &&
        (notifier_ ? notifier_->state() == NotifierItem::State::waiting
                   : panel_ && panel_->state() == NotifierPanel::State::unknown);
    return mayStillBeListed ? std::min(need, Need::perhaps) : need;
}

// While the item may still be taken elsewhere there is no strip yet, but one that is there stays.
void StatusItemHost::updateStrip(Need need) {
    switch (need) {
    case Need::none:
        trayPatience_.stop();
        panelPatience_.stop();
        strip_.reset();
        return;
    case Need::perhaps:
        return;
    case Need::certain:
        if (!strip_) {
            strip_ = std::make_unique<Strip>(content_, [this] { openMenu(strip_->frame()); });
        }
        return;
    }
}

void StatusItemHost::showContent() {
    if (item_) {
        item_->setContent(content_);
    }
    if (notifier_) {
        notifier_->setContent(content_);
    }
    if (strip_) {
        strip_->setContent(content_);
    }
}

void StatusItemHost::openMenu(const PixelRect& item) {
    const QScreen* const screen = screenOf(item);
    if (!menu_ || screen == nullptr) {
        return;
    }
    QMenu& menu = *menu_->peer().popup;
    const auto placeFor = [&](QSize size) {
        return menuPlace(inPoints(item, *screen), size, screen->geometry());
    };
    menu.popup(placeFor(menu.sizeHint()));
    menu.move(placeFor(menu.size())); // what is in it has been measured only now
}

} // namespace platform::linux_host
