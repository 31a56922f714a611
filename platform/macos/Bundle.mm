#include "platform/Bundle.h"

#include "platform/macos/Conversions.h"
#include "platform/macos/ImagePeer.h"

namespace platform {

using macos::Object;

struct Bundle::Peer {
    explicit Peer(Object<NSBundle*> opened)
        : bundle(std::move(opened)),
          identifier(macos::nsStringToString(bundle.get().bundleIdentifier)) {}

    Object<NSBundle*> bundle;
    std::string identifier; // kept, because the seam lends it out
};

namespace {

NSURL* resourceURL(NSBundle* bundle, NSString* name, NSString* extension,
                   std::string_view subdirectory) {
    if (subdirectory.empty()) {
        return [bundle URLForResource:name withExtension:extension];
    }
    return [bundle URLForResource:name
                    withExtension:extension
                     subdirectory:macos::stringToNSString(subdirectory).get()];
}

} // namespace

Bundle& Bundle::main() {
    static auto* const main =
        new Bundle(std::make_unique<Peer>(Object<NSBundle*>::share(NSBundle.mainBundle)));
    return *main;
}

std::shared_ptr<Bundle> Bundle::withPath(const std::filesystem::path& path) {
    const auto bundle =
        Object<NSBundle*>::adopt([[NSBundle alloc] initWithPath:macos::pathToNSString(path).get()]);
    if (bundle.get() == nil) {
        return nullptr;
    }
    return std::make_shared<Bundle>(std::make_unique<Peer>(bundle));
}

Bundle::Bundle(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Bundle::~Bundle() = default;

std::string_view Bundle::bundleIdentifier() const {
    return peer_->identifier;
}

std::filesystem::path Bundle::bundlePath() const {
    return macos::nsStringToPath(peer_->bundle.get().bundlePath);
}

std::shared_ptr<Image> Bundle::imageForResource(std::string_view name) const {
    return macos::nsImageToImage(
        [peer_->bundle.get() imageForResource:macos::stringToNSString(name).get()]);
}

std::optional<std::filesystem::path> Bundle::fileForResource(std::string_view name,
                                                             std::string_view extension,
                                                             std::string_view subdirectory) const {
    NSURL* const url = resourceURL(peer_->bundle.get(), macos::stringToNSString(name).get(),
                                   macos::stringToNSString(extension).get(), subdirectory);
    if (url == nil) {
        return std::nullopt;
    }
    return macos::nsStringToPath(url.path);
}

} // namespace platform
