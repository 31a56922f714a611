#include "platform/View.h"

#include "platform/Drawing.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::AutoresizingMask;
using platform::Color;
using platform::Point;
using platform::Rect;
using platform::View;
using simulated::desktop;
using simulated::FilledArea;
using simulated::stateOf;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto enteredAndExited = platform::TrackingAreaOptions::mouseEnteredAndExitedActiveAlways;

std::shared_ptr<View> viewAt(Rect frame) {
    return std::make_shared<View>(frame);
}

/// Fills what it is asked to draw, and counts what it is told.
class BusyView final : public View {
  public:
    using View::View;

    void draw(Rect dirtyRect) override {
        platform::fillRoundedRect(dirtyRect, 1, 2, Color::systemRed);
    }
    void viewDidMoveToWindow() override { moves += window() == nullptr ? "-" : "+"; }
    void updateTrackingAreas() override { ++trackingUpdates; }
    void mouseEntered(const platform::Event&) override { moves += "e"; }
    void mouseExited(const platform::Event&) override { moves += "x"; }

    std::string moves;
    int trackingUpdates = 0;
};

TEST(SimulatedView, HasBoundsOfItsSizeAtTheOrigin) {
    const auto view = viewAt({{3, 4}, {100, 50}});
    EXPECT_EQ(view->frame(), (Rect{{3, 4}, {100, 50}}));
    EXPECT_EQ(view->bounds(), (Rect{{0, 0}, {100, 50}}));
}

TEST(SimulatedView, KeepsItsSubviewsInTheOrderOfAdding) {
    const auto view = viewAt({});
    const auto first = viewAt({});
    const auto second = viewAt({});
    view->addSubview(first);
    view->addSubview(second);
    EXPECT_THAT(stateOf(*view).subviews(), ElementsAre(&stateOf(*first), &stateOf(*second)));
    EXPECT_EQ(stateOf(*first).superview(), &stateOf(*view));
}

TEST(SimulatedView, IsOutlivedByASubviewThatSomebodyHolds) {
    auto view = viewAt({});
    const auto subview = viewAt({});
    view->addSubview(subview);
    view.reset();
    EXPECT_EQ(stateOf(*subview).superview(), nullptr);
}

TEST(SimulatedView, ResizesTheSubviewsThatFollowIt) {
    const auto view = viewAt({});
    const auto follower = viewAt({{1, 2}, {0, 0}});
    const auto stranger = viewAt({{1, 2}, {3, 4}});
    follower->setAutoresizingMask(AutoresizingMask::widthAndHeightSizable);
    view->addSubview(follower);
    view->addSubview(stranger);
    view->setFrame({{50, 50}, {120, 24}});
    EXPECT_EQ(follower->frame(), (Rect{{1, 2}, {120, 24}}));
    EXPECT_EQ(stranger->frame(), (Rect{{1, 2}, {3, 4}}));
}

TEST(SimulatedView, ComesIntoAWindowWithTheViewThatItIsIn) {
    platform::Window window({400, 300}, "Window");
    const auto view = viewAt({});
    const auto inner = std::make_shared<BusyView>(Rect{});
    view->addSubview(inner);
    EXPECT_EQ(inner->moves, "");
    window.contentView()->addSubview(view);
    EXPECT_EQ(inner->moves, "+");
    EXPECT_EQ(inner->trackingUpdates, 1);
    EXPECT_EQ(inner->window(), &window);
}

TEST(SimulatedView, LeavesTheWindowThatIsNoMore) {
    auto window = std::make_unique<platform::Window>(platform::Size{400, 300}, "Window");
    const auto view = std::make_shared<BusyView>(Rect{});
    window->contentView()->addSubview(view);
    window.reset();
    EXPECT_EQ(view->moves, "+-");
}

TEST(SimulatedView, RenewsItsTrackingAreasWhenItIsResizedInAWindow) {
    platform::Window window({400, 300}, "Window");
    const auto view = std::make_shared<BusyView>(Rect{});
    view->setFrame({{0, 0}, {10, 10}});
    EXPECT_EQ(view->trackingUpdates, 0);
    window.contentView()->addSubview(view);
    view->setFrame({{5, 5}, {10, 10}});
    EXPECT_EQ(view->trackingUpdates, 1);
    view->setFrame({{5, 5}, {20, 10}});
    EXPECT_EQ(view->trackingUpdates, 2);
}

TEST(SimulatedView, CountsFromItsOwnCorner) {
    platform::Window window({400, 300}, "Window");
    const auto view = viewAt({{100, 50}, {200, 100}});
    const auto inner = viewAt({{10, 5}, {20, 20}});
    view->addSubview(inner);
    window.contentView()->addSubview(view);
    EXPECT_EQ(inner->convertFromWindow({110, 55}), (Point{0, 0}));
    EXPECT_EQ(view->convertFromWindow({0, 0}), (Point{-100, -50}));
}

TEST(SimulatedView, IsToldOncePerArrivalOfThePointerInAnAreaOfIts) {
    const auto view = std::make_shared<BusyView>(Rect{{0, 0}, {100, 50}});
    const auto area = view->addTrackingArea({{10, 10}, {20, 20}}, enteredAndExited);
    for (const Point at : {Point{0, 0}, {10, 10}, {29, 29}, {30, 30}, {9, 10}, {15, 15}}) {
        stateOf(*view).pointerMoved(at);
    }
    EXPECT_EQ(view->moves, "exe");
    view->removeTrackingArea(area);
    stateOf(*view).pointerMoved({50, 45});
    EXPECT_EQ(view->moves, "exe");
    EXPECT_THAT(stateOf(*view).trackingAreas(), IsEmpty());
}

TEST(SimulatedView, IsDrawnWhenItIsDisplayedAndSaysWhatItFilled) {
    BusyView view(Rect{{3, 3}, {10, 5}});
    EXPECT_TRUE(stateOf(view).needsDisplay());
    EXPECT_THAT(stateOf(view).display(),
                ElementsAre(FilledArea{{{0, 0}, {10, 5}}, 1, 2, Color::systemRed}));
    EXPECT_FALSE(stateOf(view).needsDisplay());
    view.setNeedsDisplay();
    EXPECT_TRUE(stateOf(view).needsDisplay());
    EXPECT_EQ(desktop().calls.of({"fillRoundedRect"}).at(0),
              "fillRoundedRect((0, 0) 10x5, 1, 2, systemRed)");
}

TEST(SimulatedView, HasTheLayerThatItWants) {
    View view(Rect{});
    EXPECT_FALSE(stateOf(view).layer());
    view.setWantsLayer();
    view.setLayerCornerRadius(6);
    view.setLayerBorderWidth(2);
    view.setLayerBorderColor({0.1, 0.2, 0.3, 1});
    view.setWantsLayer(); // has one already
    EXPECT_EQ(stateOf(view).layer()->cornerRadius, 6);
    EXPECT_EQ(stateOf(view).layer()->borderWidth, 2);
    EXPECT_EQ(stateOf(view).layer()->borderColor, (platform::CGColor{0.1, 0.2, 0.3, 1}));
    EXPECT_EQ(stateOf(view).layer()->backgroundColor, std::nullopt);
}

TEST(SimulatedViewDeathTest, UsedAsNoViewCanBeIsMisuse) {
    const auto view = viewAt({});
    const auto subview = viewAt({});
    view->addSubview(subview);
    EXPECT_DEATH(view->addSubview(subview), "that has its place already: view");
    EXPECT_DEATH(view->addSubview(view), "that has its place already: view");
    EXPECT_DEATH(view->addSubview(nullptr), "no view is added to a view");
    EXPECT_DEATH(view->setLayerCornerRadius(6), "a layer is changed of a view that has none: view");
    EXPECT_DEATH(view->removeTrackingArea(platform::TrackingArea{99}),
                 "a tracking area is removed that the view does not have: view");
    EXPECT_DEATH(subview->constrainCenteredVertically(*view, 1, 1),
                 "constraints place a view that is no subview: view");
    EXPECT_DEATH(view->addClickGestureRecognizer({}), "clicks are recognized for nobody: view");
    EXPECT_DEATH(stateOf(*view).click(), "the user clicks on what is not on the screen: view");
    EXPECT_DEATH(platform::fillRoundedRect({}, 1, 1, Color::white),
                 "an area is filled while no view draws");
}

TEST(SimulatedAppearance, DecidesWhatAColourLooksLike) {
    const auto light = cgColor(Color::label);
    desktop().appearance.isDark = true;
    EXPECT_NE(cgColor(Color::label), light);
    EXPECT_EQ(cgColor(Color::white), (platform::CGColor{1, 1, 1, 1}));
}

} // namespace
