#include "platform/Button.h"

#include "platform/macos/AppearanceConversions.h"
#include "platform/macos/Conversions.h"
#include "platform/macos/ViewPeer.h"

namespace platform {

std::shared_ptr<Button> Button::checkboxWithTitle(std::string_view title, Action action) {
    NSButton* const native = [NSButton checkboxWithTitle:macos::stringToNSString(title).get()
                                                  target:nil
                                                  action:nullptr];
    auto button = std::make_shared<Button>(std::make_unique<Peer>(native));
    macos::setControlAction(*button, [weak = std::weak_ptr(button), action = std::move(action)] {
        if (const auto sender = weak.lock()) {
            action(*sender);
        }
    });
    return button;
}

Button::Button(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

ControlState Button::state() const {
    return macos::nsToControlState(macos::controlOf<NSButton>(*this).state);
}

void Button::setState(ControlState state) {
    macos::controlOf<NSButton>(*this).state = macos::controlStateToNS(state);
}

} // namespace platform
