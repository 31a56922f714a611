#pragma once

#include "platform/Window.h"

#include <memory>

/// Owns the about window: icon, name, version, credit and a short description. Built once; closing
/// only hides it.
class AboutWindowController {
  public:
    /// The single instance; the first call builds the window.
    static AboutWindowController& shared();

    [[nodiscard]] platform::Window* window() const { return window_.get(); }

    AboutWindowController(const AboutWindowController&) = delete;
    AboutWindowController& operator=(const AboutWindowController&) = delete;

  private:
    AboutWindowController();
    ~AboutWindowController() = default;

    void buildContent();

    std::unique_ptr<platform::Window> window_;
};
