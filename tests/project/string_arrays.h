#pragma once

#include <afx.h>

#include <algorithm>
#include <string>
#include <string_view>

// "a|b" and back.

inline std::string Joined(const CStringArray& names) {
    std::string text;
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
        text.append(i > 0 ? "|" : "").append(names[i].GetString(), static_cast<size_t>(names[i].GetLength()));
    return text;
}

inline void Split(std::string_view text, CStringArray& names) {
    while (!text.empty()) {
        const std::string_view name = text.substr(0, text.find('|'));
        names.Add(CString(name.data(), static_cast<int>(name.size())));
        text.remove_prefix(std::min(name.size() + 1, text.size()));
    }
}
