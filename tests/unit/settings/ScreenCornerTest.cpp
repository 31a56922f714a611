#include "settings/ScreenCorner.h"

#include <gmock/gmock.h>

#include <unordered_set>

namespace {

using testing::ElementsAre;

TEST(ScreenCorner, IsListedTopBeforeBottomAndLeftBeforeRight) {
    EXPECT_THAT(allScreenCorners, ElementsAre(ScreenCorner::topLeft, ScreenCorner::topRight,
                                              ScreenCorner::bottomLeft, ScreenCorner::bottomRight));
}

TEST(ScreenCorner, IsNamedLikeItsCase) {
    EXPECT_EQ(rawValue(ScreenCorner::topLeft), "topLeft");
    EXPECT_EQ(rawValue(ScreenCorner::topRight), "topRight");
    EXPECT_EQ(rawValue(ScreenCorner::bottomLeft), "bottomLeft");
    EXPECT_EQ(rawValue(ScreenCorner::bottomRight), "bottomRight");
}

TEST(ScreenCorner, IsFoundByItsName) {
    EXPECT_EQ(screenCornerFromRawValue("topLeft"), ScreenCorner::topLeft);
    EXPECT_EQ(screenCornerFromRawValue("topRight"), ScreenCorner::topRight);
    EXPECT_EQ(screenCornerFromRawValue("bottomLeft"), ScreenCorner::bottomLeft);
    EXPECT_EQ(screenCornerFromRawValue("bottomRight"), ScreenCorner::bottomRight);
}

TEST(ScreenCorner, IsFoundByNoOtherText) {
    using namespace std::string_view_literals;
    for (const auto text : {""sv, "BottomRight"sv, "bottom_right"sv, "bottomright"sv,
                            "BOTTOMRIGHT"sv, " bottomRight"sv, "bottomRight "sv, "bottomRight\0"sv,
                            "bottom"sv, "bottomRightX"sv, "3"sv}) {
        EXPECT_EQ(screenCornerFromRawValue(text), std::nullopt) << '"' << text << '"';
    }
}

TEST(ScreenCorner, HashesAsItsName) {
    for (const ScreenCorner corner : allScreenCorners) {
        EXPECT_EQ(std::hash<ScreenCorner>{}(corner),
                  std::hash<std::string_view>{}(rawValue(corner)));
    }
    const std::unordered_set<ScreenCorner> corners{ScreenCorner::topLeft, ScreenCorner::topLeft};
    EXPECT_EQ(corners.size(), 1U);
}

TEST(ScreenCornerSet, IsEmptyUntilACornerIsInserted) {
    ScreenCornerSet corners;
    EXPECT_TRUE(corners.isEmpty());
    for (const ScreenCorner corner : allScreenCorners) {
        EXPECT_FALSE(corners.contains(corner));
    }
    corners.insert(ScreenCorner::topRight);
    EXPECT_FALSE(corners.isEmpty());
}

TEST(ScreenCornerSet, ContainsExactlyWhatWasInsertedAndNotRemoved) {
    for (const ScreenCorner inserted : allScreenCorners) {
        ScreenCornerSet corners{inserted};
        for (const ScreenCorner corner : allScreenCorners) {
            EXPECT_EQ(corners.contains(corner), corner == inserted);
        }
        corners.remove(inserted);
        EXPECT_TRUE(corners.isEmpty());
    }
}

TEST(ScreenCornerSet, HoldsACornerOnce) {
    ScreenCornerSet corners{ScreenCorner::topLeft, ScreenCorner::topLeft};
    corners.remove(ScreenCorner::topLeft);
    corners.remove(ScreenCorner::bottomLeft);
    EXPECT_TRUE(corners.isEmpty());
}

TEST(ScreenCornerSet, IsEqualWhateverTheOrderOfInsertion) {
    EXPECT_EQ((ScreenCornerSet{ScreenCorner::topLeft, ScreenCorner::bottomRight}),
              (ScreenCornerSet{ScreenCorner::bottomRight, ScreenCorner::topLeft}));
    EXPECT_NE((ScreenCornerSet{ScreenCorner::topLeft}), (ScreenCornerSet{ScreenCorner::topRight}));
}

} // namespace
