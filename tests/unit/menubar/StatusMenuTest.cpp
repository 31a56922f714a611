#include "unit/menubar/StatusMenuTest.h"

#include "platform/Application.h"
#include "unit/support/Installation.h"

using simulated::desktop;

namespace {

std::string lineOf(const simulated::MenuItem& item) {
    if (item.isSeparator) {
        return "---";
    }
    if (item.view() != nullptr) {
        const auto& text = dynamic_cast<simulated::TextField&>(*item.view()->subviews().at(0));
        return "[" + text.text() + "]";
    }
    const bool isOn = item.state == platform::ControlState::on;
    return item.title + (item.submenu() == nullptr ? "" : " >") + (isOn ? " ✓" : "") +
           (item.keyEquivalent.empty() ? "" : " ⌘" + item.keyEquivalent);
}

} // namespace

std::vector<std::string> linesOf(const simulated::Menu& menu) {
    std::vector<std::string> lines;
    for (const simulated::MenuItem* const item : menu.items()) {
        lines.push_back(lineOf(*item));
    }
    return lines;
}

StatusMenuTest::StatusMenuTest() {
    installQuellbar();
    platform::Application::shared();
    desktop().application.launch();
}

simulated::Menu& StatusMenuTest::submenu(std::string_view title) {
    return *menu().item(title).submenu();
}

void StatusMenuTest::choose(std::initializer_list<std::string_view> titles) {
    simulated::Menu* menu = &item().openMenu();
    for (const std::string_view title : titles) {
        simulated::MenuItem& chosen = menu->item(title);
        menu->click(chosen);
        menu = chosen.submenu();
    }
}

simulated::TextField& StatusMenuTest::rowText() {
    return dynamic_cast<simulated::TextField&>(*row().subviews().at(0));
}

void StatusMenuTest::store(const std::string& key, platform::DefaultsValue value) {
    desktop().userDefaults.stored[key] = std::move(value);
}

platform::DefaultsValue StatusMenuTest::stored(const std::string& key) {
    return desktop().userDefaults.stored.at(key);
}

bool StatusMenuTest::isChecked(std::string_view submenuTitle, std::string_view title) {
    return submenu(submenuTitle).item(title).state == platform::ControlState::on;
}

WithStatusMenu::WithStatusMenu() {
    create();
    desktop().calls.clear();
}
