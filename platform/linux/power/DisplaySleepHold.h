#pragma once

#include "platform/Timer.h"
#include "platform/linux/power/Inhibitor.h"
#include "platform/linux/power/XSaver.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace platform::linux_host {

class Connection;

/// Keeps the display awake while it lives, by every means that there is: one alone may be the one
/// that counts for nothing on this desktop. Making one waits for an answer, and no longer than a
/// second, only where the X server has no say in the matter.
class DisplaySleepHold {
  public:
    /// `reason` is what the desktop's tools show.
    explicit DisplaySleepHold(const std::string& reason);
    ~DisplaySleepHold();
    DisplaySleepHold(const DisplaySleepHold&) = delete;
    DisplaySleepHold& operator=(const DisplaySleepHold&) = delete;

    /// Whether anything holds at present.
    [[nodiscard]] bool isHeld() const;

  private:
    void holdSaver();
    void askServices(const std::string& reason);
    void waitForAnswer();
    void resetSaverUnlessInhibited();

    Connection& connection_;
    SaverControl control_;
    std::optional<SaverSuspension> suspension_;
    std::shared_ptr<Timer> resets_;
    std::vector<std::unique_ptr<Inhibitor>> inhibitors_;
};

} // namespace platform::linux_host
