#include "platform/linux/files/Executable.h"

#include "platform/linux/files/XdgDirectories.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace platform::linux_host {
namespace {

namespace fs = std::filesystem;

bool isWithin(const fs::path& folder, const fs::path& file) {
    return std::ranges::mismatch(folder, file).in1 == folder.end();
}

bool isExecutable(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error) && ::access(file.c_str(), X_OK) == 0;
}

fs::path withoutLinks(const fs::path& file) {
    std::error_code error;
    return fs::weakly_canonical(file, error);
}

} // namespace

// The kernel marks the name of a file that has been replaced, as an upgrade does: the program will
// be found under the name itself again.
fs::path runningExecutable() {
    constexpr std::string_view mark = " (deleted)";
    std::error_code error;
    std::string file = fs::read_symlink("/proc/self/exe", error).string();
    if (file.ends_with(mark) && !fs::exists(file, error)) {
        file.resize(file.size() - mark.size());
    }
    return file;
}

fs::path ownExecutable() {
    const fs::path file = runningExecutable();
    // Programs that are started from within an AppImage inherit the variables of it.
    const fs::path image = absolutePathIn("APPIMAGE");
    const fs::path mountPoint = absolutePathIn("APPDIR");
    const bool isInImage =
        !image.empty() && !mountPoint.empty() && isWithin(withoutLinks(mountPoint), file);
    return withoutLinks(isInImage ? image : file);
}

fs::path findProgram(std::string_view program, std::string_view searchPath) {
    if (program.find('/') != std::string_view::npos) {
        return isExecutable(program) ? withoutLinks(program) : fs::path();
    }
    for (const fs::path& folder : absolutePathsIn(searchPath)) {
        if (const fs::path file = folder / program; isExecutable(file)) {
            return withoutLinks(file);
        }
    }
    return {};
}

fs::path commandFor(const fs::path& executable, std::string_view searchPath) {
    const fs::path name = executable.filename();
    return findProgram(name.native(), searchPath) == executable ? name : executable;
}

} // namespace platform::linux_host
