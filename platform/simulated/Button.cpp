#include "platform/simulated/Button.h"

#include "platform/simulated/Desktop.h"

namespace simulated {

Button& stateOf(const platform::Button& button) {
    return static_cast<Button&>(*button.peer().view);
}

std::string_view nameOf(platform::ControlState state) {
    switch (state) {
    case platform::ControlState::mixed:
        return "mixed";
    case platform::ControlState::off:
        return "off";
    case platform::ControlState::on:
        return "on";
    }
    return "?";
}

void Button::click() {
    View::click();
    const bool wasOn = state == platform::ControlState::on;
    state = wasOn ? platform::ControlState::off : platform::ControlState::on;
    if (action_) {
        action_(static_cast<platform::Button&>(self()));
    }
}

} // namespace simulated

namespace platform {

using simulated::desktop;
using simulated::stateOf;

Button::Button(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

std::shared_ptr<Button> Button::checkboxWithTitle(std::string_view title, Action action) {
    desktop().calls.record("checkboxWithTitle", {title});
    return std::make_shared<Button>(std::make_unique<Peer>(
        Peer{std::make_unique<simulated::Button>(title, std::move(action))}));
}

ControlState Button::state() const {
    return stateOf(*this).state;
}

void Button::setState(ControlState state) {
    desktop().calls.record("Button::setState", {stateOf(*this).title, simulated::nameOf(state)});
    stateOf(*this).state = state;
}

} // namespace platform
