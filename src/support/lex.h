#pragma once

#include <afx.h>

#include "support/token_scanner.h"

// Result of the pass that indexes a text's lines.
enum CLEXERR {
    CLEXERR_NONE = 0,
    CLEXERR_LINE_TOO_LONG = 1,  // some line, its LF included, has 1024 bytes or more
};

// Reads a text in memory line by line, and, as static functions, cuts lines into tokens and values.
//
// The text is not owned, not changed and needs no terminator; it must outlive the object. Lines are separated
// by LF alone, a CR is an ordinary byte of its line. A text that ends in LF has a further, empty last line.
// An object belongs to one thread.
//
// Cleaned lines and the last line are copies in the object's line buffer and live until the next read; all
// other raw lines are pointers into the text, not terminated, and live as long as it.
class AFX_EXT_CLASS CLex {
public:
    // Indexes `size` bytes at `buf`.
    CLex(const char* buf, long size);
    virtual ~CLex();
    CLex(const CLex&) = delete;
    CLex& operator=(const CLex&) = delete;

    // The next line that is neither blank nor begins with two slashes, without its leading blanks and tabs,
    // terminated, cut to 1024 bytes. Null at the end of the text.
    char* getNextLine();

    // The next line as it stands, without its LF; null at the end. The last line loses up to two line end
    // bytes and is cut to 1024 bytes, all others come whole.
    const char* getNextUnformLine();

    // Searches on from the present line, and from the text's start when its end is reached, for a line that
    // begins with `key`, ignoring case and leading blanks. The line read last is not looked at. Null when
    // there is none.
    char* searchToLine(char* key);

    // As searchToLine, for a line in which a blank, tab, line end or the terminator stands behind the key.
    // Ends with null, and the position unchanged, once it has come back to a line that it has refused.
    char* searchToLineEx(char* key);

    // Makes `line` (0 to the number of lines less one) the next one to be read; 1 when set, 0 when refused.
    int setPosAtLine(int line);

    // Offset in the text of the next line; the text's size when no line follows.
    long getPos() const;

    int getCurrLine() const { return curline - 1; }  // index of the line read last
    char* getCurrLinePos() const;                    // its raw start, null before the first read
    int getLineNum() const { return curline; }
    int getLineLen() const { return linelen; }
    int getLinesNumber() const { return lines; }
    const char* getBuf() const { return buf; }
    int getBufSize() const { return static_cast<int>(bufsize); }
    CLEXERR GetLastError() const { return err; }
    int GetMaxLineSize() const { return kMaxLineSize; }

    // Keeps a function for messages, shared by all objects; the library itself never calls it.
    static void SetMessageProc(int (*proc)(int));

    // ---- Tokens. One scan at a time in the whole process, on one thread; see TokenScanner. ----
    static const char* GetFirstToken(const char* text, int len, const char* delims);
    static const char* GetNextToken();
    static const char* GetNextTokenEx();
    static int GetTokenLen();

    // ---- Tokens of a terminated text, without a running scan. Line ends separate like blanks. ----

    // Copies the first token into `token`, a buffer from array new that this function replaces when it is too
    // small
    // (`tokensize` bytes) and that the caller frees. Gives the start of the following token or null.
    static const char* GetToken(const char* text, char*& token, int& tokenlen, int& tokensize,
                                const char* delims);
    // Joins `count` tokens with single blanks; the buffer is handled as in GetToken.
    static const char* GetTokenGroup(const char* text, int count, char*& group, int& grouplen,
                                     int& groupsize);
    // The token with number `index`, from 0; null when there is none.
    static const char* GetTokenPos(const char* text, int index, const char* delims);
    static const char* GetTokenPos(const char* text, int index, int& size);
    // Bytes before the first blank or delimiter.
    static int GetFirstTokenSize(const char* text, const char* delims);

    // ---- Values. Each gives the place behind what it read, null when there was nothing to read. ----

    // A string between `open` and `close`, without blanks at its ends; at most `size` - 1 bytes go to `dest`,
    // `length` is that of the whole content. `dest` is not written for an empty content or a `size` below 2.
    static const char* GetString(const char* text, char open, char* dest, char close, int size, int& length);
    // One word up to a blank; `length` is the number of copied bytes plus 1.
    static const char* GetString(const char* text, char* dest, int size, int& length);
    static const char* NextChar(const char* text, char& ch);
    // Numbers that do not fit give the nearest one that does.
    static const char* ScanIntValue(const char* text, int& value);
    static const char* ScanFloatValue(const char* text, float& value);
    static const char* ScanDoubleValue(const char* text, double& value);
    // Bits in single quotes, as in '1011'.
    static const char* ScanBinValue(const char* text, unsigned long& value);
    static unsigned long BinToLong(const char* text);
    // 4, 8, 16 or 32 digits; `dest` holds 33 bytes.
    static char* LongToBin(char* dest, long value);
    // Six decimals at most, without closing zeros; `dest` holds what "%f" can print.
    static char* FormatFloat(char* dest, double value);
    // 1 when `len` bytes are one integer (a lone sign counts).
    static int IsDigit(const char* text, int len);
    // 1 when the text begins with an integer; `value` and `size` may be null.
    static int IsDigit(const char* text, long* value, int* size);

    // ---- Characters. ----
    static const char* StrChr(const char* text, int len, char ch);  // both stop at a line end
    static const char* LineStrChr(const char* text, char ch);
    static const char* LineStrStr(const char* text, const char* sub);  // within the line
    static void ReplaceChar(char* text, char from, char to);
    static void DeleteChar(char* text, char ch);
    static int StringCrop(char* text);  // drops blanks and line ends at both ends; the new length

    // Bytes from the start of `text` to the end of the line that closes its brace block; -1 when none does.
    static long GetDefinitionBlockSize(char* text, long size);

private:
    static constexpr int kMaxLineSize = 1024;

    void Construct();
    char* search_to_line(char* key, int keylen);
    void StepOverBlanks(const char*& text);
    char* KeepLine(const char* text);
    const char* TakeLastLine(const char* start);

    static int (*message_box)(int);
    static TokenScanner gettoken;  // the one scan of the process

    const char* buf;
    long bufsize;
    int curline;
    char line[kMaxLineSize + 1];
    int linelen;
    int lines;
    CPtrArray linetable;  // start of each line, then one null
    CLEXERR err;
};
