#pragma once

#include "demo/Stage.h"
#include "tests/desktop/support/VirtualDesktop.h"
#include "tests/desktop/support/Windows.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace demo {

/// Sets a stage, has the program minimize everything on it by a press of its default shortcut, and
/// shows what happened.
class Demonstration {
  public:
    /// The pictures go to `folder`, which is made if it is missing.
    explicit Demonstration(std::filesystem::path folder);

    /// Answers whether every ordinary window ended minimized, and the panel did not.
    bool run();

  private:
    using Milliseconds = std::chrono::duration<double, std::milli>;

    /// The windows that a person would expect to be minimized, told by what they say of themselves.
    [[nodiscard]] std::vector<xcb_window_t> ordinaryWindows() const;
    /// From the press of the key to the last window hidden; empty when not all of them were.
    [[nodiscard]] std::optional<Milliseconds> pressAndWait() const;
    /// In the order of the stage.
    [[nodiscard]] std::vector<bool> whichAreHidden() const;
    void takePicture(const std::string& name) const;
    [[nodiscard]] std::filesystem::path pictureFile(const std::string& name) const;
    void report(const std::vector<bool>& before, const std::vector<bool>& after) const;
    [[nodiscard]] bool panelIsStillShown() const;

    std::filesystem::path folder_;
    desktop::VirtualDesktop desktop_;
    desktop::Windows windows_;
    Stage stage_;
};

} // namespace demo
