#include "tests/desktop/support/VirtualDesktop.h"

#include "tests/desktop/support/Windows.h"
#include "tests/desktop/support/XDisplay.h"

#include <stdexcept>

namespace desktop {
namespace {

namespace fs = std::filesystem;

fs::path withFolders(const fs::path& folder) {
    for (const char* const name :
         {"home/.config", "home/.local/share", "home/.local/state", "home/.cache", "run", "logs"}) {
        fs::create_directories(folder / name);
    }
    fs::permissions(folder / "run", fs::perms::owner_all); // the bus wants it to be private
    return folder / "logs" / "Xvfb";
}

// A manager is there when the window that the root names names itself in turn: after one was
// killed, the root goes on naming its window.
bool isManaged(const XDisplay& display) {
    constexpr auto check = "_NET_SUPPORTING_WM_CHECK";
    const auto named = display.property(display.root(), check);
    return !named.empty() && display.property(named.front(), check) == named;
}

} // namespace

VirtualDesktop::VirtualDesktop(WindowManager manager, ScreenSize size)
    : server_(size, withFolders(folder_.path())), environment_(makeEnvironment()) {
    startSessionBus();
    if (manager != WindowManager::none) {
        startWindowManager(manager);
    }
}

Environment VirtualDesktop::makeEnvironment() const {
    return {
        {"PATH", searchPath()},
        {"LANG", "C.UTF-8"},
        {"DISPLAY", display()},
        {"HOME", home()},
        {"XDG_CONFIG_HOME", configuration()},
        {"XDG_DATA_HOME", home() / ".local" / "share"},
        {"XDG_STATE_HOME", home() / ".local" / "state"},
        {"XDG_CACHE_HOME", home() / ".cache"},
        {"XDG_RUNTIME_DIR", folder_.path() / "run"},
        {"GSETTINGS_BACKEND", "keyfile"}, // files below the home folder rather than a service
        {"NO_AT_BRIDGE", "1"},            // no accessibility bus to start and wait for
    };
}

void VirtualDesktop::startSessionBus() {
    Channel channel;
    Command bus = command({"dbus-daemon", "--session", "--nofork", "--nopidfile",
                           "--print-address=" + std::to_string(channel.farEnd())});
    bus.inherited = {{channel.farEnd(), channel.farEnd()}};
    sessionBus_.emplace(bus);
    channel.closeFarEnd();
    environment_["DBUS_SESSION_BUS_ADDRESS"] = channel.nextLine();
}

Command VirtualDesktop::command(std::vector<std::string> arguments) const {
    const fs::path log = logs() / fs::path(arguments.front()).filename();
    return {.arguments = std::move(arguments), .environment = environment_, .output = log};
}

void VirtualDesktop::startWindowManager(WindowManager manager) {
    configure(manager, configuration());
    manager_.emplace(command(argumentsFor(manager)));
    const XDisplay display(this->display());
    const auto isReady = [&] {
        if (!manager_->isRunning()) {
            throw std::runtime_error(name(manager) + " ended while starting");
        }
        return isManaged(display);
    };
    waitUntil(isReady, "the window manager " + name(manager));
    Windows(this->display()).waitForManager();
}

void VirtualDesktop::endWindowManager(int signal) {
    manager_->end(signal);
    manager_.reset();
}

void VirtualDesktop::takePicture(const fs::path& pngFile) const {
    run(command({"import", "-window", "root", pngFile}));
}

} // namespace desktop
