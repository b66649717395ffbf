#include "support/lex.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int kTableGrowth = 1024;

bool IsScanBlank(char ch) {
    return ch == ' ' || ch == '\t';
}

bool EndsWord(char ch) {
    return ch == '\0' || ch == ' ' || ch == '\t' || ch == '\r' || ch == '\n';
}

}  // namespace

int (*CLex::message_box)(int) = nullptr;

CLex::CLex(const char* text, long size)
    : buf(text),
      bufsize(text != nullptr && size > 0 ? size : 0),
      curline(0),
      linelen(0),
      lines(0),
      err(CLEXERR_NONE) {
    line[0] = '\0';
    linetable.SetSize(0, kTableGrowth);
    Construct();
}

CLex::~CLex() = default;

void CLex::SetMessageProc(int (*proc)(int)) {
    message_box = proc;
}

// The table grows by half of itself, so that the pass stays linear in the size of the text.
void CLex::Construct() {
    const char* const end = buf + bufsize;
    const char* start = buf;
    INT_PTR room = 0;
    INT_PTR used = 0;
    void** table = nullptr;
    for (bool more = true; more; ++used) {
        if (used == room) {
            room += std::max<INT_PTR>(kTableGrowth, room / 2);
            linetable.SetSize(room);
            table = linetable.GetData();
        }
        table[used] = const_cast<char*>(start);
        const size_t rest = static_cast<size_t>(end - start);
        const void* lf = rest == 0 ? nullptr : std::memchr(start, '\n', rest);
        more = lf != nullptr;
        const char* const next = more ? static_cast<const char*>(lf) + 1 : end;
        if (next - start >= kMaxLineSize) err = CLEXERR_LINE_TOO_LONG;
        start = next;
    }
    linetable.SetSize(used + 1);
    linetable.SetAt(used, nullptr);
    linetable.FreeExtra();
    lines = static_cast<int>(used);
}

const char* CLex::getNextUnformLine() {
    if (curline >= lines) return nullptr;
    const char* const start = static_cast<const char*>(linetable.GetAt(curline++));
    if (start == nullptr) return nullptr;
    if (curline == lines) return TakeLastLine(start);
    linelen = static_cast<int>(static_cast<const char*>(linetable.GetAt(curline)) - start) - 1;
    return start;
}

const char* CLex::TakeLastLine(const char* start) {
    linelen = static_cast<int>(std::min<long>(static_cast<long>(buf + bufsize - start), kMaxLineSize));
    std::memcpy(line, start, static_cast<size_t>(linelen));
    for (int dropped = 0; dropped < 2 && linelen > 0; ++dropped) {
        const char last = line[linelen - 1];
        if (last != '\n' && last != '\r') break;
        --linelen;
    }
    line[linelen] = '\0';
    return line;
}

void CLex::StepOverBlanks(const char*& text) {
    while (linelen > 0 && IsScanBlank(*text)) {
        ++text;
        --linelen;
    }
}

// The last line stands in the line buffer already, so source and target may overlap.
char* CLex::KeepLine(const char* text) {
    linelen = std::min(linelen, kMaxLineSize);
    std::memmove(line, text, static_cast<size_t>(linelen));
    line[linelen] = '\0';
    return line;
}

char* CLex::getNextLine() {
    while (const char* text = getNextUnformLine()) {
        StepOverBlanks(text);
        const bool comment = linelen >= 2 && text[0] == '/' && text[1] == '/';
        if (linelen > 0 && !comment) return KeepLine(text);
    }
    return nullptr;
}

char* CLex::search_to_line(char* key, int keylen) {
    const int start = curline;
    for (int pass = 0; pass < 2; ++pass) {
        while (const char* text = getNextUnformLine()) {
            if (pass == 1 && curline == start) return nullptr;
            if (linelen < keylen) continue;
            StepOverBlanks(text);
            if (linelen >= keylen && _strnicmp(text, key, static_cast<size_t>(keylen)) == 0)
                return KeepLine(text);
        }
        curline = 0;
        if (start == 0) return nullptr;
    }
    return nullptr;
}

char* CLex::searchToLine(char* key) {
    if (key == nullptr) return nullptr;
    return search_to_line(key, static_cast<int>(std::strlen(key)));
}

char* CLex::searchToLineEx(char* key) {
    if (key == nullptr) return nullptr;
    const int keylen = static_cast<int>(std::strlen(key));
    const int start = curline;
    int first_refused = -1;
    while (char* hit = search_to_line(key, keylen)) {
        if (keylen >= linelen || EndsWord(hit[keylen])) return hit;
        if (getCurrLine() == first_refused) break;
        if (first_refused < 0) first_refused = getCurrLine();
    }
    curline = start;
    return nullptr;
}

int CLex::setPosAtLine(int index) {
    if (index < 0 || index >= lines) return 0;
    curline = index;
    return 1;
}

long CLex::getPos() const {
    if (curline >= lines) return bufsize;
    return static_cast<long>(static_cast<const char*>(linetable.GetAt(curline)) - buf);
}

char* CLex::getCurrLinePos() const {
    return curline < 1 ? nullptr : static_cast<char*>(linetable.GetAt(curline - 1));
}
