#include "tests/desktop/support/Monitors.h"

#include <sstream>

namespace desktop {
namespace {

// With the millimetres that xrandr wants beside every size: of a screen of 96 dots to the inch.
std::string xrandrGeometry(const Geometry& geometry) {
    const auto millimetres = [](int pixels) { return pixels * 254 / 960; };
    std::ostringstream text;
    text << geometry.width << '/' << millimetres(geometry.width) << 'x' << geometry.height << '/'
         << millimetres(geometry.height) << '+' << geometry.x << '+' << geometry.y;
    return text.str();
}

} // namespace

void Monitors::arrange(const std::vector<Monitor>& monitors) {
    remove();
    for (const Monitor& monitor : monitors) {
        add(monitor, names_.empty());
    }
}

void Monitors::remove() {
    for (const std::string& name : names_) {
        run(desktop_.command({"xrandr", "--delmonitor", name}));
    }
    names_.clear();
}

// The only output of the screen goes to the primary monitor: one that is left over would be a
// monitor by itself.
void Monitors::add(const Monitor& monitor, bool isPrimary) {
    run(desktop_.command({"xrandr", "--setmonitor", (isPrimary ? "*" : "") + monitor.name,
                          xrandrGeometry(monitor.geometry), isPrimary ? "screen" : "none"}));
    names_.push_back(monitor.name);
}

} // namespace desktop
