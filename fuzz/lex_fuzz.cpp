// Lines and tokens over any bytes: every result must lie in the text or in the line buffer.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "support/lex.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void WalkLines(const char* text, size_t size) {
    CLex lex(text, static_cast<long>(size));
    long total = 0;
    int count = 0;
    while (const char* line = lex.getNextUnformLine()) {
        const bool last = ++count == lex.getLinesNumber();
        Require(last || (line >= text && line + lex.getLineLen() < text + size));
        Require(!last || lex.getLineLen() <= lex.GetMaxLineSize());
        total += lex.getLineLen() + (last ? 0 : 1);
        lex.getPos();
    }
    Require(count == lex.getLinesNumber() && total <= static_cast<long>(size));
    lex.setPosAtLine(count / 2);
    while (const char* line = lex.getNextLine())
        Require(line[lex.getLineLen()] == '\0');
}

void Search(const char* text, size_t size) {
    std::string key(text, size < 3 ? size : 3);
    CLex lex(text, static_cast<long>(size));
    for (int from = 0; from < 4 && from < lex.getLinesNumber(); ++from) {
        lex.setPosAtLine(from);
        lex.searchToLine(key.data());
        lex.setPosAtLine(from);
        lex.searchToLineEx(key.data());
    }
}

void WalkTokens(const char* text, size_t size) {
    for (const char* delims : {static_cast<const char*>(nullptr), ":,;"}) {
        TokenScanner scanner;
        bool quoted = false;
        const char* token = scanner.First(text, static_cast<int>(size), delims);
        while (token != nullptr) {
            Require(token >= text && token + scanner.TokenLen() <= text + size);
            token = quoted ? scanner.NextQuoted() : scanner.Next();
            quoted = !quoted;
        }
    }
}

void ScanText(const std::string& text) {
    char buffer[400];
    int length = 0;
    int number = 0;
    float single = 0;
    double value = 0;
    unsigned long bits = 0;
    char* token = nullptr;
    int size = 0;
    CLex::ScanIntValue(text.c_str(), number);
    CLex::ScanFloatValue(text.c_str(), single);
    CLex::ScanBinValue(text.c_str(), bits);
    if (CLex::ScanDoubleValue(text.c_str(), value) != nullptr) CLex::FormatFloat(buffer, value);
    CLex::LongToBin(buffer, static_cast<long>(bits));
    CLex::GetString(text.c_str(), '"', buffer, '"', sizeof buffer, length);
    CLex::GetString(text.c_str(), buffer, sizeof buffer, length);
    CLex::GetToken(text.c_str(), token, length, size, ":");
    CLex::GetTokenGroup(text.c_str(), 3, token, length, size);
    delete[] token;
    CLex::LineStrStr(text.c_str(), "ab");
    std::string own = text;
    CLex::GetDefinitionBlockSize(own.data(), static_cast<long>(own.size()));
    CLex::DeleteChar(own.data(), 'a');
    CLex::StringCrop(own.data());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const char* const text = reinterpret_cast<const char*>(data);
    WalkLines(text, size);
    Search(text, size);
    WalkTokens(text, size);
    ScanText(std::string(text, size));
    return 0;
}
