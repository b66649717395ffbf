#include "customize/carry_values.h"

#include <unordered_map>

std::vector<CarriedValue> CarryValues(const CEntryList& list, std::span<const SavedValue> values,
                                      const std::function<void(size_t entry, const CString& value)>& take) {
    std::unordered_map<int, size_t> first_with_id;
    for (size_t i = 0; i < list.entries.size(); ++i)
        first_with_id.try_emplace(list.entries[i].id, i);

    std::vector<CarriedValue> carried;
    carried.reserve(values.size());
    for (const SavedValue& saved : values) {
        const auto found = first_with_id.find(saved.id);
        if (found == first_with_id.end()) {
            carried.push_back({&saved, -1});
            continue;
        }
        take(found->second, saved.value);
        carried.push_back({&saved, static_cast<int>(found->second)});
    }
    return carried;
}
