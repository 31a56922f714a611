#pragma once

#include "tests/desktop/support/Deadline.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace desktop {

/// A reply, event or error that xcb allocated.
struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

/// One client connection to an X server, and the few requests that everything here is made of.
/// Selecting events replaces what the same connection selected on that window before, so whoever
/// watches something has a connection of its own.
class XDisplay {
  public:
    /// Connects to a display such as ":7". Throws std::runtime_error when nobody answers there.
    explicit XDisplay(const std::string& name);

    [[nodiscard]] xcb_connection_t* connection() const { return connection_.get(); }
    [[nodiscard]] const xcb_screen_t& screen() const { return *screen_; }
    [[nodiscard]] xcb_window_t root() const { return screen_->root; }

    /// The window that has the keyboard; none, or the root, when no window has it.
    [[nodiscard]] xcb_window_t focus() const;

    /// The atom of a name; made if the server does not know it. Asked for once.
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const;

    /// The 32-bit values of a property; empty when it is absent or has another format.
    [[nodiscard]] std::vector<std::uint32_t> property(xcb_window_t window,
                                                      std::string_view name) const;
    /// The same property of many windows, in one round trip.
    [[nodiscard]] std::vector<std::vector<std::uint32_t>>
    properties(std::span<const xcb_window_t> windows, std::string_view name) const;
    /// The bytes of a text property.
    [[nodiscard]] std::string text(xcb_window_t window, std::string_view name) const;

    void setProperty(xcb_window_t window, std::string_view name, xcb_atom_t type,
                     std::span<const std::uint32_t> values) const;

    void setText(xcb_window_t window, std::string_view name, std::string_view text) const;

    /// Sends a 32-bit client message about `window` to the root, as window managers expect it.
    void messageToRoot(xcb_window_t window, std::string_view type,
                       std::span<const std::uint32_t> data) const;

    void selectEvents(xcb_window_t window, std::uint32_t mask) const;

    /// Waits for the next event; errors are events too. Throws `TimedOut`, naming `awaited`.
    [[nodiscard]] Reply<xcb_generic_event_t> nextEvent(const std::string& awaited,
                                                       const Deadline& deadline) const;

    /// An event that is already here; null when there is none.
    [[nodiscard]] Reply<xcb_generic_event_t> pendingEvent() const;

    void flush() const { xcb_flush(connection()); }

    /// Returns when the server has carried out everything that was asked before.
    void sync() const;

    /// The kind of an event, without the mark that another client sent it.
    static std::uint8_t kindOf(const xcb_generic_event_t& event);

  private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void requireConnection() const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    const xcb_screen_t* screen_ = nullptr;
    mutable std::map<std::string, xcb_atom_t, std::less<>> atoms_;
};

} // namespace desktop
