#include "tests/desktop/support/WindowSpec.h"

#include <istream>
#include <ostream>

namespace desktop {
namespace {

constexpr std::int64_t currentDesktop = -1;

template <typename Enum>
void readEnum(std::istream& stream, Enum& value) {
    int number = 0;
    stream >> number;
    value = static_cast<Enum>(number);
}

void readDesktop(std::istream& stream, std::optional<std::uint32_t>& desktop) {
    std::int64_t number = currentDesktop;
    stream >> number;
    desktop.reset();
    if (number != currentDesktop) {
        desktop = static_cast<std::uint32_t>(number);
    }
}

} // namespace

std::string_view atomName(WindowType type) {
    switch (type) {
    case WindowType::unsaid:
        return {};
    case WindowType::normal:
        return "_NET_WM_WINDOW_TYPE_NORMAL";
    case WindowType::dialog:
        return "_NET_WM_WINDOW_TYPE_DIALOG";
    case WindowType::utility:
        return "_NET_WM_WINDOW_TYPE_UTILITY";
    case WindowType::dock:
        return "_NET_WM_WINDOW_TYPE_DOCK";
    case WindowType::desktop:
        return "_NET_WM_WINDOW_TYPE_DESKTOP";
    case WindowType::splash:
        return "_NET_WM_WINDOW_TYPE_SPLASH";
    case WindowType::toolbar:
        return "_NET_WM_WINDOW_TYPE_TOOLBAR";
    case WindowType::menu:
        return "_NET_WM_WINDOW_TYPE_MENU";
    case WindowType::notification:
        return "_NET_WM_WINDOW_TYPE_NOTIFICATION";
    }
    return {};
}

std::string_view atomName(WindowState state) {
    switch (state) {
    case WindowState::none:
        return {};
    case WindowState::skipTaskbar:
        return "_NET_WM_STATE_SKIP_TASKBAR";
    case WindowState::fullscreen:
        return "_NET_WM_STATE_FULLSCREEN";
    case WindowState::above:
        return "_NET_WM_STATE_ABOVE";
    case WindowState::sticky:
        return "_NET_WM_STATE_STICKY";
    case WindowState::maximized:
        return "_NET_WM_STATE_MAXIMIZED_VERT";
    }
    return {};
}

std::string listed(std::span<const xcb_window_t> windows) {
    std::string text;
    for (const xcb_window_t window : windows) {
        text += ' ';
        text += std::to_string(window);
    }
    return text;
}

std::ostream& operator<<(std::ostream& stream, const WindowSpec& spec) {
    const auto& [x, y, width, height] = spec.geometry;
    return stream << spec.title << ' ' << static_cast<int>(spec.type) << ' '
                  << static_cast<int>(spec.state) << ' ' << spec.transientFor << ' '
                  << (spec.desktop ? std::int64_t{*spec.desktop} : currentDesktop) << ' ' << x
                  << ' ' << y << ' ' << width << ' ' << height << ' ' << spec.startsMinimized << ' '
                  << spec.canBeMinimized << ' ' << spec.isManaged << ' ' << spec.tellsPid << ' '
                  << spec.client;
}

std::istream& operator>>(std::istream& stream, WindowSpec& spec) {
    stream >> spec.title;
    readEnum(stream, spec.type);
    readEnum(stream, spec.state);
    stream >> spec.transientFor;
    readDesktop(stream, spec.desktop);
    auto& [x, y, width, height] = spec.geometry;
    stream >> x >> y >> width >> height;
    return stream >> spec.startsMinimized >> spec.canBeMinimized >> spec.isManaged >>
           spec.tellsPid >> spec.client;
}

} // namespace desktop
