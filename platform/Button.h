#pragma once

#include "platform/Menu.h"
#include "platform/View.h"

#include <functional>
#include <memory>
#include <string_view>

namespace platform {

/// A checkbox. Stands for NSButton on macOS, QCheckBox on Linux.
class Button : public View {
  public:
    /// What to do when the user has toggled the button; its state has changed already.
    using Action = std::function<void(Button& sender)>;

    [[nodiscard]] static std::shared_ptr<Button> checkboxWithTitle(std::string_view title,
                                                                   Action action);

    [[nodiscard]] ControlState state() const;
    /// Does not call the action.
    void setState(ControlState state);

    explicit Button(std::unique_ptr<Peer> peer);
};

} // namespace platform
