#pragma once

#include "corners/CornerHoverMonitor.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

/// The corner monitor on a desktop with one screen of 1440 by 900 points, the pointer in its
/// middle, and one window to minimize. The settings are registered already.
class CornerTest : public testing::Test {
  protected:
    static constexpr auto pollInterval = std::chrono::milliseconds(80);
    static constexpr platform::Point middle{720, 450};
    static constexpr platform::Point topLeft{0, 899};
    static constexpr platform::Point topRight{1439, 899};
    static constexpr platform::Point bottomLeft{0, 0};
    static constexpr platform::Point bottomRight{1439, 0};

    CornerTest();

    static void point(platform::Point at) { simulated::desktop().screens.pointer = at; }
    static void pass(simulated::Clock::Duration duration) {
        simulated::desktop().runLoop.run(duration);
    }
    static void poll(int times = 1) { pass(times * pollInterval); }

    /// Stores these corners as enabled, as another program would.
    static void enable(const platform::StringArray& names);

    /// Starts the monitor and forgets how.
    void startAndForget();
    static void forget();

    /// What was logged since, one text a message.
    static std::vector<std::string> messages();
    /// How often all windows were minimized since.
    static std::size_t reveals();

    CornerHoverMonitor& monitor = CornerHoverMonitor::shared();
};
