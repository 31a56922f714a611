#pragma once

#include "platform/linux/Atoms.h"
#include "platform/linux/Reply.h"

#include <cstdint>
#include <span>
#include <string>

namespace platform::linux_host {

class Connection;

/// The items of a list property (atoms, windows or numbers), as the server sent them. Empty when
/// the window is gone or has no such property, or when the property is of another type.
class PropertyItems {
  public:
    explicit PropertyItems(Reply<xcb_get_property_reply_t> reply) : reply_(std::move(reply)) {}

    [[nodiscard]] std::span<const std::uint32_t> items() const;
    [[nodiscard]] bool contains(std::uint32_t item) const;
    /// Whether there is such a property at all, be it empty.
    [[nodiscard]] bool exists() const { return reply_ && reply_->type != XCB_ATOM_NONE; }

  private:
    Reply<xcb_get_property_reply_t> reply_;
};

/// A property that has been asked for. Ask for everything first and read afterwards: then all the
/// answers together cost one round trip. Each request has to be read once.
class PropertyRequest {
  public:
    PropertyRequest(Connection& connection, xcb_window_t window, xcb_atom_t name, xcb_atom_t type);

    [[nodiscard]] PropertyItems readItems() const;
    /// The value of a text property; empty under the same conditions.
    [[nodiscard]] std::string readText() const;

  private:
    [[nodiscard]] Reply<xcb_get_property_reply_t> read(std::uint8_t format) const;

    xcb_connection_t* connection_;
    xcb_get_property_cookie_t cookie_;
};

} // namespace platform::linux_host
