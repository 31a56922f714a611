#include "demo/Gallery.h"

#include "tests/desktop/support/ProgramWindows.h"
#include "tests/desktop/support/ScreenPicture.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <utility>

namespace demo {
namespace {

using namespace desktop;
namespace fs = std::filesystem;

constexpr int trayHeight = 24; // points
constexpr int margin = 12;     // points, around what a picture is of

// A settings file of KDE's, which Qt reads by itself: the one way to a dark appearance that needs
// no running desktop.
constexpr std::string_view darkColors = R"([KDE]
widgetStyle=Fusion

[Colors:Window]
BackgroundNormal=42,46,51
ForegroundNormal=240,240,240

[Colors:View]
BackgroundNormal=30,33,37
ForegroundNormal=240,240,240

[Colors:Button]
BackgroundNormal=84,90,98
ForegroundNormal=240,240,240

[Colors:Selection]
BackgroundNormal=48,140,198
ForegroundNormal=255,255,255

[Colors:Tooltip]
BackgroundNormal=56,61,67
ForegroundNormal=240,240,240
)";

ScreenSize screenFor(int scale) {
    return {.width = 960 * scale, .height = 600 * scale};
}

std::string contents(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

struct Crop {
    int left;
    int top;
    int right;
    int bottom;
};

// The smallest rectangle with all of them, and the margin around, on the screen.
Crop cropFor(const std::vector<Geometry>& parts, int around, ScreenSize screen) {
    Crop crop{screen.width, screen.height, 0, 0};
    for (const Geometry& part : parts) {
        crop.left = std::min<int>(crop.left, part.x);
        crop.top = std::min<int>(crop.top, part.y);
        crop.right = std::max(crop.right, part.x + part.width);
        crop.bottom = std::max(crop.bottom, part.y + part.height);
    }
    return {std::max(0, crop.left - around), std::max(0, crop.top - around),
            std::min(screen.width, crop.right + around),
            std::min(screen.height, crop.bottom + around)};
}

// `extents`: left, right, top and bottom.
Geometry withDecorations(const Geometry& window, const std::vector<std::uint32_t>& extents) {
    if (extents.size() != 4) {
        return window;
    }
    return {.x = static_cast<std::int16_t>(window.x - static_cast<int>(extents[0])),
            .y = static_cast<std::int16_t>(window.y - static_cast<int>(extents[2])),
            .width = static_cast<std::uint16_t>(window.width + extents[0] + extents[1]),
            .height = static_cast<std::uint16_t>(window.height + extents[2] + extents[3])};
}

std::string geometryOf(const Crop& crop) {
    return std::to_string(crop.right - crop.left) + "x" + std::to_string(crop.bottom - crop.top) +
           "+" + std::to_string(crop.left) + "+" + std::to_string(crop.top);
}

} // namespace

Gallery::Gallery(const fs::path& folder, Appearance appearance, int scale)
    : folder_(fs::absolute(folder)), appearance_(appearance), scale_(scale),
      session_(WindowManager::openbox, screenFor(scale)), display_(session_.desktop.display()) {
    fs::create_directories(folder_);
    prepare();
}

void Gallery::prepare() {
    VirtualDesktop& desktop = session_.desktop;
    storeDefaults(desktop, R"({"keepAwakeDurationSeconds": 5400})");
    desktop.setVariable("QT_SCALE_FACTOR", std::to_string(scale_));
    const bool isDark = appearance_ == Appearance::dark;
    if (isDark) {
        desktop.setVariable("QT_QPA_PLATFORMTHEME", "kde");
        desktop.setVariable("KDE_SESSION_VERSION", "5");
        std::ofstream(desktop.configuration() / "kdeglobals") << darkColors;
    }
    run(desktop.command({"xsetroot", "-solid", isDark ? "#1d2733" : "#7d9ab5"}));
}

void Gallery::takeAll() {
    takeStatusItems();
    takeMenus();
    takeSubmenus();
    takeWindows();
}

void Gallery::startTray(TrayProgram program) {
    tray_.emplace(session_.desktop, program,
                  TrayLook{.height = trayHeight * scale_,
                           .isAtBottom = false,
                           .isDark = appearance_ == Appearance::dark});
}

void Gallery::start() {
    session_.launch();
    user_.emplace(session_);
    user_->item().waitUntilIn(tray_ ? ItemPlace::tray : ItemPlace::strip);
}

void Gallery::end() {
    user_.reset();
    session_.quellbar.reset();
    tray_.reset();
}

void Gallery::startCounting() {
    user_->choose(item::row);
    waitForCountdown();
}

// By then the tray has moved its icons: until then, a click could miss them.
void Gallery::waitForCountdown() const {
    user_->item().waitUntil([](const ItemSight& sight) { return sight.showsRed; }, "a countdown");
}

void Gallery::takeStatusItems() {
    for (const auto& [program, name] :
         {std::pair(TrayProgram::trayer, "trayer"), std::pair(TrayProgram::tint2, "tint2")}) {
        startTray(program);
        start();
        takeItem(std::string("item-idle-") + name);
        startCounting();
        takeItem(std::string("item-counting-") + name);
        end();
    }
    start();
    takeItem("strip-idle");
    startCounting();
    takeItem("strip-counting");
    end();
}

void Gallery::takeMenus() {
    startTray(TrayProgram::trayer);
    start();
    user_->openMenu();
    takeMenu("menu-off");
    user_->moveToLine(0, user_->lineOf(item::row));
    takeMenu("menu-highlighted");
    user_->pointer().click();
    waitForCountdown();
    user_->openMenu();
    takeMenu("menu-on");
    end();
}

void Gallery::takeSubmenus() {
    startTray(TrayProgram::trayer);
    start();
    for (const auto& [submenu, name] :
         {std::pair(keepAwakeMenu, "keep-awake"), std::pair(cornersMenu, "corners"),
          std::pair(preferencesMenu, "preferences")}) {
        user_->openSubmenu(submenu);
        takeMenu(std::string("menu-") + name);
        session_.keyboard.press({.modifiers = {}, .key = key::escape});
        session_.keyboard.press({.modifiers = {}, .key = key::escape});
        user_->menus().waitUntilOpen(0);
    }
    end();
}

void Gallery::takeWindows() {
    startTray(TrayProgram::trayer);
    start();
    takeWindow(item::settings, "settings");
    startRecording(waitForWindow());
    take("settings-recording", {waitForWindow()});
    end();
    startTray(TrayProgram::trayer);
    start();
    takeWindow(item::about, "about");
    end();
}

// What is left of the panel shows where the item stands.
void Gallery::takeItem(const std::string& what) {
    user_->pointer().moveTo(screenFor(scale_).width / 2, screenFor(scale_).height / 2);
    Geometry part = user_->item().look().value().frame;
    const int width = 160 * scale_;
    part.x = static_cast<std::int16_t>(screenFor(scale_).width - width);
    part.width = static_cast<std::uint16_t>(width);
    take(what, {part});
}

void Gallery::takeMenu(const std::string& what) {
    auto parts = user_->menus().frames();
    parts.push_back(user_->item().look().value().frame);
    take(what, parts);
}

void Gallery::takeWindow(std::size_t opener, const std::string& what) {
    user_->openMenu();
    user_->moveToLine(0, user_->lineOf(opener));
    user_->pointer().click();
    take(what, {waitForWindow()});
}

// The middle of the recorder, as the program lays its window out, in points from the bottom left. A
// click that comes too soon after the last one does not count as one of its own.
void Gallery::startRecording(const Geometry& window) {
    constexpr int fromLeft = 260;
    constexpr int fromBottom = 302;
    const auto x = static_cast<std::int16_t>(window.x + fromLeft * scale_);
    const auto y = static_cast<std::int16_t>(window.y + window.height - fromBottom * scale_);
    const Geometry label{.x = static_cast<std::int16_t>(x - 50 * scale_),
                         .y = y,
                         .width = static_cast<std::uint16_t>(100 * scale_),
                         .height = 1};
    const ScreenPicture before(display_, label);
    user_->pointer().moveTo(x, y);
    waitUntil(
        [&] {
            user_->pointer().click();
            session_.quellbar->settle();
            return ScreenPicture(display_, label) != before;
        },
        "the recorder to record");
    user_->pointer().moveTo(1, screenFor(scale_).height / 2);
}

// With what the window manager puts around it, once the window has the keyboard.
Geometry Gallery::waitForWindow() const {
    std::optional<ProgramWindow> found;
    const auto isThere = [&] {
        const auto active = display_.property(display_.root(), "_NET_ACTIVE_WINDOW");
        const auto windows = programWindows(display_);
        const auto window = std::ranges::find_if(windows, [&](const ProgramWindow& each) {
            return !active.empty() && each.window == active.front();
        });
        found = window == windows.end() ? std::nullopt : std::optional(*window);
        return found.has_value();
    };
    waitUntil(isThere, "a window of the program");
    return withDecorations(found->frame, display_.property(found->window, "_NET_FRAME_EXTENTS"));
}

// Programs do not say when they have painted: the picture is taken until it no longer changes.
void Gallery::take(const std::string& what, const std::vector<Geometry>& parts) const {
    const fs::path file = fileFor(what);
    const std::string crop = geometryOf(cropFor(parts, margin * scale_, screenFor(scale_)));
    std::string last;
    const auto isStill = [&] {
        run(session_.desktop.command(
            {"import", "-window", "root", "-crop", crop, "+repage", "-strip", file}));
        return last == std::exchange(last, contents(file));
    };
    waitUntil(isStill, "the program to have painted " + what);
    std::cout << file.filename().string() << std::endl;
}

fs::path Gallery::fileFor(const std::string& what) const {
    const std::string appearance = appearance_ == Appearance::dark ? "-dark" : "-light";
    return folder_ / (what + appearance + (scale_ == 2 ? "@2x" : "") + ".png");
}

} // namespace demo
