#include "list_items.h"

#include <algorithm>

#include "ascii_case.h"

int ListItems::Add(std::string_view text) {
    if (!sorted_) {
        items_.emplace_back(text);
        return Count() - 1;
    }
    const auto at = std::lower_bound(
        items_.begin(), items_.end(), text,
        [](std::string_view a, std::string_view b) { return CompareAsciiCaseless(a, b) < 0; });
    const auto place = static_cast<int>(at - items_.begin());
    items_.insert(at, std::string(text));
    return place;
}

void ListItems::Remove(int index) {
    items_.erase(items_.begin() + index);
}

int ListItems::Find(int start, std::string_view text, bool whole) const {
    if (text.empty() && !whole) return -1;
    const int first = Has(start) ? start + 1 : 0;
    for (int step = 0; step < Count(); ++step) {
        const int index = (first + step) % Count();
        const std::string_view item = Text(index);
        if (CompareAsciiCaseless(whole ? item : item.substr(0, text.size()), text) == 0) return index;
    }
    return -1;
}
