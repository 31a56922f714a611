#include "tests/desktop/support/WindowManager.h"

#include <fstream>
#include <ostream>
#include <string_view>

namespace desktop {
namespace {

// An empty keyboard section takes away the bindings that openbox has by itself.
constexpr std::string_view openboxConfiguration = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <theme><name>Clearlooks</name><animateIconify>no</animateIconify></theme>
  <desktops><number>4</number><popupTime>0</popupTime></desktops>
  <keyboard/>
</openbox_config>
)";

constexpr std::string_view gnomeSettings = R"([org/gnome/desktop/interface]
enable-animations=false
)";

void write(const std::filesystem::path& file, std::string_view text) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

} // namespace

std::string name(WindowManager manager) {
    switch (manager) {
    case WindowManager::none:
        return "none";
    case WindowManager::openbox:
        return "openbox";
    case WindowManager::xfwm4:
        return "xfwm4";
    case WindowManager::metacity:
        return "metacity";
    }
    return {};
}

std::ostream& operator<<(std::ostream& stream, WindowManager manager) {
    return stream << name(manager);
}

void configure(WindowManager manager, const std::filesystem::path& configurationFolder) {
    if (manager == WindowManager::openbox) {
        write(configurationFolder / "openbox" / "rc.xml", openboxConfiguration);
    }
    if (manager == WindowManager::metacity) {
        write(configurationFolder / "glib-2.0" / "settings" / "keyfile", gnomeSettings);
    }
}

std::vector<std::string> argumentsFor(WindowManager manager) {
    switch (manager) {
    case WindowManager::none:
        return {};
    case WindowManager::openbox:
        return {"openbox", "--sm-disable"};
    case WindowManager::xfwm4:
        return {"xfwm4", "--compositor=off"};
    case WindowManager::metacity:
        return {"metacity", "--sm-disable", "--no-composite"};
    }
    return {};
}

} // namespace desktop
