#include "contract/World.h"
#include "platform/TextField.h"
#include "platform/View.h"
#include "platform/Window.h"

namespace {

using platform::Point;
using platform::Rect;
using platform::View;
using platform::Window;

/// Counts what the desktop tells it.
class ToldView final : public View {
  public:
    using View::View;

    void viewDidMoveToWindow() override {
        windows.push_back(window());
        View::viewDidMoveToWindow();
    }
    [[nodiscard]] bool acceptsFirstResponder() const override { return true; }

    std::vector<Window*> windows;
};

constexpr Rect frame{{10, 20}, {100, 50}};

class ViewContract : public contract::ProgramTest {
  protected:
    Window window_{{300, 200}, "window"};
    View& content_ = *window_.contentView();
};

TEST_F(ViewContract, AViewIsWhereItWasPutAndItsBoundsBeginAtItsOwnCorner) {
    View view(frame);
    EXPECT_EQ(view.frame(), frame);
    EXPECT_EQ(view.bounds(), (Rect{{0, 0}, {100, 50}}));
    view.setFrame({{1, 2}, {3, 4}});
    EXPECT_EQ(view.frame(), (Rect{{1, 2}, {3, 4}}));
    EXPECT_EQ(view.bounds(), (Rect{{0, 0}, {3, 4}}));
}

TEST_F(ViewContract, TheContentFillsTheWindow) {
    EXPECT_EQ(content_.frame(), (Rect{{0, 0}, {300, 200}}));
}

TEST_F(ViewContract, AViewIsInNoWindowUntilItIsAddedToOne) {
    const auto outer = std::make_shared<View>(frame);
    const auto inner = std::make_shared<ToldView>(frame);
    outer->addSubview(inner);
    EXPECT_EQ(inner->window(), nullptr);
    EXPECT_EQ(inner->enclosingMenuItem(), nullptr);
    content_.addSubview(outer);
    EXPECT_EQ(outer->window(), &window_);
    EXPECT_EQ(inner->window(), &window_);
    EXPECT_EQ(inner->windows, std::vector{&window_});
}

TEST_F(ViewContract, PointsOfTheWindowAreTurnedIntoTheViewsOwn) {
    const auto outer = std::make_shared<View>(frame);
    const auto inner = std::make_shared<View>(Rect{{5, 6}, {20, 10}});
    outer->addSubview(inner);
    content_.addSubview(outer);
    EXPECT_EQ(content_.convertFromWindow({40, 30}), (Point{40, 30}));
    EXPECT_EQ(outer->convertFromWindow({40, 30}), (Point{30, 10}));
    EXPECT_EQ(inner->convertFromWindow({40, 30}), (Point{25, 4}));
}

TEST_F(ViewContract, ASizableSubviewFollowsItsSuperviewAndOthersStay) {
    View view(Rect{});
    const auto sizable = std::make_shared<View>(view.bounds());
    const auto fixed = std::make_shared<View>(frame);
    sizable->setAutoresizingMask(platform::AutoresizingMask::widthAndHeightSizable);
    view.addSubview(sizable);
    view.addSubview(fixed);
    view.setFrame({{200, 290}, {120, 24}});
    EXPECT_EQ(sizable->frame(), (Rect{{0, 0}, {120, 24}}));
    EXPECT_EQ(fixed->frame(), frame);
}

TEST_F(ViewContract, TheKeyboardGoesToAViewThatTakesItInThisWindow) {
    const auto view = std::make_shared<ToldView>(frame);
    content_.addSubview(view);
    EXPECT_TRUE(window_.makeFirstResponder(*view));
    const auto plain = std::make_shared<View>(frame);
    content_.addSubview(plain);
    EXPECT_FALSE(window_.makeFirstResponder(*plain));
}

TEST_F(ViewContract, TrackingAreasHaveNamesOfTheirOwn) {
    View view(frame);
    using platform::TrackingAreaOptions;
    const auto first =
        view.addTrackingArea(frame, TrackingAreaOptions::mouseEnteredAndExitedActiveAlways);
    const auto second =
        view.addTrackingArea(frame, TrackingAreaOptions::mouseEnteredAndExitedActiveAlways);
    EXPECT_NE(first, second);
    view.removeTrackingArea(first);
    view.removeTrackingArea(second);
}

TEST_F(ViewContract, ASubviewOutlivesTheViewThatHeldIt) {
    const auto inner = std::make_shared<View>(frame);
    {
        View outer(frame);
        outer.addSubview(inner);
    }
    EXPECT_EQ(inner->window(), nullptr);
    inner->setFrame({{1, 2}, {3, 4}});
    inner->setNeedsDisplay();
    EXPECT_EQ(inner->frame(), (Rect{{1, 2}, {3, 4}}));
}

} // namespace
