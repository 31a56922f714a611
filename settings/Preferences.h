#pragma once

#include "platform/UserDefaults.h"
#include "settings/KeyCombo.h"
#include "settings/ScreenCorner.h"

/// The one place where the user's settings live. Nothing is cached: every read goes to the user
/// defaults, so a value written anywhere is seen by the next read everywhere. No call fails.
class Preferences {
  public:
    /// Keys of the plain settings, read and written on `defaults` by whoever needs them.
    static constexpr auto autoLaunchAtLoginKey = "autoLaunchAtLogin"; // boolean
    static constexpr auto enableDockIconKey = "enableDockIcon";       // boolean
    static constexpr auto shortcutsEnabledKey = "shortcutsEnabled";   // boolean
    static constexpr auto keepAwakeDurationSecondsKey =
        "keepAwakeDurationSeconds"; // double, seconds

    /// The single instance, made by the first call, which registers the factory settings.
    static Preferences& shared();

    platform::UserDefaults& defaults;

    /// The shortcut that minimizes all windows; ⌥⌘M when none, or none that can be read, is stored.
    [[nodiscard]] KeyCombo minimizeAllShortcut() const;
    /// Stores the shortcut. Registering it as the hot key is the caller's business.
    void setMinimizeAllShortcut(const KeyCombo& combo);

    /// The enabled hot corners. Stored names that name no corner are dropped.
    [[nodiscard]] ScreenCornerSet hotCorners() const;
    void setHotCorners(const ScreenCornerSet& corners);

    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;

  private:
    Preferences();
    ~Preferences() = default;
};
