// Version, date and needs comments over any bytes: whatever is read is one word of the text.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "catalogue/script_info.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

bool IsWordOf(std::string_view text, const CString& word, std::string_view delimiters) {
    const std::string_view view(word.GetString(), static_cast<size_t>(word.GetLength()));
    return text.find(view) != std::string_view::npos &&
           view.find_first_of(delimiters) == std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    constexpr std::string_view kBlanks(" \t\r\n\0", 5);
    CLex header(text.data(), static_cast<long>(text.size()));
    const ScriptInfo info = ReadScriptInfo(header);
    Require(info.ver == "-1" || IsWordOf(text, info.ver, kBlanks));
    Require(info.date == "-1" || IsWordOf(text, info.date, kBlanks));

    CLex lex(text.data(), static_cast<long>(text.size()));
    CStringArray names;
    Require(ReadNeeds(lex, names) == static_cast<int>(names.GetSize()));
    for (INT_PTR i = 0; i < names.GetSize(); ++i) {
        Require(!names[i].IsEmpty() && IsWordOf(text, names[i], kBlanks));
        Require(names[i].Find(',') < 0 && names[i].Find(';') < 0 && names[i].Find(':') < 0);
    }
    return 0;
}
