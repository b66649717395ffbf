#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "afx_base.h"

// A string of 8-bit characters that owns its bytes and ends in a 0 that its length does not count. Positions
// and lengths are bytes. A null pointer counts as the empty string. Bytes of 0 may stand inside when they
// come with a length or from another CString. Case means the ASCII letters; all other bytes stand for
// themselves.
//
// A position outside of the string raises CInvalidArgException where a member says so.
class CString {
public:
    CString() = default;
    CString(const char* text) : text_(OrEmpty(text)) {}
    CString(const char* text, int length);
    explicit CString(char ch, int repeat = 1) : text_(repeat > 0 ? static_cast<size_t>(repeat) : 0, ch) {}

    CString& operator=(const char* text) { return text_ = OrEmpty(text), *this; }
    CString& operator=(char ch) { return text_.assign(1, ch), *this; }

    // Valid until the next change, as with GetString.
    operator const char*() const { return text_.c_str(); }
    const char* GetString() const { return text_.c_str(); }

    int GetLength() const { return static_cast<int>(text_.size()); }
    bool IsEmpty() const { return text_.empty(); }
    void Empty() { text_.clear(); }

    // The position behind the last byte gives 0; beyond it they raise.
    char GetAt(int index) const { return text_[Checked(index, text_.size() + 1)]; }
    char operator[](int index) const { return GetAt(index); }
    // Raises behind the last byte already.
    void SetAt(int index, char ch) { text_[Checked(index, text_.size())] = ch; }

    CString& operator+=(const CString& tail) { return text_ += tail.text_, *this; }
    CString& operator+=(const char* tail) { return text_ += OrEmpty(tail), *this; }
    CString& operator+=(char ch) { return text_ += ch, *this; }
    void Append(const CString& tail) { text_ += tail.text_; }
    void Append(const char* tail) { text_ += OrEmpty(tail); }
    void Append(const char* tail, int length);

    // As printf; the arguments may point into this string. Raise for a null format and one that can't be
    // carried out.
    void Format(const char* format, ...) AFX_PRINTF_FORMAT(2, 3);
    void AppendFormat(const char* format, ...) AFX_PRINTF_FORMAT(2, 3);

    // Below 0, 0 or above 0, by the values of the bytes as unsigned numbers.
    int Compare(const CString& other) const { return text_.compare(other.text_); }
    int Compare(const char* other) const { return text_.compare(OrEmpty(other)); }
    int CompareNoCase(const CString& other) const;
    int CollateNoCase(const CString& other) const { return CompareNoCase(other); }

    // What lies outside is left out, nothing raises.
    CString Left(int count) const { return Mid(0, count); }
    CString Mid(int first) const { return Mid(first, GetLength()); }
    CString Mid(int first, int count) const;
    CString Right(int count) const;

    // The position of the first match at `start` or behind it, or -1.
    int Find(char ch, int start = 0) const;
    int Find(const char* part, int start = 0) const;
    // The position of the last match, or -1.
    int ReverseFind(char ch) const { return ToIndex(text_.rfind(ch)); }

    // Without an argument white space goes, else the one character or every character of the set.
    CString& Trim() { return Trim(kWhiteSpace); }
    CString& Trim(char ch) { return TrimRight(ch).TrimLeft(ch); }
    CString& Trim(const char* set) { return TrimRight(set).TrimLeft(set); }
    CString& TrimLeft() { return TrimLeft(kWhiteSpace); }
    CString& TrimLeft(char ch);
    CString& TrimLeft(const char* set);
    CString& TrimRight() { return TrimRight(kWhiteSpace); }
    CString& TrimRight(char ch);
    CString& TrimRight(const char* set);

    CString& MakeLower();
    // Takes bytes out, as far as there are some, and tells the length that is left.
    int Delete(int index, int count = 1);
    // Goes on behind each replacement. The result is the number of them; an empty `old` has none.
    int Replace(const char* old, const char* with);

    // A buffer of at least `minLength` bytes and a terminator, holding the string. Only ReleaseBuffer may
    // follow; it takes the new length, or -1 for a text that ends at its first 0. It raises for a length
    // beyond the buffer.
    char* GetBuffer(int minLength);
    char* GetBuffer() { return text_.data(); }
    void ReleaseBuffer(int newLength = -1);

    friend CString operator+(const CString& a, const CString& b) { return Joined(a.text_, b.text_); }
    friend CString operator+(const CString& a, const char* b) { return Joined(a.text_, OrEmpty(b)); }
    friend CString operator+(const char* a, const CString& b) { return Joined(OrEmpty(a), b.text_); }
    friend CString operator+(const CString& a, char b) { return Joined(a.text_, {&b, 1}); }
    friend CString operator+(char a, const CString& b) { return Joined({&a, 1}, b.text_); }

    friend bool operator==(const CString& a, const CString& b) { return a.text_ == b.text_; }
    friend bool operator==(const CString& a, const char* b) { return a.text_ == OrEmpty(b); }
    friend bool operator==(const char* a, const CString& b) { return b.text_ == OrEmpty(a); }
    friend bool operator!=(const CString& a, const CString& b) { return !(a == b); }
    friend bool operator!=(const CString& a, const char* b) { return !(a == b); }
    friend bool operator!=(const char* a, const CString& b) { return !(a == b); }
    friend bool operator<(const CString& a, const CString& b) { return a.Compare(b) < 0; }
    friend bool operator<(const CString& a, const char* b) { return a.Compare(b) < 0; }
    friend bool operator<(const char* a, const CString& b) { return b.Compare(a) > 0; }
    friend bool operator>(const CString& a, const CString& b) { return a.Compare(b) > 0; }
    friend bool operator>(const CString& a, const char* b) { return a.Compare(b) > 0; }
    friend bool operator>(const char* a, const CString& b) { return b.Compare(a) < 0; }

private:
    static constexpr const char* kWhiteSpace = " \t\n\v\f\r";

    explicit CString(std::string&& text) : text_(std::move(text)) {}

    static const char* OrEmpty(const char* text) { return text ? text : ""; }
    static int ToIndex(size_t found) { return found == std::string::npos ? -1 : static_cast<int>(found); }
    static size_t Checked(int index, size_t limit);
    static CString Joined(std::string_view a, std::string_view b);

    std::string text_;
};
