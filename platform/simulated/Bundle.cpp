#include "platform/Bundle.h"

#include "platform/simulated/Desktop.h"

namespace platform {

using simulated::desktop;

// The main bundle has no folder here: where it is installed is the desktop's to say.
struct Bundle::Peer {
    std::optional<std::filesystem::path> path;
};

Bundle::Bundle(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}
Bundle::~Bundle() = default;

Bundle& Bundle::main() {
    static auto* const bundle = new Bundle(std::make_unique<Peer>());
    return *bundle;
}

std::shared_ptr<Bundle> Bundle::withPath(const std::filesystem::path& path) {
    desktop().calls.record("Bundle::withPath", {path.string()});
    if (!desktop().files.isFolder(path)) {
        return nullptr;
    }
    return std::make_shared<Bundle>(std::make_unique<Peer>(Peer{path}));
}

std::string_view Bundle::bundleIdentifier() const {
    return peer_->path ? std::string_view() : desktop().bundle.identifier;
}

std::filesystem::path Bundle::bundlePath() const {
    return peer_->path.value_or(desktop().bundle.path);
}

std::shared_ptr<Image> Bundle::imageForResource(std::string_view name) const {
    desktop().calls.record("imageForResource", {name});
    return simulated::loadImage(bundlePath() / (std::string(name) + ".png"));
}

std::optional<std::filesystem::path> Bundle::fileForResource(std::string_view name,
                                                             std::string_view extension,
                                                             std::string_view subdirectory) const {
    const auto file = std::string(name).append(".").append(extension);
    desktop().calls.record("fileForResource", {file, subdirectory});
    const auto path =
        subdirectory.empty() ? bundlePath() / file : bundlePath() / subdirectory / file;
    return desktop().files.contains(path) ? std::optional(path) : std::nullopt;
}

} // namespace platform
