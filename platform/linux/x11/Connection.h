#pragma once

#include "platform/linux/x11/Atoms.h"
#include "platform/linux/x11/Reply.h"

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace platform::linux_host {

/// This host's own connection to the X server, beside Qt's: its errors, its key grabs and its event
/// queue have nothing to do with Qt's. Main thread only.
///
/// Errors are data: no request of this connection is fatal, and an error that nobody asked for is
/// dropped. After the server is gone every call returns at once with nothing.
class Connection {
  public:
    /// The connection, opened by the first call, which ends the process with status 1 and a line on
    /// standard error if there is no display. Stays open until the process ends.
    static Connection& shared();

    [[nodiscard]] xcb_connection_t* xcb() const { return connection_; }
    [[nodiscard]] xcb_window_t root() const { return screen_->root; }
    /// The screen as it was at the start.
    [[nodiscard]] const xcb_screen_t& screen() const { return *screen_; }
    /// The number n of the screen in `DISPLAY` (":0.n").
    [[nodiscard]] int screenNumber() const { return screenNumber_; }
    [[nodiscard]] xcb_atom_t atom(Atom name) const { return atoms_[name]; }

    /// The client that made a window, told by the part of the id that the server gave to it.
    [[nodiscard]] std::uint32_t clientOf(xcb_window_t window) const {
        return window & ~setup_->resource_id_mask;
    }
    /// What the server said about itself and this client at the start.
    [[nodiscard]] const xcb_setup_t& setup() const { return *setup_; }

    [[nodiscard]] bool isBroken() const { return xcb_connection_has_error(connection_) != 0; }

    using EventHandler = std::function<void(const xcb_generic_event_t&)>;
    /// Has every event from now on told to `handler`, which stays until the process ends.
    void subscribe(EventHandler handler);

    using Subscription = std::shared_ptr<const EventHandler>;
    /// As `subscribe`, but only for as long as the result is kept.
    [[nodiscard]] Subscription subscribeWhileKept(EventHandler handler);

    /// Has these events of the root window sent, beside those that were selected before.
    void selectOnRoot(std::uint32_t eventMask);

    /// Reads what has arrived and tells it to the subscribers. To be called when the connection is
    /// readable, and before answering from what events have told.
    void dispatchEvents();

    /// Ends a turn of the event loop; to be called before it waits. Sends what the turn has left in
    /// the buffer. Tells events too, because waiting for a reply moves them from the socket into
    /// xcb's queue, where no notifier sees them; answers whether there were any.
    bool finishTurn();

    /// Counts the turns of the event loop: what was read in an earlier turn is old.
    [[nodiscard]] std::uint64_t turn() const { return turn_; }

    /// Sends what is buffered. Requests without a reply wait in the buffer for this.
    void flush() { xcb_flush(connection_); }
    /// Sends what is buffered and waits until the server has done it. One round trip.
    void synchronize();

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

  private:
    Connection(xcb_connection_t* connection, int screenNumber);
    ~Connection() = default;
    static Connection* open();
    bool dispatchQueuedEvents();
    void dispatch(Reply<xcb_generic_event_t> event);

    xcb_connection_t* connection_;
    int screenNumber_;
    const xcb_setup_t* setup_;
    const xcb_screen_t* screen_;
    Atoms atoms_;
    std::list<std::weak_ptr<const EventHandler>> handlers_; ///< grows while it is walked
    std::vector<Subscription> lastingSubscriptions_;
    std::uint32_t rootEvents_ = XCB_EVENT_MASK_NO_EVENT;
    std::uint64_t turn_ = 0;
};

} // namespace platform::linux_host
