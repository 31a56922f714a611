#include "demo/Demonstration.h"

#include "demo/Table.h"
#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/Quellbar.h"

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <utility>

namespace demo {
namespace {

std::string contents(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string shown(bool isHidden) {
    return isHidden ? "minimized" : "shown";
}

} // namespace

Demonstration::Demonstration(std::filesystem::path folder)
    : folder_(std::move(folder)), windows_(desktop_.display()), stage_(desktop_) {
    std::filesystem::create_directories(folder_);
}

bool Demonstration::run() {
    std::cout << "Setting up a virtual desktop ..." << std::endl;
    stage_.set();
    const desktop::Quellbar quellbar(desktop_);
    takePicture("before");
    const auto before = whichAreHidden();
    const auto time = pressAndWait();
    takePicture("after");
    report(before, whichAreHidden());
    if (!time) {
        std::cout << "\nSome windows were not minimized.\n";
        return false;
    }
    std::cout << "\nFrom the press of Super+Alt+M to the last window minimized: " << std::fixed
              << std::setprecision(1) << time->count() << " ms\n";
    return panelIsStillShown();
}

std::vector<xcb_window_t> Demonstration::ordinaryWindows() const {
    std::vector<xcb_window_t> ordinary;
    std::ranges::copy_if(stage_.windows(), std::back_inserter(ordinary), [this](auto window) {
        return !windows_.hasType(window, desktop::WindowType::dock);
    });
    return ordinary;
}

// Holds the modifiers first, as a person does: the press is that of the last key.
std::optional<Demonstration::Milliseconds> Demonstration::pressAndWait() const {
    desktop::Keyboard keyboard(desktop_.display());
    const std::vector<xcb_window_t> awaited = ordinaryWindows();
    for (const xcb_keycode_t modifier : desktop::defaultShortcut.modifiers) {
        keyboard.keyDown(modifier);
    }
    const auto start = std::chrono::steady_clock::now();
    keyboard.keyDown(desktop::defaultShortcut.key);
    try {
        windows_.waitUntilHidden(awaited);
    } catch (const desktop::TimedOut&) {
        return std::nullopt;
    }
    const Milliseconds time = std::chrono::steady_clock::now() - start;
    keyboard.up(desktop::defaultShortcut);
    return time;
}

std::vector<bool> Demonstration::whichAreHidden() const {
    std::vector<bool> hidden;
    std::ranges::transform(stage_.windows(), std::back_inserter(hidden),
                           [this](auto window) { return windows_.isHidden(window); });
    return hidden;
}

// Programs do not say when they have painted: the picture is taken until it no longer changes.
void Demonstration::takePicture(const std::string& name) const {
    const std::filesystem::path file = std::filesystem::absolute(pictureFile(name));
    std::string last;
    const auto isStill = [&] {
        desktop_.takePicture(file);
        return last == std::exchange(last, contents(file));
    };
    desktop::waitUntil(isStill, "the programs to have painted");
}

void Demonstration::report(const std::vector<bool>& before, const std::vector<bool>& after) const {
    Table table({"Application", "Window", "Before", "After"});
    for (std::size_t i = 0; i < before.size(); ++i) {
        const xcb_window_t window = stage_.windows()[i];
        table.add({windows_.application(window), windows_.title(window), shown(before[i]),
                   shown(after[i])});
    }
    std::cout << '\n'
              << table << "\nPictures: " << pictureFile("before").string() << " and "
              << pictureFile("after").string() << '\n';
}

std::filesystem::path Demonstration::pictureFile(const std::string& name) const {
    return folder_ / (name + ".png");
}

bool Demonstration::panelIsStillShown() const {
    return std::ranges::none_of(stage_.windows(), [this](auto window) {
        return windows_.hasType(window, desktop::WindowType::dock) && windows_.isHidden(window);
    });
}

} // namespace demo
