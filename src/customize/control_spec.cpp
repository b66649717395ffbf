#include "customize/control_spec.h"

#include <algorithm>

#include "support/lex.h"
#include "support/number_text.h"
#include "support/token_scanner.h"

namespace {

constexpr double kDefaultMinimum = -999999.0;
constexpr double kDefaultMaximum = 999999.0;

bool Equals(const char* text, int length, const char* word) {
    return static_cast<size_t>(length) == std::strlen(word) && _strnicmp(text, word, std::strlen(word)) == 0;
}

void ReadSpin(CScriptEntry& entry, TokenScanner& scanner) {
    entry.limitsMode = LimitsSpin;
    entry.minValue = kDefaultMinimum;
    entry.maxValue = kDefaultMaximum;
    entry.stepValue = 0.0;
    for (double* number : {&entry.minValue, &entry.maxValue, &entry.stepValue}) {
        const char* const token = scanner.Next();
        if (token == nullptr) return;
        if (!Equals(token, scanner.TokenLen(), "x")) {
            *number = ParseDouble(token, static_cast<size_t>(scanner.TokenLen()));
        }
    }
}

void ReadItems(CScriptEntry& entry, TokenScanner& scanner) {
    entry.limitsMode = LimitsDrop;
    entry.items.clear();
    while (const char* const token = scanner.Next())
        entry.items.emplace_back(token, scanner.TokenLen());
}

bool IsDecimalDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

}  // namespace

bool ParseControlSpec(CScriptEntry& entry, const CString& argument) {
    TokenScanner scanner;
    const char* const mode = scanner.First(argument, argument.GetLength(), nullptr);
    if (mode == nullptr) return false;
    const int length = scanner.TokenLen();
    if (Equals(mode, length, "spin")) {
        ReadSpin(entry, scanner);
    } else if (Equals(mode, length, "drop") || Equals(mode, length, "drop_list")) {
        ReadItems(entry, scanner);
    } else if (Equals(mode, length, "drop_pair")) {
        entry.limitsMode = LimitsDropPair;
    } else {
        return false;
    }
    return true;
}

int ClassifyNumber(const CString& text) {
    if (CLex::IsDigit(text, text.GetLength()) != 0) return 1;
    const char* ch = text;
    const char* const end = ch + text.GetLength();
    if (ch < end && (*ch == '-' || *ch == '+')) ++ch;
    const bool digits_and_points = std::all_of(ch, end, [](char c) { return IsDecimalDigit(c) || c == '.'; });
    return digits_and_points && std::count(ch, end, '.') == 1 ? 2 : 0;
}

int ParseSizePrefix(CString& text, int& width, int& height) {
    int sizes[2] = {0, 0};
    width = 0;
    height = 0;
    for (int& size : sizes) {
        int digits = 0;
        while (digits < text.GetLength() && IsDecimalDigit(text.GetAt(digits)))
            ++digits;
        if (digits > 0 && digits < text.GetLength()) {
            size = ParseInt(text, static_cast<size_t>(digits));
            text = text.Mid(digits);
        }
        text.TrimLeft();
        if (text.IsEmpty() || text.GetAt(0) != ',') return 0;
        text.TrimLeft(',');
        text.TrimLeft();
    }
    width = sizes[0];
    height = sizes[1];
    return 1;
}
