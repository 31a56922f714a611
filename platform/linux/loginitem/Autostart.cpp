#include "platform/linux/loginitem/Autostart.h"

#include "platform/linux/application/ApplicationId.h"
#include "platform/linux/files/Executable.h"
#include "platform/linux/files/FileContent.h"
#include "platform/linux/files/FileReplacement.h"
#include "platform/linux/files/XdgDirectories.h"
#include "platform/linux/loginitem/DesktopEntry.h"
#include "platform/linux/loginitem/ExecKey.h"

#include <algorithm>
#include <stdexcept>

namespace platform::linux_host {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostBytes = 65'536; // of an entry that is looked at

// No OnlyShowIn, so that every desktop heeds it. Version 1.4 is the newest that Debian 12's
// validator knows.
constexpr std::string_view fixedKeys = R"([Desktop Entry]
Type=Application
Version=1.4
Name=Quellbar
Comment=Minimize all windows, keep the display awake
Terminal=false
Categories=Utility;
StartupNotify=false
X-GNOME-Autostart-enabled=true
X-KDE-autostart-after=panel
)";

const std::string& fileName() {
    static const std::string name = std::string(applicationId) + ".desktop";
    return name;
}

// A file that cannot be read says nothing to a desktop either.
std::optional<DesktopEntry> readEntry(const fs::path& file) {
    try {
        return DesktopEntry(readFile(file, mostBytes).text);
    } catch (const std::system_error&) {
        return std::nullopt;
    }
}

// Only Hidden turns an entry off everywhere, but GNOME's settings use a key of their own.
bool isTurnedOff(const DesktopEntry& entry) {
    return entry.has("Hidden", "true") || entry.has("X-GNOME-Autostart-enabled", "false");
}

bool isOrCanBecomeFolder(fs::path path) {
    std::error_code error;
    while (!fs::exists(path, error) && path.has_relative_path()) {
        path = path.parent_path();
    }
    return fs::is_directory(path, error);
}

} // namespace

AutostartFolders autostartFolders() {
    AutostartFolders folders;
    if (const fs::path home = configHome(); !home.empty()) {
        folders.user = home / "autostart";
    }
    for (const fs::path& folder : configDirectories()) {
        folders.system.push_back(folder / "autostart");
    }
    return folders;
}

LoginItemStatus Autostart::status() const {
    if (folders_.user.empty() || !isOrCanBecomeFolder(folders_.user)) {
        return LoginItemStatus::notFound;
    }
    const auto entry = effectiveEntry();
    if (!entry) {
        return LoginItemStatus::notRegistered;
    }
    if (isTurnedOff(*entry)) {
        return LoginItemStatus::requiresApproval;
    }
    return startsThisProgram(*entry) ? LoginItemStatus::enabled : LoginItemStatus::notRegistered;
}

void Autostart::enable() const {
    if (!canBeExec(commandFor(launcher_.executable, launcher_.searchPath).native())) {
        throw std::runtime_error("the path of the program cannot be written in an autostart entry");
    }
    write(text());
}

void Autostart::disable() const {
    if (isThereForAllUsers()) {
        write(text() + "Hidden=true\n");
    } else {
        fs::remove(userFile());
    }
}

fs::path Autostart::userFile() const {
    return folders_.user / fileName();
}

std::optional<DesktopEntry> Autostart::effectiveEntry() const {
    auto entry = readEntry(userFile());
    for (auto folder = folders_.system.begin(); !entry && folder != folders_.system.end();
         ++folder) {
        entry = readEntry(*folder / fileName());
    }
    return entry;
}

bool Autostart::startsThisProgram(const DesktopEntry& entry) const {
    const std::string program = programOf(entry.string("Exec").value_or(""));
    return !program.empty() && findProgram(program, launcher_.searchPath) == launcher_.executable;
}

bool Autostart::isThereForAllUsers() const {
    return std::ranges::any_of(folders_.system, [](const fs::path& folder) {
        std::error_code error;
        return fs::exists(folder / fileName(), error);
    });
}

// Quoted always: a path with a blank and no quotes passes for valid, and starts something else.
std::string Autostart::text() const {
    const std::string command = commandFor(launcher_.executable, launcher_.searchPath).string();
    std::string text(fixedKeys);
    text.append("Icon=").append(applicationId).append("\n");
    text.append("Exec=\"").append(command).append("\"\n");
    text.append("TryExec=").append(command).append("\n");
    return text;
}

void Autostart::write(const std::string& text) const {
    createFolders(folders_.user);
    FileReplacement file(userFile());
    file.write(text);
    file.commit();
}

} // namespace platform::linux_host
