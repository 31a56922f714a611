#pragma once

#include "keepawake/KeepAwakeManagerDelegate.h"
#include "menubar/KeepAwakeMenuItemView.h"
#include "platform/StatusItem.h"

#include <memory>

/// Owns the one status item and its menu, through which every feature is reached. The menu is built
/// once; later, items are only retitled and checked. Its check marks change through its own actions
/// alone: a change made in the settings window leaves them as they were, and is meant to.
class StatusItemController final : public platform::MenuDelegate,
                                   public KeepAwakeManagerDelegate,
                                   public std::enable_shared_from_this<StatusItemController> {
  public:
    /// Puts the status item into the status bar, builds the menu and observes Keep Awake.
    [[nodiscard]] static std::shared_ptr<StatusItemController> create();

    /// Brings the settings window to the front.
    void showSettings();

    void menuWillOpen(platform::Menu& menu) override;
    void keepAwakeDidChangeState(bool active, double remaining) override;

  private:
    using Action = void (StatusItemController::*)(platform::MenuItem& sender);
    using ItemPtr = std::shared_ptr<platform::MenuItem>;
    using MenuPtr = std::shared_ptr<platform::Menu>;

    StatusItemController();

    void configureButton();

    void buildMenu();
    [[nodiscard]] ItemPtr keepAwakeRow();
    [[nodiscard]] MenuPtr keepAwakeMenu();
    [[nodiscard]] MenuPtr cornersMenu();
    [[nodiscard]] MenuPtr preferencesMenu();
    [[nodiscard]] ItemPtr item(std::string_view title, Action action,
                               std::string_view keyEquivalent = {});
    [[nodiscard]] ItemPtr switchItem(std::string_view title, Action action, const char* key);
    void updateMinimizeItemSubtitle();

    void minimizeAll(platform::MenuItem& sender);
    void toggleKeepAwake(platform::MenuItem& sender);
    void add30(platform::MenuItem& sender);
    void subtract30(platform::MenuItem& sender);
    void toggleCorner(platform::MenuItem& sender);
    void toggleAutoLaunch(platform::MenuItem& sender);
    void toggleDockIcon(platform::MenuItem& sender);
    void toggleShortcuts(platform::MenuItem& sender);
    void openSettings(platform::MenuItem& sender);
    void openAbout(platform::MenuItem& sender);
    void quit(platform::MenuItem& sender);

    static void showActive(platform::StatusBarButton& button, double remaining);
    static void showInactive(platform::StatusBarButton& button);
    static void showInactiveImageOn(platform::StatusBarButton& button);

    std::shared_ptr<platform::StatusItem> statusItem_;
    ItemPtr keepAwakeToggleItem_;
    ItemPtr keepAwakeTopLevelItem_;
    std::shared_ptr<KeepAwakeMenuItemView> keepAwakeStatusView_;
    ItemPtr minimizeItem_;
    ItemPtr autoLaunchItem_;
    ItemPtr dockIconItem_;
    ItemPtr shortcutsItem_;
};
