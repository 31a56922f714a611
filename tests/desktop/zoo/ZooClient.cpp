#include "tests/desktop/zoo/ZooClient.h"

#include <unistd.h>

#include <algorithm>
#include <array>

namespace desktop {
namespace {

// WM_STATE and WM_HINTS, as the Inter-Client Communication Conventions number them.
constexpr std::uint32_t normalState = 1;
constexpr std::uint32_t iconicState = 3;
constexpr std::uint32_t inputAndStateHint = 1U | 2U;
constexpr std::uint32_t userPositionAndSize = 1U | 2U;

// _MOTIF_WM_HINTS: the functions resize, move, maximize and close, but not minimize.
constexpr std::uint32_t hasFunctions = 1;
constexpr std::uint32_t allButMinimize = 2U | 4U | 16U | 32U;

constexpr std::uint32_t paper = 0xE8E4DA;

} // namespace

int ZooClient::descriptor() const {
    return xcb_get_file_descriptor(display_.connection());
}

xcb_window_t ZooClient::open(const WindowSpec& spec) {
    const xcb_window_t window = create(spec);
    name(window, spec);
    hint(window, spec);
    classify(window, spec);
    xcb_map_window(display_.connection(), window);
    windows_.push_back(window);
    return window;
}

bool ZooClient::owns(xcb_window_t window) const {
    return std::ranges::find(windows_, window) != windows_.end();
}

void ZooClient::destroy(xcb_window_t window) const {
    xcb_destroy_window(display_.connection(), window);
    display_.flush();
}

bool ZooClient::dispatch(const std::function<void(xcb_window_t)>& onMinimized) const {
    bool anyCame = false;
    while (const auto event = display_.pendingEvent()) {
        anyCame = true;
        if (saysMinimized(*event)) {
            onMinimized(reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->window);
        }
    }
    return anyCame;
}

xcb_window_t ZooClient::create(const WindowSpec& spec) const {
    const xcb_window_t window = xcb_generate_id(display_.connection());
    const auto& [x, y, width, height] = spec.geometry;
    const std::array<std::uint32_t, 3> values{paper, spec.isManaged ? 0U : 1U,
                                              XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(display_.connection(), XCB_COPY_FROM_PARENT, window, display_.root(), x, y,
                      width, height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK,
                      values.data());
    return window;
}

void ZooClient::name(xcb_window_t window, const WindowSpec& spec) const {
    using namespace std::string_view_literals;
    display_.setText(window, "WM_NAME", spec.title);
    display_.setText(window, "_NET_WM_NAME", spec.title);
    display_.setText(window, "WM_CLASS", "window_zoo\0Window_zoo\0"sv);
    if (spec.tellsPid) {
        const auto pid = static_cast<std::uint32_t>(getpid());
        display_.setProperty(window, "_NET_WM_PID", XCB_ATOM_CARDINAL, {&pid, 1});
    }
}

void ZooClient::hint(xcb_window_t window, const WindowSpec& spec) const {
    const std::array<std::uint32_t, 9> hints{inputAndStateHint, 1,
                                             spec.startsMinimized ? iconicState : normalState};
    display_.setProperty(window, "WM_HINTS", XCB_ATOM_WM_HINTS, hints);
    const std::array<std::uint32_t, 18> sizes{userPositionAndSize};
    display_.setProperty(window, "WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, sizes);
    if (!spec.canBeMinimized) {
        const std::array<std::uint32_t, 5> motif{hasFunctions, allButMinimize};
        display_.setProperty(window, "_MOTIF_WM_HINTS", display_.atom("_MOTIF_WM_HINTS"), motif);
    }
}

void ZooClient::classify(xcb_window_t window, const WindowSpec& spec) const {
    setAtom(window, "_NET_WM_WINDOW_TYPE", atomName(spec.type));
    setAtom(window, "_NET_WM_STATE", atomName(spec.state));
    if (spec.transientFor != XCB_NONE) {
        display_.setProperty(window, "WM_TRANSIENT_FOR", XCB_ATOM_WINDOW, {&spec.transientFor, 1});
    }
    if (spec.desktop) {
        display_.setProperty(window, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, {&*spec.desktop, 1});
    }
}

void ZooClient::setAtom(xcb_window_t window, std::string_view property,
                        std::string_view value) const {
    if (!value.empty()) {
        const xcb_atom_t atom = display_.atom(value);
        display_.setProperty(window, property, XCB_ATOM_ATOM, {&atom, 1});
    }
}

bool ZooClient::saysMinimized(const xcb_generic_event_t& event) const {
    if (XDisplay::kindOf(event) != XCB_PROPERTY_NOTIFY) {
        return false;
    }
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.atom != display_.atom("WM_STATE")) {
        return false;
    }
    const auto state = display_.property(change.window, "WM_STATE");
    return !state.empty() && state.front() == iconicState;
}

} // namespace desktop
