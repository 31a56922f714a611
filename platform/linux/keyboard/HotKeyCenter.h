#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/keyboard/KeyGrabs.h"
#include "platform/linux/keyboard/Keymap.h"

#include <QTimer>
#include <functional>
#include <optional>
#include <vector>

namespace platform::linux_host {

class Connection;

/// The hot keys of this process: keeps each registered one grabbed while the keyboard changes, and
/// makes key events into presses.
class HotKeyCenter {
  public:
    static HotKeyCenter& shared();

    /// Has `handler` called with the identity of each hot key that is pressed from now on.
    void setHandler(std::function<void(const EventHotKeyID&)> handler) {
        handler_ = std::move(handler);
    }

    RegisteredHotKey registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                    EventHotKeyID identity);
    /// Whether there was such a hot key.
    bool unregisterHotKey(EventHotKeyRef hotKey);

  private:
    struct Registration {
        EventHotKeyRef hotKey;
        EventHotKeyID identity;
        std::uint32_t keyCode;
        std::uint32_t carbonModifiers;
        std::vector<KeyGrab> grabs; ///< all that make up the hot key, or none while refused
    };

    explicit HotKeyCenter(Connection& connection);

    void handleEvent(const xcb_generic_event_t& event);
    void keyPressed(const xcb_key_press_event_t& event);
    void keyReleased(const xcb_key_release_event_t& event);
    [[nodiscard]] const Registration* registrationFor(const xcb_key_press_event_t& event) const;

    void grabAgain();
    [[nodiscard]] std::vector<KeyGrab> currentGrabsOf(const Registration& registration);
    [[nodiscard]] const Keymap& keymap();
    [[nodiscard]] bool take(const std::vector<KeyGrab>& grabs);

    Connection& connection_;
    std::optional<std::uint8_t> firstKeyboardEvent_;
    std::optional<Keymap> keymap_; ///< read when it is needed
    QTimer calm_;                  ///< runs while the keyboard changes and the map is old
    std::vector<Registration> registrations_;
    std::uintptr_t lastHotKey_ = 0;
    xcb_keycode_t heldKey_ = 0; ///< of the hot key that is down; 0: none
    std::function<void(const EventHotKeyID&)> handler_;
};

} // namespace platform::linux_host
