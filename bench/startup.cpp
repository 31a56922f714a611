// How long the program takes until it can be seen and used, beside a bare Qt program with one small
// window; what memory it has at rest; and how long its menu takes from the click to the picture.
// There is no tray, so what is seen is a window of the program's own. Prints Markdown tables.
#include "Statistics.h"
#include "tests/desktop/support/KeyGrabs.h"
#include "tests/desktop/support/Pointer.h"
#include "tests/desktop/support/ProcessFigures.h"
#include "tests/desktop/support/Quellbar.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using desktop::VirtualDesktop;
using std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int rounds = 15;

/// A window that is shown on the root window, and when it was.
struct Shown {
    xcb_window_t window;
    steady_clock::time_point when;
};

/// Sees every window that comes onto a screen.
class Watch {
  public:
    explicit Watch(const std::string& display) : display_(display) {
        display_.selectEvents(display_.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
        display_.sync();
    }

    [[nodiscard]] Shown next() const {
        while (true) {
            const auto event = display_.nextEvent("a window", desktop::Deadline());
            if (desktop::XDisplay::kindOf(*event) == XCB_MAP_NOTIFY) {
                return {reinterpret_cast<const xcb_map_notify_event_t&>(*event).window,
                        steady_clock::now()};
            }
        }
    }

    void forget() const {
        display_.sync();
        while (display_.pendingEvent()) {
        }
    }

    /// Waits until the window shows more than one colour along a line down its middle.
    [[nodiscard]] steady_clock::time_point painted(xcb_window_t window) const {
        desktop::waitUntil([&] { return showsColours(window); }, "a picture");
        return steady_clock::now();
    }

    void waitUntilGone(xcb_window_t window) const {
        desktop::waitUntil([&] { return !isShown(window); }, "the menu to be gone");
    }

  private:
    [[nodiscard]] bool isShown(xcb_window_t window) const {
        const desktop::Reply<xcb_get_window_attributes_reply_t> reply(
            xcb_get_window_attributes_reply(
                display_.connection(), xcb_get_window_attributes(display_.connection(), window),
                nullptr));
        return reply && reply->map_state != XCB_MAP_STATE_UNMAPPED;
    }

    [[nodiscard]] bool showsColours(xcb_window_t window) const {
        auto* const connection = display_.connection();
        const desktop::Reply<xcb_get_geometry_reply_t> size(
            xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
        if (!size) {
            return false;
        }
        const desktop::Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(
            connection,
            xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window,
                          static_cast<std::int16_t>(size->width / 3), 0, 1, size->height, ~0U),
            nullptr));
        if (!image) {
            return false;
        }
        const auto* const bytes = xcb_get_image_data(image.get());
        return std::any_of(bytes + 4, bytes + xcb_get_image_data_length(image.get()),
                           [&](std::uint8_t byte) { return byte != bytes[4]; });
    }

    desktop::XDisplay display_;
};

struct Start {
    double milliseconds = 0;
    double mebibytes = 0;
};

double since(steady_clock::time_point begin, steady_clock::time_point end) {
    return Milliseconds(end - begin).count();
}

// At rest: what has to be done after the window is seen is done when the figure stays the same.
double mebibytesOf(const desktop::Process& process) {
    std::uint64_t before = 0;
    std::uint64_t now = desktop::proportionalSetSize(process.pid());
    while (now != before) {
        std::this_thread::sleep_for(std::chrono::milliseconds{200});
        before = std::exchange(now, desktop::proportionalSetSize(process.pid()));
    }
    return static_cast<double>(now) / 1024;
}

Start startQuellbar(const VirtualDesktop& desktop) {
    const Watch watch(desktop.display());
    desktop::KeyGrabs probe(desktop.display());
    const auto begin = steady_clock::now();
    const desktop::Process process(desktop::Quellbar::command(desktop));
    const auto seen = watch.next().when;
    desktop::waitUntil([&] { return probe.isTaken(desktop::defaultShortcut); }, "the shortcut");
    const auto usable = std::max(seen, steady_clock::now());
    return {since(begin, usable), mebibytesOf(process)};
}

Start startBareProgram(const VirtualDesktop& desktop) {
    const Watch watch(desktop.display());
    const auto begin = steady_clock::now();
    const desktop::Process process(desktop.command({QUELLBAR_BENCH_QT_POLLER}));
    const auto seen = watch.next().when;
    return {since(begin, seen), mebibytesOf(process)};
}

void printRow(const char* name, const std::vector<double>& ours,
              const std::vector<double>& figures) {
    const bench::Spread spread = bench::spreadOf(figures);
    std::printf("| %s | %.1f | %.1f | %.1f | %.2f |\n", name, spread.lowest, spread.median,
                spread.highest, bench::pairedRatio(ours, figures));
}

void measureStarts() {
    const VirtualDesktop desktop(desktop::WindowManager::none);
    std::vector<double> ours;
    std::vector<double> bare;
    double ourMemory = 0;
    double bareMemory = 0;
    for (int round = 0; round < rounds; ++round) {
        const Start start = startQuellbar(desktop);
        const Start other = startBareProgram(desktop);
        ours.push_back(start.milliseconds);
        bare.push_back(other.milliseconds);
        ourMemory = start.mebibytes;
        bareMemory = other.mebibytes;
    }
    std::printf(
        "| from the start of the process | min ms | median ms | max ms | Quellbar ÷ this |\n"
        "|---|---|---|---|---|\n");
    printRow("Quellbar, to the item seen and the shortcut live", ours, ours);
    printRow("a bare Qt program, to its window seen", ours, bare);
    std::printf("\nPSS at rest: Quellbar %.1f MiB, the bare Qt program %.1f MiB.\n\n", ourMemory,
                bareMemory);
    std::fflush(stdout);
}

// The first opening makes what later ones find.
void measureMenu() {
    const VirtualDesktop desktop;
    desktop::Pointer pointer(desktop.display());
    const Watch watch(desktop.display());
    const desktop::Quellbar quellbar(desktop);
    (void)watch.next(); // the item
    std::vector<double> openings;
    for (int round = 0; round < rounds; ++round) {
        pointer.moveTo(1270, 8);
        watch.forget();
        const auto begin = steady_clock::now();
        pointer.click();
        const Shown menu = watch.next();
        openings.push_back(since(begin, watch.painted(menu.window)));
        pointer.moveTo(200, 600);
        pointer.click();
        watch.waitUntilGone(menu.window);
    }
    const bench::Spread spread = bench::spreadOf(openings);
    std::printf(
        "From the click to the menu painted: first %.1f ms, median %.1f ms, at most %.1f ms.\n",
        openings.front(), spread.median, spread.highest);
}

} // namespace

int main() {
    measureStarts();
    measureMenu();
}
