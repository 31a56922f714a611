#include "platform/Bundle.h"

#include "platform/linux/application/ApplicationId.h"
#include "platform/linux/files/Executable.h"

#include <string>

namespace platform {

namespace fs = std::filesystem;

struct Bundle::Peer {
    fs::path path;
    std::string_view identifier;
};

Bundle::Bundle(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Bundle::~Bundle() = default;

Bundle& Bundle::main() {
    // Never destroyed: it may be asked for until the process ends.
    static auto* const instance = new Bundle(
        std::make_unique<Peer>(Peer{.path = linux_host::runningExecutable().parent_path(),
                                    .identifier = linux_host::applicationId}));
    return *instance;
}

std::shared_ptr<Bundle> Bundle::withPath(const fs::path& path) {
    std::error_code error;
    const fs::path folder = fs::absolute(path, error);
    if (!fs::is_directory(folder, error)) {
        return nullptr;
    }
    return std::make_shared<Bundle>(std::make_unique<Peer>(Peer{.path = folder, .identifier = {}}));
}

std::string_view Bundle::bundleIdentifier() const {
    return peer_->identifier;
}

fs::path Bundle::bundlePath() const {
    return peer_->path;
}

// There is no look-up by name on Linux but that of icon themes, which know nothing of a program's
// folder: a picture of that name lies there, or it does not.
std::shared_ptr<Image> Bundle::imageForResource(std::string_view name) const {
    const auto file = fileForResource(name, "png");
    return file ? Image::withContentsOfFile(*file) : nullptr;
}

std::optional<fs::path> Bundle::fileForResource(std::string_view name, std::string_view extension,
                                                std::string_view subdirectory) const {
    fs::path file = peer_->path / subdirectory / name;
    file += ".";
    file += extension;
    std::error_code error;
    return fs::is_regular_file(file, error) ? std::optional(file) : std::nullopt;
}

} // namespace platform
