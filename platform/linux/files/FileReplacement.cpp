#include "platform/linux/files/FileReplacement.h"

#include "platform/linux/files/SystemError.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace platform::linux_host {
namespace {

namespace fs = std::filesystem;

void writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        check(written >= 0 || errno == EINTR);
        content.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
}

bool isTaken(const fs::path& path) {
    return fs::symlink_status(path).type() != fs::file_type::not_found;
}

} // namespace

fs::path linkTarget(fs::path path) {
    constexpr int mostLinks = 40; // as the kernel; a circle of links is refused by whoever opens it
    for (int count = 0; count < mostLinks && fs::is_symlink(fs::symlink_status(path)); ++count) {
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

void createFolders(const fs::path& folder) {
    constexpr mode_t forTheUserAlone = 0700;
    if (::mkdir(folder.c_str(), forTheUserAlone) == 0 || errno == EEXIST) {
        return;
    }
    check(errno == ENOENT && folder.has_relative_path());
    createFolders(folder.parent_path());
    check(::mkdir(folder.c_str(), forTheUserAlone) == 0 || errno == EEXIST);
}

void setAside(const fs::path& file) {
    fs::path aside = file;
    aside += ".bad";
    for (int number = 2; isTaken(aside); ++number) {
        aside = file;
        aside += ".bad." + std::to_string(number);
    }
    check(::rename(file.c_str(), aside.c_str()) == 0 || errno == ENOENT);
}

FileReplacement::FileReplacement(fs::path destination)
    : destination_(std::move(destination)), temporary_(destination_.native() + ".XXXXXX"),
      descriptor_(::mkostemp(temporary_.data(), O_CLOEXEC)) {
    check(static_cast<bool>(descriptor_));
}

FileReplacement::~FileReplacement() {
    if (!temporary_.empty()) {
        ::unlink(temporary_.c_str());
    }
}

void FileReplacement::write(std::string_view content) const {
    // The umask may take away even the user's own access, and some file systems know no modes.
    ::fchmod(descriptor_.get(), S_IRUSR | S_IWUSR);
    writeAll(descriptor_.get(), content);
    check(::fsync(descriptor_.get()) == 0);
}

struct stat FileReplacement::status() const {
    struct stat status {};
    check(::fstat(descriptor_.get(), &status) == 0);
    return status;
}

void FileReplacement::commit() {
    check(::rename(temporary_.c_str(), destination_.c_str()) == 0);
    temporary_.clear();
}

} // namespace platform::linux_host
