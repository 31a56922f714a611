#pragma once

#include "platform/Coder.h"
#include "platform/TextField.h"
#include "platform/Timer.h"
#include "platform/View.h"

#include <functional>
#include <memory>
#include <optional>

/// The row of the status menu that shows whether Keep Awake is on and for how long. It counts down
/// on a timer of its own while the menu is open, draws its own highlight, and a click on it closes
/// the menu before it tells its owner.
class KeepAwakeMenuItemView final : public platform::View {
  public:
    explicit KeepAwakeMenuItemView(platform::Rect frame);
    /// Fatal: this view is made in code alone.
    [[noreturn]] explicit KeepAwakeMenuItemView(const platform::Coder& coder);

    /// What a click does.
    std::function<void()> onClick;

    /// Sets text and colour. `remaining` is in seconds and counts only when `active`.
    void refresh(bool active, double remaining);

    void viewDidMoveToWindow() override;
    void updateTrackingAreas() override;
    void mouseEntered(const platform::Event& event) override;
    void mouseExited(const platform::Event& event) override;
    void mouseUp(const platform::Event& event) override;
    void draw(platform::Rect dirtyRect) override;

  private:
    void startRefreshTimer();
    void stopRefreshTimer();
    void refreshFromManager();
    [[nodiscard]] platform::Color textColor() const;

    std::shared_ptr<platform::TextField> label_;
    std::optional<platform::TrackingArea> trackingArea_;
    bool isActive_ = false;
    bool isHighlighted_ = false;                    // the pointer is inside
    std::shared_ptr<platform::Timer> refreshTimer_; // while the row is in a window
};
