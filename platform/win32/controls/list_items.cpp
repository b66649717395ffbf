#include "list_items.h"

#include <algorithm>

#include "ascii_case.h"

int ListItems::Add(std::string_view text) {
    if (!sorted_) return Insert(-1, text);
    const auto at = std::upper_bound(
        items_.begin(), items_.end(), text,
        [](std::string_view a, std::string_view b) { return CompareAsciiCaseless(a, b) < 0; });
    return Insert(static_cast<int>(at - items_.begin()), text);
}

int ListItems::Insert(int index, std::string_view text) {
    const int place = index == -1 ? Count() : index;
    items_.insert(items_.begin() + place, std::string(text));
    return place;
}

void ListItems::Remove(int index) {
    items_.erase(items_.begin() + index);
}

int ListItems::Find(int start, std::string_view text, bool whole) const {
    const int first = Has(start) ? start + 1 : 0;
    for (int step = 0; step < Count(); ++step) {
        const int index = (first + step) % Count();
        const std::string_view item = Text(index);
        if (CompareAsciiCaseless(whole ? item : item.substr(0, text.size()), text) == 0) return index;
    }
    return -1;
}
