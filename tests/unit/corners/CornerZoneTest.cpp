#include "unit/corners/CornerTest.h"

namespace {

using platform::Point;
using platform::Rect;
using simulated::desktop;
using testing::IsEmpty;

class CornerZone : public CornerTest {
  protected:
    CornerZone() { monitor.start(); }

    static void arrange(const std::vector<Rect>& frames) {
        desktop().screens.screens.clear();
        for (const Rect& frame : frames) {
            desktop().screens.screens.push_back({frame});
        }
    }

    /// The corner that a new visit at this point begins in; empty when it is in none.
    static std::string cornerAt(Point at) {
        enable({});
        poll();
        enable({"topLeft", "topRight", "bottomLeft", "bottomRight"});
        forget();
        point(at);
        poll();
        constexpr std::string_view entered = "Cursor entered enabled corner ";
        return messages().empty() ? "" : messages()[0].substr(entered.size());
    }
};

TEST_F(CornerZone, IsAtEachCornerOfTheScreen) {
    EXPECT_EQ(cornerAt(topLeft), "topLeft");
    EXPECT_EQ(cornerAt(topRight), "topRight");
    EXPECT_EQ(cornerAt(bottomLeft), "bottomLeft");
    EXPECT_EQ(cornerAt(bottomRight), "bottomRight");
}

TEST_F(CornerZone, IsNotInTheMiddleNorAlongTheEdges) {
    for (const Point at :
         {middle, Point{0, 450}, Point{1439, 450}, Point{720, 0}, Point{720, 899}}) {
        EXPECT_EQ(cornerAt(at), "") << at.x << ", " << at.y;
    }
}

TEST_F(CornerZone, IncludesThePoint15PointsInFromBothEdges) {
    EXPECT_EQ(cornerAt({15, 885}), "topLeft");
    EXPECT_EQ(cornerAt({1425, 885}), "topRight");
    EXPECT_EQ(cornerAt({15, 15}), "bottomLeft");
    EXPECT_EQ(cornerAt({1425, 15}), "bottomRight");
}

TEST_F(CornerZone, EndsAHundredthOfAPointFurtherInOnEitherAxis) {
    for (const Point at :
         {Point{15.01, 885}, Point{15, 884.99}, Point{1424.99, 885}, Point{1425, 884.99},
          Point{15.01, 15}, Point{15, 15.01}, Point{1424.99, 15}, Point{1425, 15.01}}) {
        EXPECT_EQ(cornerAt(at), "") << at.x << ", " << at.y;
    }
}

TEST_F(CornerZone, HasNoOuterLimit) {
    EXPECT_EQ(cornerAt({-5000, 5000}), "topLeft");
    EXPECT_EQ(cornerAt({5000, 885}), "topRight");
    EXPECT_EQ(cornerAt({15, -5000}), "bottomLeft");
    EXPECT_EQ(cornerAt({5000, -5000}), "bottomRight");
}

TEST_F(CornerZone, OutsideAllScreensButBetweenTheZonesIsNone) {
    for (const Point at : {Point{-5000, 450}, Point{720, 5000}, Point{5000, 450}}) {
        EXPECT_EQ(cornerAt(at), "") << at.x << ", " << at.y;
    }
}

TEST_F(CornerZone, FollowsTheFrameWhereverItLies) {
    arrange({{{-1920.5, 300.25}, {1920, 1080}}});
    EXPECT_EQ(cornerAt({-1905.5, 1365.25}), "topLeft");
    EXPECT_EQ(cornerAt({-1905.49, 1365.25}), "");
    EXPECT_EQ(cornerAt({-15.5, 1365.25}), "topRight");
    EXPECT_EQ(cornerAt({-15.5, 1365.24}), "");
    EXPECT_EQ(cornerAt({-1905.5, 315.25}), "bottomLeft");
    EXPECT_EQ(cornerAt({-1905.5, 315.26}), "");
    EXPECT_EQ(cornerAt({-15.5, 315.25}), "bottomRight");
    EXPECT_EQ(cornerAt({-15.51, 315.25}), "");
}

TEST_F(CornerZone, OfTheFirstScreenExtendsOverTheOneToItsRight) {
    arrange({{{0, 0}, {1440, 900}}, {{1440, 0}, {1920, 1080}}});
    EXPECT_EQ(cornerAt({2400, 1000}), "topRight");
    EXPECT_EQ(cornerAt({2400, 10}), "bottomRight");
    EXPECT_EQ(cornerAt({2400, 500}), "");
}

TEST_F(CornerZone, OfTheFirstScreenExtendsOverTheOneToItsLeft) {
    arrange({{{0, 0}, {1440, 900}}, {{-1920, 0}, {1920, 1080}}});
    EXPECT_EQ(cornerAt({-960, 885}), "topLeft");
    EXPECT_EQ(cornerAt({-960, 884}), "");
    EXPECT_EQ(cornerAt({-960, 15}), "bottomLeft");
}

TEST_F(CornerZone, OfTheFirstScreenExtendsOverTheOneAboveIt) {
    arrange({{{0, 0}, {1440, 900}}, {{0, 900}, {1440, 900}}});
    EXPECT_EQ(cornerAt({10, 1400}), "topLeft");
    EXPECT_EQ(cornerAt({1430, 1400}), "topRight");
    EXPECT_EQ(cornerAt({720, 1400}), "");
}

TEST_F(CornerZone, OfTheFirstScreenWinsOverThatOfALaterOne) {
    const Rect left{{0, 0}, {1440, 900}};
    const Rect right{{1440, 0}, {1440, 900}};
    arrange({left, right});
    EXPECT_EQ(cornerAt({1445, 890}), "topRight");
    EXPECT_EQ(cornerAt({1435, 890}), "topRight");
    arrange({right, left});
    EXPECT_EQ(cornerAt({1445, 890}), "topLeft");
    EXPECT_EQ(cornerAt({1435, 890}), "topLeft");
}

TEST_F(CornerZone, OfALaterScreenCountsWhereTheFirstHasNone) {
    arrange({{{0, 0}, {1440, 900}}, {{1440, 200}, {800, 600}}});
    EXPECT_EQ(cornerAt({2230, 790}), "topRight");
    EXPECT_EQ(cornerAt({2230, 210}), "bottomRight");
    EXPECT_EQ(cornerAt({1450, 790}), "topLeft");
    EXPECT_EQ(cornerAt({1450, 210}), "bottomLeft");
    EXPECT_EQ(cornerAt({1840, 500}), "");
}

TEST_F(CornerZone, OnThreeScreensIsThatOfTheFirstInTheListThatHasOne) {
    const Rect middleScreen{{0, 0}, {1000, 1000}};
    const Rect raised{{1000, 100}, {1000, 800}};
    const Rect farthest{{2000, 200}, {1000, 600}};
    arrange({middleScreen, raised, farthest});
    EXPECT_EQ(cornerAt({2995, 990}), "topRight");    // of the first: above the other two
    EXPECT_EQ(cornerAt({2995, 890}), "topRight");    // of the second
    EXPECT_EQ(cornerAt({2005, 790}), "topLeft");     // of the third
    EXPECT_EQ(cornerAt({2005, 110}), "bottomRight"); // of the second, below the third
    EXPECT_EQ(cornerAt({2500, 500}), "");
    arrange({farthest, raised, middleScreen});
    EXPECT_EQ(cornerAt({500, 790}), "topLeft");    // of the farthest, to its left
    EXPECT_EQ(cornerAt({990, 150}), "bottomLeft"); // of the farthest, likewise
}

TEST_F(CornerZone, OnAScreenSmallerThanTwoOfThemGoesByTheOrderOfTheCorners) {
    arrange({{{0, 0}, {20, 20}}});
    EXPECT_EQ(cornerAt({10, 10}), "topLeft");
    EXPECT_EQ(cornerAt({16, 10}), "topRight");
    EXPECT_EQ(cornerAt({10, 4}), "bottomLeft");
    EXPECT_EQ(cornerAt({16, 4}), "bottomRight");
}

TEST_F(CornerZone, OnANarrowScreenLeftWinsOverRight) {
    arrange({{{0, 0}, {20, 900}}});
    EXPECT_EQ(cornerAt({10, 890}), "topLeft");
    EXPECT_EQ(cornerAt({10, 10}), "bottomLeft");
    EXPECT_EQ(cornerAt({10, 450}), "");
}

TEST_F(CornerZone, OnALowScreenTopWinsOverBottom) {
    arrange({{{0, 0}, {1440, 20}}});
    EXPECT_EQ(cornerAt({10, 10}), "topLeft");
    EXPECT_EQ(cornerAt({1430, 10}), "topRight");
    EXPECT_EQ(cornerAt({720, 10}), "");
}

TEST_F(CornerZone, OfASmallFirstScreenWinsOverALaterScreen) {
    arrange({{{0, 0}, {20, 20}}, {{20, 0}, {1440, 900}}});
    EXPECT_EQ(cornerAt({25, 890}), "topRight");
}

TEST_F(CornerZone, IsNowhereWithoutScreens) {
    arrange({});
    EXPECT_EQ(cornerAt({0, 0}), "");
    EXPECT_EQ(cornerAt({-5000, 5000}), "");
}

TEST_F(CornerZone, GoesByTheScreensAsTheyAreAtEachPoll) {
    EXPECT_EQ(cornerAt({1430, 890}), "topRight");
    arrange({{{0, 0}, {1920, 1080}}});
    EXPECT_EQ(cornerAt({1430, 890}), "");
    EXPECT_EQ(cornerAt({1910, 1070}), "topRight");
}

} // namespace
