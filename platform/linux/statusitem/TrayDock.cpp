#include "platform/linux/statusitem/TrayDock.h"

#include "platform/linux/x11/Reply.h"

#include <algorithm>

namespace platform::linux_host {

namespace {

constexpr std::uint32_t allPlanes = ~0U;
constexpr std::int32_t leastLength = 8; // of a panel that anything could be seen in

using GeometryReply = Reply<xcb_get_geometry_reply_t>;

// The pixels of an image of the server, if it has them as Qt does: four bytes each, which is so for
// depths of 24 and 32.
QImage imageFrom(const xcb_get_image_reply_t& reply, const GeometryReply& geometry) {
    const int width = geometry->width;
    const int height = geometry->height;
    constexpr int bytesPerPixel = 4;
    if (xcb_get_image_data_length(&reply) != width * height * bytesPerPixel) {
        return {};
    }
    return QImage(xcb_get_image_data(&reply), width, height, QImage::Format_RGB32).copy();
}

PixelRect frameOf(Connection& connection, xcb_window_t window) {
    xcb_connection_t* const xcb = connection.xcb();
    const auto geometryCookie = xcb_get_geometry(xcb, window);
    const auto placeCookie = xcb_translate_coordinates(xcb, window, connection.root(), 0, 0);
    const GeometryReply geometry(xcb_get_geometry_reply(xcb, geometryCookie, nullptr));
    const Reply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(xcb, placeCookie, nullptr));
    if (!geometry || !place) {
        return {};
    }
    return {place->dst_x, place->dst_y, geometry->width, geometry->height};
}

xcb_window_t parentOf(Connection& connection, xcb_window_t window) {
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection.xcb(), xcb_query_tree(connection.xcb(), window), nullptr));
    return tree ? tree->parent : xcb_window_t{XCB_WINDOW_NONE};
}

// A tray that has still to lay its windows out leaves next to nothing to be seen, for a moment.
std::int32_t cutOff(std::int32_t length, std::int32_t visible) {
    return visible >= leastLength ? std::min(length, visible) : length;
}

} // namespace

TrayDock::TrayDock(Connection& connection, xcb_window_t window,
                   std::function<void(Change)> onChange)
    : connection_(connection), window_(window), onChange_(std::move(onChange)),
      events_(connection.subscribeWhileKept(
          [this](const xcb_generic_event_t& event) { handle(event); })) {
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_VISIBILITY_CHANGE;
    xcb_change_window_attributes(connection_.xcb(), window_, XCB_CW_EVENT_MASK, &events);
}

// A tray may give more than it has, trayer in height and xfce4-panel in width: the rest is cut off
// by the windows around.
PixelRect TrayDock::frame() const {
    PixelRect frame = frameOf(connection_, window_);
    for (xcb_window_t outer = parentOf(connection_, window_);
         outer != connection_.root() && outer != XCB_WINDOW_NONE;
         outer = parentOf(connection_, outer)) {
        const PixelRect around = frameOf(connection_, outer);
        frame.width = cutOff(frame.width, around.x + around.width - frame.x);
        frame.height = cutOff(frame.height, around.y + around.height - frame.y);
    }
    return frame;
}

// The server paints the ground by itself: that of the window around it, continued.
QImage TrayDock::readGround() const {
    xcb_connection_t* const xcb = connection_.xcb();
    const std::uint32_t continued = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    constexpr std::uint8_t withoutExposure = 0;
    const GeometryReply geometry(
        xcb_get_geometry_reply(xcb, xcb_get_geometry(xcb, window_), nullptr));
    if (!geometry) {
        return {};
    }
    xcb_change_window_attributes(xcb, window_, XCB_CW_BACK_PIXMAP, &continued);
    xcb_clear_area(xcb, withoutExposure, window_, 0, 0, 0, 0);
    const Reply<xcb_get_image_reply_t> image(
        xcb_get_image_reply(xcb,
                            xcb_get_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, 0, 0,
                                          geometry->width, geometry->height, allPlanes),
                            nullptr));
    return image ? imageFrom(*image, geometry) : QImage();
}

void TrayDock::handle(const xcb_generic_event_t& event) {
    constexpr int sentByClient = 0x80;
    switch (event.response_type & ~sentByClient) {
    case XCB_REPARENT_NOTIFY: {
        const auto& notice = reinterpret_cast<const xcb_reparent_notify_event_t&>(event);
        if (notice.window == window_) {
            setState(notice.parent == connection_.root() ? State::lost : State::docked);
        }
        return;
    }
    case XCB_DESTROY_NOTIFY:
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window_) {
            setState(State::lost);
        }
        return;
    case XCB_CONFIGURE_NOTIFY:
        if (reinterpret_cast<const xcb_configure_notify_event_t&>(event).window == window_) {
            onChange_(Change::size);
        }
        return;
    case XCB_VISIBILITY_NOTIFY:
        if (reinterpret_cast<const xcb_visibility_notify_event_t&>(event).window == window_) {
            onChange_(Change::ground);
        }
        return;
    default:
        return;
    }
}

void TrayDock::setState(State state) {
    state_ = state;
    onChange_(Change::state);
}

} // namespace platform::linux_host
