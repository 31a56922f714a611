#include "platform/linux/x11/Properties.h"

#include "platform/linux/x11/Connection.h"

#include <algorithm>

namespace platform::linux_host {

namespace {

constexpr std::uint8_t keep = 0; // the request's "delete"
constexpr std::uint32_t wholeValue = UINT32_MAX / 4;

} // namespace

std::span<const std::uint32_t> PropertyItems::items() const {
    if (!reply_) {
        return {};
    }
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(reply_.get())),
            reply_->value_len};
}

bool PropertyItems::contains(std::uint32_t item) const {
    const auto all = items();
    return std::find(all.begin(), all.end(), item) != all.end();
}

PropertyRequest::PropertyRequest(Connection& connection, xcb_window_t window, xcb_atom_t name,
                                 xcb_atom_t type)
    : connection_(connection.xcb()),
      cookie_(xcb_get_property(connection_, keep, window, name, type, 0, wholeValue)) {}

PropertyRequest::~PropertyRequest() {
    if (cookie_.sequence != 0) {
        xcb_discard_reply(connection_, cookie_.sequence);
    }
}

Reply<xcb_get_property_reply_t> PropertyRequest::read(std::uint8_t format) {
    const auto cookie = std::exchange(cookie_, {});
    Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, cookie, nullptr));
    if (reply && reply->format != format) {
        reply.reset();
    }
    return reply;
}

PropertyItems PropertyRequest::readItems() {
    return PropertyItems(read(32));
}

std::string PropertyRequest::readText() {
    const auto reply = read(8);
    if (!reply) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len};
}

} // namespace platform::linux_host
