#include "platform/linux/windows/TitledWindow.h"

#include "platform/linux/application/ApplicationId.h"
#include "platform/linux/application/OwnProcess.h"
#include "platform/linux/views/Appearance.h"
#include "platform/linux/windowmanager/Trust.h"
#include "platform/linux/windowmanager/WindowMessages.h"
#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/QtConnection.h"

#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QScreen>
#include <algorithm>
#include <vector>

namespace platform::linux_host {

namespace {

// Naming what there is leaves out the rest, which is minimizing and maximizing.
constexpr Qt::WindowFlags titledAndClosable = Qt::Window | Qt::CustomizeWindowHint |
                                              Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                              Qt::WindowCloseButtonHint;

std::vector<TitledWindow*> allWindows;
TitledWindow* frontmost = nullptr; // the one that was last ordered there

xcb_window_t idOf(const QWidget& window) {
    return static_cast<xcb_window_t>(window.internalWinId());
}

void tellActivationPolicy(const TitledWindow& window) {
    askToSkipTaskbar(Connection::shared(), idOf(window),
                     ownActivationPolicy() != ActivationPolicy::regular);
}

// In our own words: Qt's come when it has heard that the window is shown. By then the user may have
// minimized it again, and it would come back. Without a window manager there is nobody to ask, and
// Qt gives the keyboard to the window itself.
void activate(TitledWindow& window) {
    if (reasonForDistrust() == Distrust::noWindowManager) {
        window.activateWindow();
    } else {
        askToActivate(Connection::shared(), idOf(window));
    }
}

} // namespace

TitledWindow::TitledWindow(QSize size, const QString& title) : QWidget(nullptr, titledAndClosable) {
    setWindowTitle(title);
    setWindowIcon(QIcon::fromTheme(QString::fromUtf8(applicationId))); // where it is installed
    setFixedSize(size);
    setFont(qFont(Font::system(0)));
    allWindows.push_back(this);
}

TitledWindow::~TitledWindow() {
    std::erase(allWindows, this);
    if (frontmost == this) {
        frontmost = nullptr;
    }
}

TitledWindow* TitledWindow::find(xcb_window_t window) {
    const auto found = std::ranges::find_if(allWindows, [window](const TitledWindow* candidate) {
        return candidate->isVisible() && idOf(*candidate) == window;
    });
    return found != allWindows.end() ? *found : nullptr;
}

void TitledWindow::center() {
    const QScreen* const underPointer = QGuiApplication::screenAt(QCursor::pos());
    const QScreen* const screen =
        underPointer != nullptr ? underPointer : QGuiApplication::primaryScreen();
    if (screen != nullptr) {
        QRect place = rect();
        place.moveCenter(screen->availableGeometry().center());
        move(place.topLeft());
    }
}

// The window manager forgets what it was told about a window as soon as that is hidden. It has to
// know of the window before it can be told again, so what Qt has asked for goes first.
void TitledWindow::orderFront() {
    frontmost = this;
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    synchronizeQt();
    activate(*this);
    setMayBeMinimized(Connection::shared(), idOf(*this), false);
    tellActivationPolicy(*this);
    Connection::shared().flush();
}

// What the hints forbid to the user some window managers forbid to programs too, so they allow it
// until the window is back.
void TitledWindow::minimize() {
    setMayBeMinimized(Connection::shared(), idOf(*this), true);
    askToMinimize(Connection::shared(), idOf(*this));
}

void TitledWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isVisible() && !isMinimized()) {
        setMayBeMinimized(Connection::shared(), idOf(*this), false);
    }
}

// Qt would give up the window on the X server, and its place with it.
void TitledWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
}

void TitledWindow::applyActivationPolicy() {
    for (const TitledWindow* const window : allWindows) {
        if (window->isVisible()) {
            tellActivationPolicy(*window);
        }
    }
}

void TitledWindow::activateFrontmost() {
    if (frontmost != nullptr && frontmost->isVisible()) {
        activate(*frontmost);
    }
}

} // namespace platform::linux_host
