#include "tests/desktop/support/ProgramWindows.h"

#include <algorithm>

namespace desktop {
namespace {

bool isOfTheProgram(const XDisplay& display, xcb_window_t window) {
    return display.text(window, "WM_CLASS").starts_with("quellbar");
}

Reply<xcb_get_window_attributes_reply_t> attributesOf(const XDisplay& display,
                                                      xcb_window_t window) {
    const auto cookie = xcb_get_window_attributes(display.connection(), window);
    return Reply<xcb_get_window_attributes_reply_t>(
        xcb_get_window_attributes_reply(display.connection(), cookie, nullptr));
}

Geometry frameOf(const XDisplay& display, xcb_window_t window) {
    const auto sizeCookie = xcb_get_geometry(display.connection(), window);
    const auto placeCookie =
        xcb_translate_coordinates(display.connection(), window, display.root(), 0, 0);
    const Reply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(display.connection(), sizeCookie, nullptr));
    const Reply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(display.connection(), placeCookie, nullptr));
    if (!size || !place) {
        return {.x = 0, .y = 0, .width = 0, .height = 0}; // gone meanwhile
    }
    return {.x = place->dst_x, .y = place->dst_y, .width = size->width, .height = size->height};
}

// What the windows around leave to be seen.
Geometry clipped(const Geometry& inner, const Geometry& outer) {
    const auto cut = [](int begin, int length, int outerBegin, int outerLength) {
        const int end = std::min(begin + length, outerBegin + outerLength);
        return static_cast<std::uint16_t>(std::max(0, end - std::max(begin, outerBegin)));
    };
    return {.x = std::max(inner.x, outer.x),
            .y = std::max(inner.y, outer.y),
            .width = cut(inner.x, inner.width, outer.x, outer.width),
            .height = cut(inner.y, inner.height, outer.y, outer.height)};
}

void collect(const XDisplay& display, xcb_window_t parent, const Geometry& around,
             std::vector<ProgramWindow>& found) {
    const auto cookie = xcb_query_tree(display.connection(), parent);
    const Reply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(display.connection(), cookie, nullptr));
    if (!reply) {
        return;
    }
    const auto* const children = xcb_query_tree_children(reply.get());
    for (int i = 0; i < xcb_query_tree_children_length(reply.get()); ++i) {
        const auto attributes = attributesOf(display, children[i]);
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE) {
            const Geometry frame = clipped(frameOf(display, children[i]), around);
            if (isOfTheProgram(display, children[i])) {
                found.push_back({children[i], parent, frame, attributes->override_redirect != 0});
            }
            collect(display, children[i], frame, found);
        }
    }
}

} // namespace

std::vector<ProgramWindow> programWindows(const XDisplay& display) {
    std::vector<ProgramWindow> found;
    collect(display, display.root(), frameOf(display, display.root()), found);
    return found;
}

bool saysItIs(const XDisplay& display, xcb_window_t window, std::string_view type) {
    const auto types = display.property(window, "_NET_WM_WINDOW_TYPE");
    return std::ranges::find(types, display.atom(type)) != types.end();
}

} // namespace desktop
