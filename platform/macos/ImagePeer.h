#pragma once

#include "platform/Image.h"
#include "platform/macos/Holder.h"

#import <AppKit/AppKit.h>

struct platform::Image::Peer {
    macos::Object<NSImage*> image;
};

namespace platform::macos {

/// Both null where there is no image.
[[nodiscard]] std::shared_ptr<Image> nsImageToImage(NSImage* image);
[[nodiscard]] NSImage* imageToNSImage(const std::shared_ptr<Image>& image);

} // namespace platform::macos
