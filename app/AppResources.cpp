#include "app/AppResources.h"

#include "platform/FatalError.h"

#include <string>

namespace {

using platform::Bundle;
using platform::Image;

// A file that is there but cannot be read is no image: the search goes on.
std::shared_ptr<Image> pngIn(const Bundle& bundle, std::string_view name,
                             std::string_view subdirectory) {
    const auto file = bundle.fileForResource(name, "png", subdirectory);
    return file ? Image::withContentsOfFile(*file) : nullptr;
}

std::shared_ptr<Bundle> resolveModule() {
    const std::filesystem::path beside = Bundle::main().bundlePath() / "Quellbar_Quellbar.bundle";
    const std::filesystem::path built = QUELLBAR_BUILT_RESOURCE_BUNDLE;
    if (auto bundle = Bundle::withPath(beside)) {
        return bundle;
    }
    if (auto bundle = Bundle::withPath(built)) {
        return bundle;
    }
    platform::fatalError("could not load resource bundle: from " + beside.string() + " or " +
                         built.string());
}

} // namespace

const Bundle& AppResources::module() {
    static const auto* const bundle = new std::shared_ptr<Bundle>(resolveModule());
    return **bundle;
}

std::shared_ptr<Image> AppResources::image(std::string_view named) {
    if (auto image = Bundle::main().imageForResource(named)) {
        return image;
    }
    if (auto image = pngIn(module(), named, "Resources")) {
        return image;
    }
    return pngIn(module(), named, {});
}
