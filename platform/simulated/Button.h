#pragma once

#include "platform/Button.h"
#include "platform/simulated/View.h"

namespace simulated {

/// A checkbox of the program.
class Button final : public View {
  public:
    Button(std::string_view buttonTitle, platform::Button::Action action)
        : View({}), title(buttonTitle), action_(std::move(action)) {}

    const std::string title;
    platform::ControlState state = platform::ControlState::off;

    [[nodiscard]] std::string name() const override { return title; }

    /// The user clicks on the checkbox, which is on then if it was not, and tells the program.
    /// Misuse unless it is on the screen.
    void click() override;

  private:
    const platform::Button::Action action_;
};

/// What the desktop knows of `button`.
[[nodiscard]] Button& stateOf(const platform::Button& button);

/// How a check mark is written in the record of calls.
[[nodiscard]] std::string_view nameOf(platform::ControlState state);

} // namespace simulated
