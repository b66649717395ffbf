#pragma once

// One scan over a line: cuts it into tokens at blanks, tabs and the caller's delimiters, and ends at the
// first NUL, LF or CR. The text is neither owned nor changed and must outlive the scan, and so must the
// delimiters. Tokens are pointers into the text, not terminated; TokenLen gives the length of the last one.
class TokenScanner {
public:
    // Starts a scan over `length` bytes; `delims` are extra separators, null for none. Null without a token.
    const char* First(const char* text, int length, const char* delims) {
        buf_ = text;
        buflen_ = length;
        delims_ = delims;
        return Next();
    }

    // The next token, or null once the scan has ended.
    const char* Next();

    // As Next, but a token in double quotes is handed out whole and without them, line ends included.
    // A quote that does not close within the text leaves the plain token.
    const char* NextQuoted();

    // Length of the token handed out last, 0 when there was none.
    int TokenLen() const { return tokenlen_; }

private:
    // There are at most a few delimiters; a call of strchr for each byte would cost more than the scan.
    bool Separates(char ch) const {
        if (ch == ' ' || ch == '\t') return true;
        for (const char* delim = delims_; delim != nullptr && *delim != '\0'; ++delim) {
            if (*delim == ch) return true;
        }
        return false;
    }
    static bool EndsLine(char ch) { return ch == '\0' || ch == '\n' || ch == '\r'; }
    void End() {
        buf_ = nullptr;
        buflen_ = 0;
    }

    const char* buf_ = nullptr;  // where the scan goes on, null when it has ended
    int buflen_ = 0;             // bytes left from there
    int tokenlen_ = 0;
    const char* delims_ = nullptr;
};
