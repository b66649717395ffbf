#pragma once

#include <windows.h>

// Where things lie on a slider, and which position a place on it means; computed anew for every use from the
// size of its client area. Minimum and maximum differ.
struct SliderRange {
    int position;
    int minimum;
    int maximum;
};

class SliderGeometry {
public:
    SliderGeometry(int width, int height) : left_(2), right_(width - 2), track_(height - 6) {}

    int Left() const { return left_; }
    int Right() const { return right_; }
    int TrackY() const { return track_; }

    // A position outside the range stands at its end.
    int ThumbX(const SliderRange& range) const;
    // A place beyond the track means its end.
    int PositionAt(int x, const SliderRange& range) const;
    // On the thumb or on the track.
    bool Hits(POINT point, const SliderRange& range) const;

private:
    int left_;
    int right_;
    int track_;
};
