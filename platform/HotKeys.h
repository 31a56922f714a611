#pragma once

#include <cstdint>
#include <optional>

/// System-wide hot keys. Stands for the Carbon Event Manager's hot keys on macOS (the application
/// event target, hot-key-pressed events, no options) and for passive key grabs on the root window
/// of the X server on Linux. Main thread only.
namespace platform {

/// The result of a hot-key call: `noErr`, or the system's own error number.
using OSStatus = std::int32_t;
inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus eventParameterNotFoundErr = -9870;
inline constexpr OSStatus eventHotKeyExistsErr = -9878;
inline constexpr OSStatus eventHotKeyInvalidErr = -9879;

/// Who a hot key is: given at registration, told again with every press.
struct EventHotKeyID {
    std::uint32_t signature = 0; ///< four-character code, first letter in the most significant byte
    std::uint32_t id = 0;

    bool operator==(const EventHotKeyID&) const = default;
};

/// Names a live registration until `unregisterEventHotKey`. A plain name, not an owner.
enum class EventHotKeyRef : std::uintptr_t {};

/// Names an installed handler. Handlers are never removed.
enum class EventHandlerRef : std::uintptr_t {};

/// One press of a hot key, valid while the handler runs.
class HotKeyEvent {
  public:
    /// Reads the identity of the hot key that was pressed. On failure `identity` is left as it was.
    OSStatus directObject(EventHotKeyID& identity) const;

    /// Made by hosts alone, around an event of their own that must outlive it.
    explicit HotKeyEvent(const void* nativeEvent) : nativeEvent_(nativeEvent) {}

  private:
    const void* nativeEvent_;
};

/// Called on the main thread, from within the desktop's event dispatch, for each press (not for
/// releases, and once however long the key is held). `noErr` says that the event was handled.
using HotKeyPressedHandler = OSStatus (*)(const HotKeyEvent& event, void* userData);

struct InstalledHandler {
    OSStatus status = noErr;
    std::optional<EventHandlerRef> handler; ///< empty when the installation failed
};

/// Installs the handler for hot-key presses. `userData` is handed to it as it is and not retained.
InstalledHandler installHotKeyPressedHandler(HotKeyPressedHandler handler, void* userData);

struct RegisteredHotKey {
    OSStatus status = noErr;
    std::optional<EventHotKeyRef> hotKey; ///< empty when the system refused the combination
};

/// Takes a key combination for this program, whatever application is frontmost. `keyCode` is a
/// macOS virtual key code (a position on the keyboard, whatever the layout), `modifiers` a mask of
/// Carbon modifier bits. Refused when another program holds the combination, and on Linux also when
/// the keyboard has no such key; modifier bits other than the four of `KeyCombo` mean nothing
/// there.
RegisteredHotKey registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                     EventHotKeyID identity);

/// Gives a combination back. An error when `hotKey` names no live registration.
OSStatus unregisterEventHotKey(EventHotKeyRef hotKey);

} // namespace platform
