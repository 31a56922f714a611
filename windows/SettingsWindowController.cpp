#include "windows/SettingsWindowController.h"

#include "hotkey/HotKeyManager.h"
#include "platform/Application.h"
#include "settings/CheckedInteger.h"
#include "settings/LoginItemManager.h"
#include "settings/Preferences.h"

#include <algorithm>
#include <array>

namespace {

using platform::Rect;
using platform::TextField;

constexpr platform::Size contentSize{420, 360};

// Minutes. A typed number has no upper limit; only the stepper stops there.
constexpr std::int64_t minimumMinutes = 30;
constexpr double stepperMaximum = 1440;
constexpr double stepperIncrement = 30;

// Points, from the bottom left of the content view.
constexpr Rect shortcutHeading{{24, 320}, {160, 20}};
constexpr Rect shortcutLabel{{24, 292}, {170, 20}};
constexpr Rect shortcutRecorder{{200, 290}, {120, 24}};
constexpr Rect keepAwakeHeading{{24, 248}, {160, 20}};
constexpr Rect durationLabel{{24, 220}, {190, 20}};
constexpr Rect durationField{{220, 218}, {60, 24}};
constexpr Rect durationStepper{{284, 218}, {19, 24}};
constexpr Rect durationHint{{24, 196}, {340, 20}};
constexpr Rect generalHeading{{24, 160}, {160, 20}};
constexpr double autoLaunchY = 130;
constexpr double dockIconY = 100;
constexpr double shortcutsY = 70;

platform::UserDefaults& defaults() {
    return Preferences::shared().defaults;
}

std::shared_ptr<TextField> addLabel(platform::View& content, std::string_view text, Rect frame) {
    auto label = TextField::labelWithString(text);
    label->setFrame(frame);
    content.addSubview(label);
    return label;
}

void addHeading(platform::View& content, std::string_view text, Rect frame) {
    addLabel(content, text, frame)->setFont(platform::Font::boldSystem(13));
}

std::int64_t storedMinutes() {
    return checked::truncated(defaults().doubleForKey(Preferences::keepAwakeDurationSecondsKey) /
                              60);
}

// With the new combination itself, not with a fresh read of the store.
void shortcutRecorded(const KeyCombo& combo) {
    Preferences::shared().setMinimizeAllShortcut(combo);
    if (defaults().boolForKey(Preferences::shortcutsEnabledKey)) {
        HotKeyManager::shared().registerHotKey(combo);
    }
}

void autoLaunchToggled(bool isOn) {
    defaults().setBool(isOn, Preferences::autoLaunchAtLoginKey);
    LoginItemManager::setEnabled(isOn);
}

void dockIconToggled(bool isOn) {
    defaults().setBool(isOn, Preferences::enableDockIconKey);
    platform::Application::shared().setActivationPolicy(
        isOn ? platform::ActivationPolicy::regular : platform::ActivationPolicy::accessory);
}

void shortcutsToggled(bool isOn) {
    defaults().setBool(isOn, Preferences::shortcutsEnabledKey);
    if (isOn) {
        HotKeyManager::shared().registerHotKey(Preferences::shared().minimizeAllShortcut());
    } else {
        HotKeyManager::shared().unregisterHotKey();
    }
}

} // namespace

SettingsWindowController& SettingsWindowController::shared() {
    // Never destroyed: closing the window only hides it.
    static auto* const instance = new SettingsWindowController;
    return *instance;
}

SettingsWindowController::SettingsWindowController()
    : window_(std::make_unique<platform::Window>(contentSize, "Quellbar Settings")) {
    window_->center();
    buildContent();
}

void SettingsWindowController::buildContent() {
    platform::View* const content = window_->contentView();
    if (content == nullptr) {
        return;
    }
    buildShortcutSection(*content);
    buildKeepAwakeSection(*content);
    buildGeneralSection(*content);
}

void SettingsWindowController::buildShortcutSection(platform::View& content) {
    addHeading(content, "Global Shortcut", shortcutHeading);
    addLabel(content, "Minimize All Windows:", shortcutLabel);
    shortcutRecorder_ =
        std::make_shared<ShortcutRecorderView>(Preferences::shared().minimizeAllShortcut());
    shortcutRecorder_->setFrame(shortcutRecorder);
    shortcutRecorder_->onChange = shortcutRecorded;
    content.addSubview(shortcutRecorder_);
}

// Field and stepper start at the same number and are independent from then on: the stepper is moved
// by its own clicks alone, and overwrites what was typed.
void SettingsWindowController::buildKeepAwakeSection(platform::View& content) {
    addHeading(content, "Keep Awake", keepAwakeHeading);
    addLabel(content, "Default duration (minutes):", durationLabel);
    durationField_ = TextField::editable(durationField);
    durationField_->setIntegerValue(storedMinutes());
    durationField_->setAction([this] { durationChanged(); });
    content.addSubview(durationField_);
    const auto stepper = platform::Stepper::make(
        durationStepper, [this](platform::Stepper& sender) { stepperChanged(sender); });
    stepper->setRange(minimumMinutes, stepperMaximum);
    stepper->setIncrement(stepperIncrement);
    stepper->setIntegerValue(storedMinutes());
    content.addSubview(stepper);
    addLabel(content, "(adjust live in ±30 min steps from the menu)", durationHint);
}

void SettingsWindowController::buildGeneralSection(platform::View& content) {
    addHeading(content, "General", generalHeading);
    const auto add = [&](std::string_view title, double y, const char* key, CheckboxAction action) {
        auto box = checkbox(title, y, action);
        const bool isOn = defaults().boolForKey(key);
        box->setState(isOn ? platform::ControlState::on : platform::ControlState::off);
        content.addSubview(box);
        return box;
    };
    autoLaunchCheckbox_ = add("Auto Launch at Login", autoLaunchY,
                              Preferences::autoLaunchAtLoginKey, autoLaunchToggled);
    dockIconCheckbox_ =
        add("Enable Dock Icon", dockIconY, Preferences::enableDockIconKey, dockIconToggled);
    shortcutsCheckbox_ =
        add("Enable Shortcuts", shortcutsY, Preferences::shortcutsEnabledKey, shortcutsToggled);
}

std::shared_ptr<platform::Button>
SettingsWindowController::checkbox(std::string_view title, double y, CheckboxAction action) {
    auto box = platform::Button::checkboxWithTitle(
        title, [this](platform::Button& sender) { checkboxToggled(sender); });
    box->setFrame({{24, y}, {300, 24}});
    checkboxActions_[box.get()] = action;
    return box;
}

void SettingsWindowController::checkboxToggled(platform::Button& sender) {
    const auto entry = checkboxActions_.find(&sender);
    if (entry == checkboxActions_.end()) {
        return;
    }
    entry->second(sender.state() == platform::ControlState::on);
}

// The field is not rewritten: after typing 10 it still shows 10, while 30 minutes are stored.
void SettingsWindowController::durationChanged() {
    const std::int64_t minutes = std::max(durationField_->integerValue(), minimumMinutes);
    const std::int64_t seconds = checked::multiplied(minutes, 60);
    defaults().setDouble(static_cast<double>(seconds), Preferences::keepAwakeDurationSecondsKey);
}

void SettingsWindowController::stepperChanged(platform::Stepper& sender) {
    durationField_->setIntegerValue(sender.integerValue());
    durationChanged();
}
