#include "platform/linux/power/InhibitorService.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>

namespace platform::linux_host {

namespace {

constexpr const char* program = "quellbar";

// Of GNOME's session manager and of the portal: not for idleness. Holding off the user's own
// suspending and logging out is another matter.
constexpr std::uint32_t idleOnly = 8;

int appendForSaver(sd_bus_message& call, const char* reason) {
    return sd_bus_message_append(&call, "ss", program, reason);
}

int appendForSessionManager(sd_bus_message& call, const char* reason) {
    constexpr std::uint32_t noWindow = 0;
    return sd_bus_message_append(&call, "susu", program, noWindow, reason, idleOnly);
}

int appendForLogind(sd_bus_message& call, const char* reason) {
    return sd_bus_message_append(&call, "ssss", "idle", "Quellbar", reason, "block");
}

int appendForPortal(sd_bus_message& call, const char* reason) {
    constexpr const char* noWindow = "";
    return sd_bus_message_append(&call, "sua{sv}", noWindow, idleOnly, 1, "reason", "s", reason);
}

constexpr InhibitorService saver(const char* name, const char* path) {
    return {BusType::session, name, path, nullptr, name, "UnInhibit", appendForSaver};
}

// The portal comes last: outside a sandbox it only passes the request on to those before it.
constexpr std::array services{
    InhibitorService{BusType::session, "org.gnome.SessionManager", "/org/gnome/SessionManager",
                     nullptr, "org.gnome.SessionManager", "Uninhibit", appendForSessionManager},
    InhibitorService{BusType::session, "org.freedesktop.ScreenSaver",
                     "/org/freedesktop/ScreenSaver", "/ScreenSaver", "org.freedesktop.ScreenSaver",
                     "UnInhibit", appendForSaver},
    InhibitorService{BusType::session, "org.freedesktop.PowerManagement",
                     "/org/freedesktop/PowerManagement/Inhibit", nullptr,
                     "org.freedesktop.PowerManagement.Inhibit", "UnInhibit", appendForSaver},
    saver("org.mate.ScreenSaver", "/org/mate/ScreenSaver"),
    saver("org.xfce.ScreenSaver", "/org/xfce/ScreenSaver"),
    saver("org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"),
    InhibitorService{BusType::system, "org.freedesktop.login1", "/org/freedesktop/login1", nullptr,
                     "org.freedesktop.login1.Manager", nullptr, appendForLogind},
    InhibitorService{BusType::session, "org.freedesktop.portal.Desktop",
                     "/org/freedesktop/portal/desktop", nullptr, "org.freedesktop.portal.Inhibit",
                     nullptr, appendForPortal},
};

bool isInSandbox() {
    std::error_code error;
    return std::filesystem::exists("/.flatpak-info", error) || std::getenv("SNAP") != nullptr;
}

} // namespace

std::span<const InhibitorService> inhibitorServices() {
    const std::span<const InhibitorService> all(services);
    return isInSandbox() ? all : all.first(all.size() - 1);
}

} // namespace platform::linux_host
