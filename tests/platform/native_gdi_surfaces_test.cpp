#include <gtest/gtest.h>

#include <random>

#include "surface.h"

// Regions, and surfaces that scroll: what lies under windows of the stand-in.

namespace {

constexpr int kSide = 12;
using Grid = std::vector<bool>;

Grid PointsOf(const Region& region) {
    Grid points(kSide * kSide);
    for (LONG y = 0; y < kSide; ++y) {
        for (LONG x = 0; x < kSide; ++x)
            points[static_cast<size_t>(y * kSide + x)] = region.Contains({x, y});
    }
    return points;
}

void ExpectDisjoint(const Region& region) {
    const auto& rects = region.Rects();
    for (size_t i = 0; i < rects.size(); ++i) {
        EXPECT_LT(rects[i].left, rects[i].right);
        EXPECT_LT(rects[i].top, rects[i].bottom);
        for (size_t k = i + 1; k < rects.size(); ++k) {
            const bool apart = rects[i].right <= rects[k].left || rects[k].right <= rects[i].left ||
                               rects[i].bottom <= rects[k].top || rects[k].bottom <= rects[i].top;
            EXPECT_TRUE(apart);
        }
    }
}

RECT RandomRect(std::mt19937& random) {
    std::uniform_int_distribution<LONG> place(0, kSide);
    return {place(random), place(random), place(random), place(random)};
}

Region RandomRegion(std::mt19937& random, int rects) {
    Region region;
    for (int i = 0; i < rects; ++i)
        region.Add(RandomRect(random));
    return region;
}

TEST(Regions, AreSetsOfPoints) {
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        const Region a = RandomRegion(random, 4);
        const Region b = RandomRegion(random, 3);
        const Grid inA = PointsOf(a);
        const Grid inB = PointsOf(b);
        Region sum = a, rest = a, common = a;
        sum.Add(b);
        rest.Subtract(b);
        common.Intersect(b);
        const Grid inSum = PointsOf(sum), inRest = PointsOf(rest), inCommon = PointsOf(common);
        for (size_t i = 0; i < inA.size(); ++i) {
            ASSERT_EQ(inSum[i], inA[i] || inB[i]);
            ASSERT_EQ(inRest[i], inA[i] && !inB[i]);
            ASSERT_EQ(inCommon[i], inA[i] && inB[i]);
        }
        for (const Region& region : {a, b, sum, rest, common})
            ExpectDisjoint(region);
        Region none = a;
        none.Subtract(a);
        EXPECT_TRUE(none.Empty());
    }
}

TEST(Regions, StaySmallUnderManyAdditions) {
    Region region;
    for (LONG y = 0; y < 100; ++y) {
        for (LONG x = 0; x < 100; ++x)
            region.Add(RECT{x, y, x + 1, y + 1});
    }
    EXPECT_LE(region.Rects().size(), 2u);
    EXPECT_EQ(region.Bounds().right, 100);
    region.Offset(-2147483647, 5);
    region.Offset(-2147483647, 5);
    EXPECT_TRUE(region.Empty());
    EXPECT_EQ(region.Bounds().right, 0);
}

uint32_t& At(Surface& surface, int x, int y) {
    return surface
        .pixels[static_cast<size_t>(y) * static_cast<size_t>(surface.width) + static_cast<size_t>(x)];
}

TEST(Surfaces, ScrollInsideTheClip) {
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        Surface surface(kSide, kSide);
        for (size_t i = 0; i < surface.pixels.size(); ++i)
            surface.pixels[i] = static_cast<uint32_t>(i + 1);
        Surface before = surface;
        const Region clip = RandomRegion(random, 3);
        std::uniform_int_distribution<int> step(-5, 5);
        const int dx = step(random), dy = step(random);
        const Region exposed = ScrollSurface(surface, clip, dx, dy);
        for (LONG y = 0; y < kSide; ++y) {
            for (LONG x = 0; x < kSide; ++x) {
                const bool moved = clip.Contains({x, y}) && clip.Contains({x - dx, y - dy});
                const uint32_t expected = moved ? At(before, x - dx, y - dy) : At(before, x, y);
                ASSERT_EQ(At(surface, x, y), expected) << x << ' ' << y << " by " << dx << ' ' << dy;
                ASSERT_EQ(exposed.Contains({x, y}), clip.Contains({x, y}) && !moved);
            }
        }
    }
}

}  // namespace
