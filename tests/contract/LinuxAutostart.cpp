#include "contract/LinuxAutostart.h"

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace contract {
namespace {

constexpr auto entryName = "io.github.quellbar.Quellbar.desktop";

std::string contents(const fs::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

LinuxAutostart::LinuxAutostart(fs::path configuration, fs::path allUsers)
    : user_(std::move(configuration) / "autostart"), allUsers_(std::move(allUsers) / "autostart") {}

bool LinuxAutostart::startsThisProgram() const {
    const std::string entry = effectiveEntry();
    const std::string program = fs::canonical("/proc/self/exe").string();
    return entry.find("Exec=\"" + program + "\"\n") != std::string::npos &&
           entry.find("Hidden=true") == std::string::npos;
}

void LinuxAutostart::turnOff() const {
    std::ofstream(user_ / entryName, std::ios::app) << "Hidden=true\n";
}

// There no file can be made. What is for all users can be overruled by a file of the user's alone.
void LinuxAutostart::lose() const {
    if (fs::exists(user_)) {
        fs::create_directories(allUsers_);
        fs::rename(user_ / entryName, allUsers_ / entryName);
        fs::remove(user_);
    }
    fs::create_directories(user_.parent_path());
    fs::create_directory_symlink("/proc/self", user_);
}

std::string LinuxAutostart::effectiveEntry() const {
    const fs::path own = user_ / entryName;
    return contents(fs::exists(own) ? own : allUsers_ / entryName);
}

} // namespace contract
