#include "controls/slider_geometry.h"

#include <algorithm>
#include <cmath>

int SliderGeometry::ThumbX(const SliderRange& range) const {
    const double position = std::max(std::min(range.position, range.maximum), range.minimum);
    const double part = (position - range.minimum) / (static_cast<double>(range.maximum) - range.minimum);
    return static_cast<int>(std::trunc(part * (right_ - left_) + 0.5)) + left_;
}

int SliderGeometry::PositionAt(int x, const SliderRange& range) const {
    // A slider without room for a track has one place only.
    if (right_ <= left_) return range.minimum;
    const double place = std::min(std::max(x, left_), right_) - left_;
    const double span = static_cast<double>(range.maximum) - range.minimum;
    return static_cast<int>(std::trunc(place / (right_ - left_) * span + 0.5) + range.minimum);
}

bool SliderGeometry::Hits(POINT point, const SliderRange& range) const {
    const int thumb = ThumbX(range);
    const RECT on_thumb = {thumb - 3, track_ - 1, thumb + 4, track_ + 5};
    const RECT on_track = {left_ - 1, track_ - 1, right_ + 1, track_ + 4};
    return PtInRect(&on_thumb, point) || PtInRect(&on_track, point);
}
