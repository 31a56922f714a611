#include "platform/LoginItem.h"

#include "platform/linux/application/LaunchPhase.h"
#include "platform/linux/files/Executable.h"
#include "platform/linux/loginitem/Autostart.h"

#include <cstdlib>
#include <functional>
#include <system_error>

namespace platform {

using linux_host::Autostart;

namespace {

Autostart autostart() {
    const char* const searchPath = std::getenv("PATH");
    return {linux_host::autostartFolders(),
            {.executable = linux_host::ownExecutable(),
             .searchPath = searchPath != nullptr ? searchPath : ""}};
}

std::optional<LoginItemError> change(void (Autostart::*operation)() const) {
    const Autostart item = autostart();
    try {
        std::invoke(operation, item);
        return std::nullopt;
    } catch (const std::system_error& error) {
        return LoginItemError{item.userFile().string() + ": " + error.code().message()};
    } catch (const std::runtime_error& error) {
        return LoginItemError{error.what()};
    }
}

} // namespace

LoginItemStatus loginItemStatus() {
    return autostart().status();
}

// What the user has turned off in the desktop's settings stays off unless the user asks for it
// here.
std::optional<LoginItemError> registerLoginItem() {
    switch (loginItemStatus()) {
    case LoginItemStatus::notFound:
        return LoginItemError{"there is no folder for autostart entries"};
    case LoginItemStatus::requiresApproval:
        if (linux_host::isLaunching()) {
            return LoginItemError{"turned off in the desktop's autostart settings"};
        }
        break;
    case LoginItemStatus::notRegistered:
    case LoginItemStatus::enabled:
        break;
    }
    return change(&Autostart::enable);
}

std::optional<LoginItemError> unregisterLoginItem() {
    return change(&Autostart::disable);
}

} // namespace platform
