#pragma once

#include "platform/ActivationPolicy.h"

#include <QWidget>
#include <xcb/xproto.h>

namespace platform::linux_host {

/// A window of this program, as the window manager has it: of fixed size, with a title and a button
/// that closes it, which hides it. Where its user has left it, it comes back.
class TitledWindow final : public QWidget {
  public:
    /// Not shown yet, and until then nothing that the X server knows of.
    TitledWindow(QSize size, const QString& title);

    ~TitledWindow() override;
    TitledWindow(const TitledWindow&) = delete;
    TitledWindow& operator=(const TitledWindow&) = delete;

    /// The one of this id on the X server; null when there is none or it is not shown.
    [[nodiscard]] static TitledWindow* find(xcb_window_t window);

    /// Puts it into the middle of the monitor that the pointer is on.
    void center();

    /// Shows it, over the program's other windows, with the keyboard.
    void orderFront();

    /// Asks the window manager to have it minimized, which the window's user cannot do.
    void minimize();

    /// Asks the window manager to put the shown windows into the task bar or take them out of it.
    static void applyActivationPolicy();

    /// Asks the window manager to activate the window that was last ordered to the front, over
    /// whatever other program is active.
    static void activateFrontmost();

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};

} // namespace platform::linux_host
