#pragma once

#include "platform/Bundle.h"

/// Finds the program's own images by name. Nothing is remembered: every request searches again.
class AppResources {
  public:
    AppResources() = delete;

    /// The image with this name, without suffix: from the main bundle, else from the resource
    /// bundle. Null when there is none.
    [[nodiscard]] static std::shared_ptr<platform::Image> image(std::string_view named);

    /// The resource bundle "Quellbar_Quellbar.bundle", looked for once: beside the program, then
    /// where it was built. Fatal when it is in neither place; a program whose images are all in the
    /// main bundle never asks.
    [[nodiscard]] static const platform::Bundle& module();
};
