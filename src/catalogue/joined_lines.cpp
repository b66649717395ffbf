#include "catalogue/joined_lines.h"

#include <algorithm>

JoinedLines::Place JoinedLines::PlaceOf(size_t offset) const {
    // Of lines that start together all but the last are empty, so the byte is the last one's.
    const auto next = std::upper_bound(starts_.begin(), starts_.end(), offset);
    if (next == starts_.begin()) return {1, offset + 1};
    return {static_cast<size_t>(next - starts_.begin()), offset - next[-1] + 1};
}
