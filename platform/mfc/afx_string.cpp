#include "afx_string.h"

#include <algorithm>
#include <cstdarg>

#include "afx_exceptions.h"

namespace {

char ToLower(char ch) {
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + ('a' - 'A')) : ch;
}

// In a text of its own, as the arguments may point into the string that is to take it.
std::string Formatted(const char* format, va_list arguments) {
    if (!format) AfxThrowInvalidArgException();
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string text(static_cast<size_t>(std::max(length, 0)), '\0');
    if (length > 0) std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    if (length < 0) AfxThrowInvalidArgException();
    return text;
}

}  // namespace

CString::CString(const char* text, int length) {
    Append(text, length);
}

void CString::Append(const char* tail, int length) {
    if (length <= 0) return;
    if (!tail) AfxThrowInvalidArgException();
    text_.append(tail, static_cast<size_t>(length));
}

size_t CString::Checked(int index, size_t limit) {
    if (index < 0 || static_cast<size_t>(index) >= limit) AfxThrowInvalidArgException();
    return static_cast<size_t>(index);
}

CString CString::Joined(std::string_view a, std::string_view b) {
    std::string text;
    text.reserve(a.size() + b.size());
    return CString(std::move(text.append(a).append(b)));
}

void CString::Format(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::string formatted = Formatted(format, arguments);
    va_end(arguments);
    text_ = std::move(formatted);
}

void CString::AppendFormat(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const std::string formatted = Formatted(format, arguments);
    va_end(arguments);
    text_ += formatted;
}

int CString::CompareNoCase(const CString& other) const {
    const size_t common = std::min(text_.size(), other.text_.size());
    for (size_t i = 0; i < common; ++i) {
        const int difference = static_cast<unsigned char>(ToLower(text_[i])) -
                               static_cast<unsigned char>(ToLower(other.text_[i]));
        if (difference != 0) return difference;
    }
    return text_.size() == other.text_.size() ? 0 : text_.size() < other.text_.size() ? -1 : 1;
}

CString CString::Mid(int first, int count) const {
    const size_t from = std::min(static_cast<size_t>(std::max(first, 0)), text_.size());
    return CString(text_.substr(from, static_cast<size_t>(std::max(count, 0))));
}

CString CString::Right(int count) const {
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

int CString::Find(char ch, int start) const {
    return start < 0 ? -1 : ToIndex(text_.find(ch, static_cast<size_t>(start)));
}

int CString::Find(const char* part, int start) const {
    return start < 0 || !part ? -1 : ToIndex(text_.find(part, static_cast<size_t>(start)));
}

CString& CString::TrimLeft(char ch) {
    text_.erase(0, text_.find_first_not_of(ch));
    return *this;
}

CString& CString::TrimLeft(const char* set) {
    text_.erase(0, text_.find_first_not_of(OrEmpty(set)));
    return *this;
}

// No match gives npos, and npos + 1 is 0: all of it goes.
CString& CString::TrimRight(char ch) {
    text_.erase(text_.find_last_not_of(ch) + 1);
    return *this;
}

CString& CString::TrimRight(const char* set) {
    text_.erase(text_.find_last_not_of(OrEmpty(set)) + 1);
    return *this;
}

CString& CString::MakeLower() {
    std::transform(text_.begin(), text_.end(), text_.begin(), ToLower);
    return *this;
}

int CString::Delete(int index, int count) {
    const size_t first = static_cast<size_t>(std::max(index, 0));
    if (first < text_.size()) text_.erase(first, static_cast<size_t>(std::max(count, 0)));
    return GetLength();
}

int CString::Replace(const char* old, const char* with) {
    const std::string_view from = OrEmpty(old);
    const std::string_view to = OrEmpty(with);
    size_t found = from.empty() ? std::string::npos : text_.find(from);
    if (found == std::string::npos) return 0;
    std::string replaced;
    size_t done = 0;
    int count = 0;
    for (; found != std::string::npos; found = text_.find(from, done)) {
        replaced.append(text_, done, found - done).append(to);
        done = found + from.size();
        ++count;
    }
    text_ = replaced.append(text_, done);
    return count;
}

char* CString::GetBuffer(int minLength) {
    if (minLength < 0) AfxThrowInvalidArgException();
    text_.resize(std::max(text_.size(), static_cast<size_t>(minLength)));
    return text_.data();
}

void CString::ReleaseBuffer(int newLength) {
    if (newLength < -1) AfxThrowInvalidArgException();
    const size_t length = newLength < 0 ? std::strlen(text_.c_str()) : static_cast<size_t>(newLength);
    if (length > text_.size()) AfxThrowInvalidArgException();
    text_.resize(length);
}
