#include "demo/Stage.h"

#include <algorithm>
#include <fstream>

namespace demo {
namespace {

constexpr std::string_view panelConfiguration = R"(
rounded = 0
border_width = 0
background_color = #1f2933 100
border_color = #1f2933 100

rounded = 3
border_width = 0
background_color = #3e5266 100
border_color = #3e5266 100

rounded = 3
border_width = 0
background_color = #2a3743 100
border_color = #2a3743 100

panel_items = TC
panel_size = 100% 36
panel_margin = 0 0
panel_padding = 6 4 6
panel_background_id = 1
panel_position = bottom center horizontal
panel_layer = top
strut_policy = follow_size
taskbar_mode = single_desktop
taskbar_padding = 0 0 6
taskbar_background_id = 0
taskbar_name = 0
task_text = 1
task_icon = 0
task_centered = 1
task_maximum_size = 132 28
task_padding = 8 2
task_font = DejaVu Sans 9
task_font_color = #f0f4f8 100
task_active_font_color = #ffffff 100
task_iconified_font_color = #9fb3c8 100
task_background_id = 2
task_active_background_id = 2
task_iconified_background_id = 3
time1_format = %H:%M
time1_font = DejaVu Sans Bold 10
clock_font_color = #f0f4f8 100
clock_padding = 10 0
)";

constexpr std::string_view notes = R"(Before the meeting

  - read the draft once more
  - bring the printed figures
  - ask about the date in May

Afterwards

  - write to everyone who could not come
  - water the plants
)";

constexpr auto terminalScript = R"(echo '$ ls -C /usr'; ls -C /usr
echo; echo '$ date +%A'; date +%A
echo; printf '$ '; exec sleep infinity)";

} // namespace

Stage::Stage(const desktop::VirtualDesktop& desktop)
    : desktop_(desktop), view_(desktop.display()) {}

void Stage::set() {
    paintBackground();
    openPanel();
    openTerminals();
    openSmallPrograms();
    openDialogs();
    view_.settle();
}

void Stage::paintBackground() const {
    desktop::run(desktop_.command({"xsetroot", "-solid", "#52708c", "-cursor_name", "left_ptr"}));
}

void Stage::openPanel() {
    open({"tint2", "-c", write("tint2rc", panelConfiguration)});
}

void Stage::openTerminals() {
    const auto terminal = [](const std::string& title, const std::string& geometry) {
        return std::vector<std::string>{
            "xterm", "-title", title, "-geometry", geometry,      "-fa",     "DejaVu Sans Mono",
            "-fs",   "11",     "-bg", "#14212e",   "-fg",         "#d9e2ec", "-b",
            "8",     "-e",     "sh",  "-c",        terminalScript};
    };
    open(terminal("Workshop", "64x14+40+40"));
    std::vector<std::string> iconic = terminal("Build log", "64x14+80+120");
    iconic.insert(iconic.begin() + 1, "-iconic");
    view_.waitUntilHidden(open(iconic));
}

void Stage::openSmallPrograms() {
    open({"xclock", "-title", "Clock", "-geometry", "210x210+1030+40", "-bg", "#f0f4f8", "-hd",
          "#334e68", "-hl", "#334e68", "-update", "60", "-render"});
    open({"xcalc", "-xrm", "*customization: -color", "-title", "Calculator", "-geometry",
          "+700+40"});
    open({"xeyes", "-title", "Eyes", "-geometry", "210x130+1030+300"});
}

void Stage::openDialogs() {
    open({"zenity", "--calendar", "--title=Calendar", "--text=Pick a day", "--day=14", "--month=5",
          "--year=2026"},
         {.x = 1012, .y = 472});
    const xcb_window_t parent =
        open({"zenity", "--text-info", "--title=Notes", "--width=420", "--height=330",
              "--filename=" + write("notes.txt", notes).string()});
    view_.move(parent, 80, 360);
    open({"zenity", "--question", "--title=Question", "--width=280",
          "--text=Keep the changes to your notes?", "--modal",
          "--attach=" + std::to_string(parent)},
         {.x = 300, .y = 520});
}

void Stage::open(std::vector<std::string> arguments, Place place) {
    view_.move(open(std::move(arguments)), place.x, place.y);
}

xcb_window_t Stage::open(std::vector<std::string> arguments) {
    processes_.emplace_back(desktop_.command(std::move(arguments)));
    opened_.push_back(waitForNewWindow());
    return opened_.back();
}

xcb_window_t Stage::waitForNewWindow() const {
    xcb_window_t found = XCB_NONE;
    const auto isNew = [this](xcb_window_t window) {
        return std::ranges::find(opened_, window) == opened_.end();
    };
    const auto anyIsNew = [&] {
        const auto managed = view_.managed();
        const auto position = std::ranges::find_if(managed, isNew);
        found = position == managed.end() ? xcb_window_t{XCB_NONE} : *position;
        return found != XCB_NONE;
    };
    desktop::waitUntil(anyIsNew, "the window of a program");
    return found;
}

std::filesystem::path Stage::write(const std::string& name, std::string_view text) const {
    const std::filesystem::path file = desktop_.home() / name;
    std::ofstream(file) << text;
    return file;
}

} // namespace demo
