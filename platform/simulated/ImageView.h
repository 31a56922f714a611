#pragma once

#include "platform/ImageView.h"
#include "platform/simulated/View.h"

namespace simulated {

/// An image of the program, in a place of its own.
class ImageView final : public View {
  public:
    using View::View;

    [[nodiscard]] std::string name() const override { return "image"; }

    /// Null shows nothing.
    std::shared_ptr<platform::Image> image;
};

/// What the desktop knows of `view`.
[[nodiscard]] ImageView& stateOf(const platform::ImageView& view);

} // namespace simulated
