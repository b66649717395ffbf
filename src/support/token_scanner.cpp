#include "support/token_scanner.h"

#include <cstring>

const char* TokenScanner::Next() {
    tokenlen_ = 0;
    if (buf_ == nullptr || buflen_ < 0) return nullptr;
    const char* const end = buf_ + buflen_;
    const char* start = buf_;
    while (start < end && !EndsLine(*start) && Separates(*start))
        ++start;
    if (start == end || EndsLine(*start)) {
        End();
        return nullptr;
    }
    const char* behind = start + 1;
    while (behind < end && !EndsLine(*behind) && !Separates(*behind))
        ++behind;
    tokenlen_ = static_cast<int>(behind - start);
    if (behind == end || EndsLine(*behind)) {
        End();
    } else {
        buf_ = behind;
        buflen_ = static_cast<int>(end - behind);
    }
    return start;
}

const char* TokenScanner::NextQuoted() {
    const char* const end = buf_ != nullptr && buflen_ > 0 ? buf_ + buflen_ : nullptr;
    const char* const token = Next();
    if (token == nullptr || *token != '"' || token + 1 >= end) return token;
    const char* const content = token + 1;
    const void* found = std::memchr(content, '"', static_cast<size_t>(end - content));
    if (found == nullptr) return token;
    const char* const close = static_cast<const char*>(found);
    tokenlen_ = static_cast<int>(close - content);
    buf_ = close + 1;
    buflen_ = static_cast<int>(end - buf_);
    return content;
}
