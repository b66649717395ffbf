#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <limits>

#include "support/lex.h"
#include "support/number_text.h"

namespace {

bool IsScanBlank(char ch) {
    return ch == ' ' || ch == '\t';
}
bool IsTokenBlank(char ch) {
    return IsScanBlank(ch) || ch == '\n' || ch == '\r';
}
bool EndsLine(char ch) {
    return ch == '\0' || ch == '\n' || ch == '\r';
}
bool IsDecimalDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

bool Separates(char ch, const char* delims) {
    return IsTokenBlank(ch) || (delims != nullptr && ch != '\0' && std::strchr(delims, ch) != nullptr);
}

const char* SkipWordBlanks(const char* text) {
    while (*text == ' ')
        ++text;
    return text;
}

// Puts a text into a buffer that caller and library share: kept when it is large enough, else replaced.
void StoreToken(const char* text, int length, char*& token, int& tokenlen, int& tokensize) {
    if (token == nullptr || tokensize <= length) {
        delete[] token;
        tokensize = length + 1;
        token = new char[static_cast<size_t>(tokensize)];
    }
    std::memcpy(token, text, static_cast<size_t>(length));
    token[length] = '\0';
    tokenlen = length;
}

void StoreNoToken(char*& token, int& tokenlen, int& tokensize) {
    constexpr int kSmallBuffer = 4;
    if (token == nullptr || tokensize < 1) {
        delete[] token;
        tokensize = kSmallBuffer;
        token = new char[kSmallBuffer];
    }
    token[0] = '\0';
    tokenlen = 0;
}

// Steps over blanks and one minus; null when no digit follows.
const char* FindNumber(const char* text, bool& negative) {
    if (text == nullptr) return nullptr;
    while (IsScanBlank(*text))
        ++text;
    negative = *text == '-';
    if (negative) ++text;
    return IsDecimalDigit(*text) ? text : nullptr;
}

const char* BehindDigits(const char* text) {
    while (IsDecimalDigit(*text))
        ++text;
    return text;
}

}  // namespace

TokenScanner CLex::gettoken;

const char* CLex::GetFirstToken(const char* text, int len, const char* delims) {
    return gettoken.First(text, len, delims);
}
const char* CLex::GetNextToken() {
    return gettoken.Next();
}
const char* CLex::GetNextTokenEx() {
    return gettoken.NextQuoted();
}
int CLex::GetTokenLen() {
    return gettoken.TokenLen();
}

int CLex::GetFirstTokenSize(const char* text, const char* delims) {
    if (text == nullptr) return 0;
    const char* end = text;
    while (*end != '\0' && !Separates(*end, delims))
        ++end;
    return static_cast<int>(end - text);
}

const char* CLex::GetTokenPos(const char* text, int index, const char* delims) {
    if (text == nullptr || index < 0) return nullptr;
    for (;; --index) {
        while (*text != '\0' && Separates(*text, delims))
            ++text;
        if (*text == '\0') return nullptr;
        if (index == 0) return text;
        text += GetFirstTokenSize(text, delims);
    }
}

const char* CLex::GetTokenPos(const char* text, int index, int& size) {
    const char* const token = GetTokenPos(text, index, static_cast<const char*>(nullptr));
    if (token != nullptr) size = GetFirstTokenSize(token, nullptr);
    return token;
}

const char* CLex::GetToken(const char* text, char*& token, int& tokenlen, int& tokensize,
                           const char* delims) {
    const char* const found = GetTokenPos(text, 0, delims);
    if (found == nullptr) {
        StoreNoToken(token, tokenlen, tokensize);
        return nullptr;
    }
    const int length = GetFirstTokenSize(found, delims);
    StoreToken(found, length, token, tokenlen, tokensize);
    return GetTokenPos(found + length, 0, delims);
}

const char* CLex::GetTokenGroup(const char* text, int count, char*& group, int& grouplen, int& groupsize) {
    CString joined;
    const char* next = text;
    for (int taken = 0; taken < count; ++taken) {
        int length = 0;
        const char* const token = GetTokenPos(next, 0, length);
        if (token == nullptr) {
            StoreNoToken(group, grouplen, groupsize);
            return nullptr;
        }
        if (taken > 0) joined += ' ';
        joined.Append(token, length);
        next = GetTokenPos(token + length, 0, static_cast<const char*>(nullptr));
    }
    if (count < 1) {
        StoreNoToken(group, grouplen, groupsize);
    } else {
        StoreToken(joined, joined.GetLength(), group, grouplen, groupsize);
    }
    return next;
}

const char* CLex::GetString(const char* text, char open, char* dest, char close, int size, int& length) {
    if (text == nullptr || open == '\0' || close == '\0') return nullptr;
    text = SkipWordBlanks(text);
    if (*text != open) return nullptr;
    text = SkipWordBlanks(text + 1);
    if (*text == '\0') return nullptr;
    const char* const end = std::strchr(text, close);
    if (end == nullptr) return nullptr;
    const char* last = end;
    while (last > text && last[-1] == ' ')
        --last;
    length = static_cast<int>(last - text);
    if (length > 0 && size >= 2) {
        const int copied = std::min(length, size - 1);
        std::memcpy(dest, text, static_cast<size_t>(copied));
        dest[copied] = '\0';
    }
    return end + 1;
}

const char* CLex::GetString(const char* text, char* dest, int size, int& length) {
    if (text == nullptr) return nullptr;
    text = SkipWordBlanks(text);
    if (*text == '\0') return nullptr;
    int copied = 0;
    while (copied < size - 1 && text[copied] != '\0' && text[copied] != ' ') {
        dest[copied] = text[copied];
        ++copied;
    }
    if (copied > 0) dest[copied] = '\0';
    length = copied + 1;
    return text + copied;
}

const char* CLex::NextChar(const char* text, char& ch) {
    ch = '\0';
    if (text == nullptr) return nullptr;
    text = SkipWordBlanks(text);
    ch = *text;
    return ch == '\0' ? nullptr : text + 1;
}

const char* CLex::ScanIntValue(const char* text, int& value) {
    bool negative = false;
    const char* const digits = FindNumber(text, negative);
    if (digits == nullptr) return nullptr;
    const char* const number = negative ? digits - 1 : digits;
    const char* const end = BehindDigits(digits);
    value = ParseInt(number, static_cast<size_t>(end - number));
    return end;
}

const char* CLex::ScanDoubleValue(const char* text, double& value) {
    bool negative = false;
    text = FindNumber(text, negative);
    if (text == nullptr) return nullptr;
    uint64_t whole = 0;
    for (; IsDecimalDigit(*text); ++text) {
        whole = std::min<uint64_t>(whole * 10 + static_cast<uint64_t>(*text - '0'),
                                   std::numeric_limits<uint32_t>::max());
    }
    constexpr uint32_t kLargestDivisor = 1'000'000'000;  // decimals behind the ninth do not fit
    uint32_t fraction = 0;
    uint32_t divisor = 1;
    if (*text == '.') {
        for (++text; IsDecimalDigit(*text); ++text) {
            if (divisor == kLargestDivisor) continue;
            fraction = fraction * 10 + static_cast<uint32_t>(*text - '0');
            divisor *= 10;
        }
    }
    value = static_cast<double>(whole) + static_cast<double>(fraction) / divisor;
    if (negative) value *= -1.0;
    return text;
}

const char* CLex::ScanFloatValue(const char* text, float& value) {
    double scanned = value;
    const char* const end = ScanDoubleValue(text, scanned);
    if (end != nullptr) value = static_cast<float>(scanned);
    return end;
}

const char* CLex::ScanBinValue(const char* text, unsigned long& value) {
    constexpr int kBufferSize = 33;
    char bits[kBufferSize] = "";
    int length = 0;
    value = 0;
    const char* const end = GetString(text, '\'', bits, '\'', kBufferSize, length);
    if (end == nullptr || length > kBufferSize) return nullptr;
    value = BinToLong(bits);
    return end;
}

unsigned long CLex::BinToLong(const char* text) {
    if (text == nullptr) return 0;
    const char* end = text + std::strlen(text);
    while (end > text && IsTokenBlank(end[-1]))
        --end;
    uint32_t value = 0;
    for (int bit = 0; end > text && (end[-1] == '0' || end[-1] == '1'); ++bit, --end) {
        if (end[-1] == '1' && bit < 32) value |= uint32_t{1} << bit;
    }
    return value;
}

char* CLex::LongToBin(char* dest, long value) {
    const uint32_t bits = static_cast<uint32_t>(value);
    int width = 4;
    if ((bits & 0xFFFF0000u) != 0) {
        width = 32;
    } else if ((bits & 0xFF00u) != 0) {
        width = 16;
    } else if ((bits & 0xF0u) != 0) {
        width = 8;
    }
    for (int i = 0; i < width; ++i)
        dest[i] = ((bits >> (width - 1 - i)) & 1u) != 0 ? '1' : '0';
    dest[width] = '\0';
    return dest;
}

// Not by printf: the C libraries round exact halves differently, and a locale may bring a comma.
char* CLex::FormatFloat(char* dest, double value) {
    constexpr ptrdiff_t kLongest = std::numeric_limits<double>::max_exponent10 + 10;
    char* end = std::to_chars(dest, dest + kLongest, value, std::chars_format::fixed, 6).ptr;
    if (char* const point = static_cast<char*>(std::memchr(dest, '.', static_cast<size_t>(end - dest)))) {
        while (end > point + 2 && end[-1] == '0')
            --end;
        if (end == point + 2 && end[-1] == '0') end = point;
    }
    *end = '\0';
    return dest;
}

int CLex::IsDigit(const char* text, int len) {
    if (text == nullptr || len < 1) return 0;
    const char* const end = text + len;
    if (*text == '-' || *text == '+') ++text;
    return std::all_of(text, end, IsDecimalDigit) ? 1 : 0;
}

int CLex::IsDigit(const char* text, long* value, int* size) {
    if (text == nullptr) return 0;
    const char* const digits = *text == '-' || *text == '+' ? text + 1 : text;
    if (!IsDecimalDigit(*digits)) return 0;
    const size_t length = static_cast<size_t>(BehindDigits(digits) - text);
    if (size != nullptr) *size = static_cast<int>(length);
    if (value != nullptr) *value = ParseInt(text, length);
    return 1;
}

const char* CLex::StrChr(const char* text, int len, char ch) {
    if (text == nullptr) return nullptr;
    for (; len > 0 && !EndsLine(*text); ++text, --len) {
        if (*text == ch) return text;
    }
    return nullptr;
}

const char* CLex::LineStrChr(const char* text, char ch) {
    if (text == nullptr) return nullptr;
    for (; !EndsLine(*text); ++text) {
        if (*text == ch) return text;
    }
    return nullptr;
}

const char* CLex::LineStrStr(const char* text, const char* sub) {
    if (text == nullptr || sub == nullptr) return nullptr;
    const char* end = text;
    while (!EndsLine(*end))
        ++end;
    const char* const found = std::search(text, end, sub, sub + std::strlen(sub));
    return found == end && *sub != '\0' ? nullptr : found;
}

void CLex::ReplaceChar(char* text, char from, char to) {
    if (text != nullptr) std::replace(text, text + std::strlen(text), from, to);
}

void CLex::DeleteChar(char* text, char ch) {
    if (text != nullptr) *std::remove(text, text + std::strlen(text), ch) = '\0';
}

int CLex::StringCrop(char* text) {
    if (text == nullptr) return 0;
    char* start = text;
    while (IsTokenBlank(*start))
        ++start;
    char* end = start + std::strlen(start);
    while (end > start && IsTokenBlank(end[-1]))
        --end;
    const size_t length = static_cast<size_t>(end - start);
    std::memmove(text, start, length);
    text[length] = '\0';
    return static_cast<int>(length);
}

long CLex::GetDefinitionBlockSize(char* text, long size) {
    if (text == nullptr || size < 1) return -1;
    const char* const end = text + size;
    long depth = 0;
    for (const char* start = text; start < end;) {
        const char* const line_end = std::find(start, static_cast<const char*>(end), '\n');
        const char* counted_end = start + std::min<ptrdiff_t>(line_end - start, kMaxLineSize);
        constexpr char kComment[] = "//";
        counted_end = std::search(start, counted_end, kComment, kComment + 2);
        depth += static_cast<long>(std::count(start, counted_end, '{'));
        for (const char* brace = start; brace < counted_end; ++brace) {
            if (*brace != '}') continue;
            if (depth == 1) return static_cast<long>(line_end - text);
            --depth;
        }
        start = line_end == end ? end : line_end + 1;
    }
    return -1;
}
