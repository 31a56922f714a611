#pragma once

#include "platform/linux/x11/Atoms.h"
#include "platform/linux/x11/Reply.h"

#include <cstdint>
#include <span>
#include <string>
#include <utility>

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

/// A property that has been asked for. Ask for everything first and read afterwards, in the order
/// of asking: then all the answers together cost one round trip. What is not read is dropped.
class PropertyRequest {
  public:
    PropertyRequest(Connection& connection, xcb_window_t window, xcb_atom_t name, xcb_atom_t type);
    PropertyRequest(PropertyRequest&& other) noexcept
        : connection_(other.connection_), cookie_(std::exchange(other.cookie_, {})) {}
    PropertyRequest& operator=(PropertyRequest&& other) noexcept {
        std::swap(connection_, other.connection_);
        std::swap(cookie_, other.cookie_);
        return *this;
    }
    PropertyRequest(const PropertyRequest&) = delete;
    PropertyRequest& operator=(const PropertyRequest&) = delete;
    ~PropertyRequest();

    [[nodiscard]] PropertyItems readItems();
    /// The value of a text property; empty under the same conditions.
    [[nodiscard]] std::string readText();

  private:
    [[nodiscard]] Reply<xcb_get_property_reply_t> read(std::uint8_t format);

    xcb_connection_t* connection_;
    xcb_get_property_cookie_t cookie_; ///< sequence 0: answered, or moved from
};

} // namespace platform::linux_host
