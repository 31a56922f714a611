#pragma once

#include "platform/Date.h"
#include "platform/Geometry.h"
#include "platform/Log.h"
#include "platform/Timer.h"
#include "settings/ScreenCorner.h"

#include <memory>
#include <optional>

/// Turns the screen corners into hot corners: when the pointer rests for a moment in a corner that
/// the user has enabled, all windows are minimized, once for each visit. The enabled corners are
/// read at every poll, so a change needs no restart.
class CornerHoverMonitor : public std::enable_shared_from_this<CornerHoverMonitor> {
  public:
    static CornerHoverMonitor& shared();

    /// Starts polling, anew where it was running. It polls also while no corner is enabled.
    void start();

    /// Stops polling and forgets the present visit.
    void stop();

    CornerHoverMonitor(const CornerHoverMonitor&) = delete;
    CornerHoverMonitor& operator=(const CornerHoverMonitor&) = delete;
    ~CornerHoverMonitor() = default;

  private:
    CornerHoverMonitor();

    void scheduleTimer();
    void tick();
    void beginVisitAt(ScreenCorner corner);
    void endVisit();
    void fireWhenRested();
    [[nodiscard]] static std::optional<ScreenCorner> corner(platform::Point at);

    platform::Logger log_;
    std::shared_ptr<platform::Timer> timer_;
    std::optional<platform::Date> dwellStart_; // set while the pointer is in an enabled corner
    bool didTriggerForThisVisit_ = false;
};
