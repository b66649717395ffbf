// The include lines of a main script over any bytes: what is read lies in the text, what is added and removed
// leaves every other byte as it stands.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "catalogue/include_run.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

std::string_view View(const CString& text) {
    return {text.GetString(), static_cast<size_t>(text.GetLength())};
}

// The place for new lines, and of `names` what the run does not hold.
size_t PlaceIn(std::string_view text, CStringArray& names) {
    CLex lex(text.data(), static_cast<long>(text.size()));
    const char* const place = FindInsertPoint(lex, names);
    if (!place) return 0;
    Require(place >= text.data() && place <= text.data() + text.size());
    return static_cast<size_t>(place - text.data());
}

void CheckAdding(std::string_view text) {
    CStringArray names;
    names.Add(CString("new one.brl"));
    const size_t place = PlaceIn(text, names);
    const std::string added = WithIncludes(text, place, names);
    const size_t grown = added.size() - text.size();
    Require(added.compare(0, place, text.substr(0, place)) == 0 &&
            added.substr(place + grown) == text.substr(place));
}

void CheckRemoving(std::string_view text, std::string_view name) {
    const std::optional<std::string> left = WithoutInclude(text, name);
    if (!left) return;
    Require(left->size() < text.size());
    const size_t same =
        static_cast<size_t>(std::mismatch(left->begin(), left->end(), text.begin()).first - left->begin());
    std::string_view tail = text;
    while (tail.ends_with('\r'))
        tail.remove_suffix(1);
    std::string_view rest = std::string_view(*left).substr(same);
    while (rest.ends_with('\r'))
        rest.remove_suffix(1);
    Require(text.ends_with(rest) || tail.ends_with(rest));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    CLex lex(text.data(), static_cast<long>(text.size()));
    CStringArray names;
    ReadIncludes(lex, names);
    CheckAdding(text);
    for (INT_PTR i = 0; i < std::min<INT_PTR>(names.GetSize(), 3); ++i) {
        Require(WithoutInclude(text, View(names[i])).has_value());
        CheckRemoving(text, View(names[i]));
    }
    PlaceIn(text, names);
    Require(names.IsEmpty());
    return 0;
}
