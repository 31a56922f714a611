#pragma once

#include "keepawake/KeepAwakeManager.h"
#include "menubar/StatusItemController.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

/// The lines of a menu as the user reads them: "---" for a separator, "[text]" for a view, " >"
/// behind the title of a submenu, and behind that of a command its check mark and its key.
std::vector<std::string> linesOf(const simulated::Menu& menu);

/// The installed program before it makes its status item.
class StatusMenuTest : public testing::Test {
  protected:
    StatusMenuTest();

    void create() { controller = StatusItemController::create(); }

    static simulated::StatusItem& item() { return simulated::desktop().statusBar.item(); }
    static const simulated::StatusBarButton& button() { return item().button(); }
    static simulated::Menu& menu() { return item().menu(); }
    static simulated::Menu& submenu(std::string_view title);

    /// Opens the menu and clicks its way to a command.
    static void choose(std::initializer_list<std::string_view> titles);

    /// The item with the Keep Awake row, the row itself, and its one line of text.
    static simulated::MenuItem& rowItem() { return *menu().items().at(2); }
    static simulated::View& row() { return *rowItem().view(); }
    static simulated::TextField& rowText();

    static void store(const std::string& key, platform::DefaultsValue value);
    static platform::DefaultsValue stored(const std::string& key);
    static bool isChecked(std::string_view submenuTitle, std::string_view title);

    std::shared_ptr<StatusItemController> controller;
    KeepAwakeManager& keepAwake = KeepAwakeManager::shared();
};

/// The program with its status item.
class WithStatusMenu : public StatusMenuTest {
  protected:
    WithStatusMenu();
};
