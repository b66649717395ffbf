#pragma once

#include <string>
#include <string_view>
#include <vector>

// The items of a list box, sorted or not, without a window.
class ListItems {
public:
    explicit ListItems(bool sorted) : sorted_(sorted) {}

    int Count() const { return static_cast<int>(items_.size()); }
    bool Has(int index) const { return index >= 0 && index < Count(); }
    const std::string& Text(int index) const { return items_[static_cast<size_t>(index)]; }

    // At its place in a sorted list, before its equals, else at the end. Gives the place.
    int Add(std::string_view text);
    void Remove(int index);
    void Clear() { items_.clear(); }

    // The first item behind `start`, round the end, that begins with the text or is it, in any case; -1
    // without one. Nothing begins with an empty text.
    int Find(int start, std::string_view text, bool whole) const;

private:
    bool sorted_;
    std::vector<std::string> items_;
};
