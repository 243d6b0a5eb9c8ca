#include "engine/growth.h"

#include <gtest/gtest.h>

using namespace varnel;
using namespace varnel::engine;

namespace {

constexpr Twips kSection = 600;

Extent At(Twips top, Twips height, Twips came_out) {
    return {.box = {0, top, 100, height}, .height = came_out};
}
Extent SubAt(Twips top, Twips height, Twips came_out) {
    return {.box = {0, top, 100, height}, .height = came_out, .gives_way = true};
}

}  // namespace

TEST(Growth, WhatStandsBelowMovesByTheLargestGrowthAbove) {
    std::vector<Extent> controls{At(100, 100, 300), At(100, 100, 250), At(200, 100, 100),
                                 At(199, 100, 100)};
    EXPECT_EQ(Growth().Settle(controls, kSection), 800);
    EXPECT_EQ(controls[2].shift, 200);
    EXPECT_EQ(controls[3].shift, 0);  // Begins beside the ones that grew.
}

TEST(Growth, TwoThatGrowOneBelowTheOtherAddUp) {
    std::vector<Extent> controls{At(300, 100, 150), At(100, 100, 300), At(500, 100, 100)};
    EXPECT_EQ(Growth().Settle(controls, kSection), 850);
    EXPECT_EQ(controls[0].shift, 200);
    EXPECT_EQ(controls[2].shift, 250);
}

TEST(Growth, NothingMovesUpPastWhatStandsBesideAnAbsentSubReport) {
    std::vector<Extent> controls{At(200, 250, 250), SubAt(200, 300, 0), At(500, 100, 100)};
    EXPECT_EQ(Growth().Settle(controls, kSection), kSection);
    EXPECT_EQ(controls[2].shift, 0);
}

TEST(Growth, ARuleUnderAFigureMovesWithItAndNotWithATextBesideIt) {
    const auto rule = [](Twips top) {
        return Extent{.box = {200, top, 100, 10}, .height = 10, .follows_column = true};
    };
    const auto figure = [](Twips top) {
        return Extent{.box = {200, top, 100, 100}, .height = 100};
    };
    std::vector<Extent> controls{At(100, 100, 200), figure(100), rule(210),
                                 At(300, 100, 250), figure(300), rule(410)};
    EXPECT_EQ(Growth().Settle(controls, kSection), 850);
    EXPECT_EQ(controls[2].shift, 0);
    EXPECT_EQ(controls[4].shift, 100);
    EXPECT_EQ(controls[5].shift, 100);
}

TEST(Growth, TheSectionHoldsWhatGrewOverItsEnd) {
    std::vector<Extent> controls{At(550, 100, 400)};
    EXPECT_EQ(Growth().Settle(controls, kSection), 950);
}
