#include "tests/desktop/support/Windows.h"

#include <algorithm>
#include <array>

namespace desktop {
namespace {

constexpr auto stateProperty = "_NET_WM_STATE";
constexpr auto hiddenState = "_NET_WM_STATE_HIDDEN";
constexpr auto clientListProperty = "_NET_CLIENT_LIST";
constexpr std::uint32_t iconicState = 3;  // of WM_CHANGE_STATE
constexpr std::uint32_t fromATaskBar = 2; // source indication of _NET_ACTIVE_WINDOW

} // namespace

Windows::Windows(const std::string& display) : display_(display) {}

std::vector<xcb_window_t> Windows::managed() const {
    return display_.property(display_.root(), clientListProperty);
}

bool Windows::isHidden(xcb_window_t window) const {
    return hasState(window, hiddenState);
}

bool Windows::hasState(xcb_window_t window, std::string_view state) const {
    return containsState(state)(display_.property(window, stateProperty));
}

bool Windows::exists(xcb_window_t window) const {
    const auto cookie = xcb_get_geometry(display_.connection(), window);
    const Reply<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(display_.connection(), cookie, nullptr));
    return reply != nullptr;
}

bool Windows::isOnScreen(xcb_window_t window) const {
    const auto cookie = xcb_get_window_attributes(display_.connection(), window);
    const Reply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(display_.connection(), cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

std::uint32_t Windows::currentDesktop() const {
    const auto value = display_.property(display_.root(), "_NET_CURRENT_DESKTOP");
    return value.empty() ? 0 : value.front();
}

std::string Windows::title(xcb_window_t window) const {
    const std::string title = display_.text(window, "_NET_WM_NAME");
    return title.empty() ? display_.text(window, "WM_NAME") : title;
}

// Two names, each with a zero after it: the instance and the class.
std::string Windows::application(xcb_window_t window) const {
    const std::string names = display_.text(window, "WM_CLASS");
    const auto instanceEnd = names.find('\0');
    return instanceEnd == std::string::npos ? names : names.substr(instanceEnd + 1).c_str();
}

bool Windows::hasType(xcb_window_t window, WindowType type) const {
    const auto types = display_.property(window, "_NET_WM_WINDOW_TYPE");
    return std::ranges::find(types, display_.atom(atomName(type))) != types.end();
}

void Windows::waitUntilManaged(std::span<const xcb_window_t> windows) const {
    const xcb_window_t root = display_.root();
    const auto listsAll = [&](const std::vector<std::uint32_t>& list) {
        const std::set<xcb_window_t> listed(list.begin(), list.end());
        return std::ranges::all_of(windows, [&](auto window) { return listed.contains(window); });
    };
    waitForProperty({&root, 1}, clientListProperty, listsAll, "windows in the manager's list");
}

void Windows::waitUntilHidden(std::span<const xcb_window_t> windows) const {
    waitForProperty(windows, stateProperty, containsState(hiddenState), "hiding");
}

void Windows::waitUntilShown(std::span<const xcb_window_t> windows) const {
    waitForProperty(windows, stateProperty, std::not_fn(containsState(hiddenState)), "showing");
}

void Windows::waitUntilGone(std::span<const xcb_window_t> windows) const {
    const xcb_window_t root = display_.root();
    const auto listsNone = [&](const std::vector<std::uint32_t>& list) {
        const std::set<xcb_window_t> listed(list.begin(), list.end());
        return std::ranges::none_of(windows, [&](auto window) { return listed.contains(window); });
    };
    waitForProperty({&root, 1}, clientListProperty, listsNone, "windows to leave the list");
}

void Windows::minimize(xcb_window_t window) const {
    display_.messageToRoot(window, "WM_CHANGE_STATE", std::array{iconicState});
}

void Windows::restore(xcb_window_t window) const {
    display_.messageToRoot(window, "_NET_ACTIVE_WINDOW", std::array{fromATaskBar});
}

void Windows::move(xcb_window_t window, int x, int y) const {
    const std::array position{static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)};
    xcb_configure_window(display_.connection(), window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                         position.data());
    display_.flush();
}

// Asks again and again: openbox forgets what it is asked between its announcement and the end of
// its start.
void Windows::waitForManager() const {
    const xcb_window_t window = createPlainWindow();
    const auto isTaken = [&] {
        xcb_map_window(display_.connection(), window);
        const auto taken = managed();
        return std::ranges::find(taken, window) != taken.end();
    };
    waitUntil(isTaken, "the window manager to take a window");
    destroy(window);
}

void Windows::settle() const {
    const xcb_window_t window = createPlainWindow();
    xcb_map_window(display_.connection(), window);
    waitUntilManaged(window);
    minimize(window);
    waitUntilHidden(window);
    destroy(window);
}

void Windows::destroy(xcb_window_t window) const {
    xcb_destroy_window(display_.connection(), window);
    waitUntilGone(window);
}

xcb_window_t Windows::createPlainWindow() const {
    xcb_connection_t* const connection = display_.connection();
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, display_.root(), 0, 0, 50, 50, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

void Windows::waitForProperty(std::span<const xcb_window_t> windows, std::string_view property,
                              const Condition& isMet, const std::string& awaited) const {
    const Deadline deadline;
    std::set<xcb_window_t> waiting = watch(windows, property, isMet);
    try {
        while (!waiting.empty()) {
            const xcb_window_t changed = nextChange(awaited, deadline);
            if (waiting.contains(changed) && isMet(display_.property(changed, property))) {
                waiting.erase(changed);
            }
        }
    } catch (const TimedOut&) {
        throw TimedOut(awaited + ":" + listed(std::vector(waiting.begin(), waiting.end())));
    }
}

// Selects first and reads then: a change in between is seen twice rather than not at all.
std::set<xcb_window_t> Windows::watch(std::span<const xcb_window_t> windows,
                                      std::string_view property, const Condition& isMet) const {
    for (const xcb_window_t window : windows) {
        display_.selectEvents(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    }
    const auto values = display_.properties(windows, property);
    std::set<xcb_window_t> unmet;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        if (!isMet(values[i])) {
            unmet.insert(windows[i]);
        }
    }
    return unmet;
}

xcb_window_t Windows::nextChange(const std::string& awaited, const Deadline& deadline) const {
    while (true) {
        const auto event = display_.nextEvent(awaited, deadline);
        if (XDisplay::kindOf(*event) == XCB_PROPERTY_NOTIFY) {
            return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->window;
        }
    }
}

Windows::Condition Windows::containsState(std::string_view state) const {
    return [wanted = display_.atom(state)](const std::vector<std::uint32_t>& states) {
        return std::ranges::find(states, wanted) != states.end();
    };
}

} // namespace desktop
