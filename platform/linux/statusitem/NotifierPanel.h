#pragma once

#include "platform/linux/dbus/MessageBus.h"

#include <vector>

namespace platform::linux_host {

/// Whether there is a panel that shows status items which are told to it over the session bus
/// (StatusNotifierItem), rather than windows in a tray. A watcher keeps the list of items, and
/// knows whether a panel shows them. Both come and go at any time. Nothing here blocks. Main thread
/// only.
class NotifierPanel {
  public:
    /// `onChange` is called from the event loop when `state` may have changed.
    explicit NotifierPanel(std::function<void()> onChange);

    /// Not answered yet, known to be absent, or there.
    enum class State { unknown, absent, present };
    [[nodiscard]] State state() const { return state_; }

    /// Another number for each watcher. One that is new knows of no item yet.
    [[nodiscard]] int generation() const { return generation_; }

    static constexpr const char* watcher = "org.kde.StatusNotifierWatcher";
    static constexpr const char* watcherPath = "/StatusNotifierWatcher";

  private:
    void watch();
    void handleWatcherChange();
    void ask();
    void setState(State state);

    std::function<void()> onChange_;
    State state_ = State::unknown;
    int generation_ = 0;
    std::shared_ptr<MessageBus> bus_;
    std::vector<BusSubscription> changes_;
    std::shared_ptr<NotifierPanel*> question_; ///< leads the latest answer here
};

/// Whether the desktop is one that would rather have an item told to it than take its window: KDE's
/// tray shows windows as pictures of themselves, squeezed into squares.
[[nodiscard]] bool desktopPrefersNotifiers();

} // namespace platform::linux_host
