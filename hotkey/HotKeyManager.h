#pragma once

#include "platform/HotKeys.h"
#include "settings/KeyCombo.h"

#include <functional>
#include <optional>

/// Makes one shortcut work while any application is frontmost. Knows nothing of settings: its
/// callers decide when to register and what a press does. At most one hot key is registered at any
/// time, and a combination that the system refuses is silently none.
class HotKeyManager {
  public:
    /// The single instance, made by the first call, which installs the hot-key handler for good.
    static HotKeyManager& shared();

    /// What to run when the hot key is pressed. Runs on the main queue, after the press was
    /// handled.
    std::function<void()> onHotKey;

    /// Registers `combo` as the hot key in place of any earlier one.
    void registerHotKey(const KeyCombo& combo);

    /// Removes the hot key, if there is one.
    void unregisterHotKey();

    HotKeyManager(const HotKeyManager&) = delete;
    HotKeyManager& operator=(const HotKeyManager&) = delete;

  private:
    HotKeyManager();
    ~HotKeyManager() = default;

    void installEventHandler();
    static platform::OSStatus handleHotKeyPressed(const platform::HotKeyEvent& event,
                                                  void* userData);
    void runOnHotKey() const;

    std::optional<platform::EventHotKeyRef> hotKeyRef_;
    std::optional<platform::EventHandlerRef> eventHandler_;
};
