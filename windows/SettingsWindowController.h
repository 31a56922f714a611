#pragma once

#include "hotkey/ShortcutRecorderView.h"
#include "platform/Button.h"
#include "platform/Stepper.h"
#include "platform/TextField.h"
#include "platform/Window.h"

#include <functional>
#include <map>
#include <memory>

/// Owns the settings window. Every change is stored at once and, where it has an effect outside the
/// store, applied at once. The controls show the settings as they were when the window was built,
/// and are never refreshed: a stale checkbox writes its own state over the store, and is meant to.
class SettingsWindowController {
  public:
    /// The single instance; the first call builds the window.
    static SettingsWindowController& shared();

    [[nodiscard]] platform::Window* window() const { return window_.get(); }

    SettingsWindowController(const SettingsWindowController&) = delete;
    SettingsWindowController& operator=(const SettingsWindowController&) = delete;

  private:
    using CheckboxAction = void (*)(bool isOn);

    SettingsWindowController();
    ~SettingsWindowController() = default;

    void buildContent();
    void buildShortcutSection(platform::View& content);
    void buildKeepAwakeSection(platform::View& content);
    void buildGeneralSection(platform::View& content);
    [[nodiscard]] std::shared_ptr<platform::Button> checkbox(std::string_view title, double y,
                                                             CheckboxAction action);

    void checkboxToggled(platform::Button& sender);
    void durationChanged();
    void stepperChanged(platform::Stepper& sender);

    std::unique_ptr<platform::Window> window_;
    std::shared_ptr<ShortcutRecorderView> shortcutRecorder_;
    std::shared_ptr<platform::Button> autoLaunchCheckbox_;
    std::shared_ptr<platform::Button> dockIconCheckbox_;
    std::shared_ptr<platform::Button> shortcutsCheckbox_;
    std::shared_ptr<platform::TextField> durationField_;
    std::map<const platform::Button*, CheckboxAction> checkboxActions_;
};
