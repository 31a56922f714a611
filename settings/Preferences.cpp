#include "settings/Preferences.h"

#include "settings/Coding.h"

namespace {

constexpr auto hotCornersKey = "hotCorners";
constexpr auto minimizeShortcutKey = "minimizeShortcut";

constexpr KeyCombo defaultShortcut{.keyCode = 46, .modifiers = optionKey | cmdKey}; // ⌥⌘M

std::string storedName(ScreenCorner corner) {
    return std::string(rawValue(corner));
}

} // namespace

Preferences& Preferences::shared() {
    // Never destroyed: whatever runs while the process ends may still read a setting.
    static auto* const instance = new Preferences;
    return *instance;
}

// The shortcut is left out of the registration on purpose: its absence is answered by the getter.
Preferences::Preferences() : defaults(platform::UserDefaults::standard()) {
    defaults.registerDefaults({
        {autoLaunchAtLoginKey, false},
        {enableDockIconKey, false},
        {shortcutsEnabledKey, true},
        {keepAwakeDurationSecondsKey, std::int64_t{7200}},
        {hotCornersKey, platform::StringArray{storedName(ScreenCorner::bottomRight)}},
    });
}

KeyCombo Preferences::minimizeAllShortcut() const {
    const platform::Data* const data = defaults.dataForKey(minimizeShortcutKey);
    if (data == nullptr) {
        return defaultShortcut;
    }
    return coding::decodeKeyCombo(*data).value_or(defaultShortcut);
}

void Preferences::setMinimizeAllShortcut(const KeyCombo& combo) {
    defaults.setObject(coding::encode(combo), minimizeShortcutKey);
}

ScreenCornerSet Preferences::hotCorners() const {
    ScreenCornerSet corners;
    const platform::StringArray* const names = defaults.stringArrayForKey(hotCornersKey);
    if (names == nullptr) {
        return corners;
    }
    for (const std::string& name : *names) {
        if (const auto corner = screenCornerFromRawValue(name)) {
            corners.insert(*corner);
        }
    }
    return corners;
}

// The order of the stored names carries no meaning; readers take them as a set.
void Preferences::setHotCorners(const ScreenCornerSet& corners) {
    platform::StringArray names;
    for (const ScreenCorner corner : allScreenCorners) {
        if (corners.contains(corner)) {
            names.push_back(storedName(corner));
        }
    }
    defaults.setObject(std::move(names), hotCornersKey);
}
