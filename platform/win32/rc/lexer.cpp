#include "lexer.h"

#include <cctype>

#include "resource.h"

namespace {

class Lexer {
public:
    explicit Lexer(const std::string& script) : script_(script) {}

    Token Next() {
        SkipBlanks();
        if (at_ >= script_.size()) return {TokenKind::End, "the end", 0, line_};
        const char ch = script_[at_];
        if (ch == '"') return Text();
        if (std::isdigit(static_cast<unsigned char>(ch))) return Number();
        if (std::isalpha(static_cast<unsigned char>(ch)) || ch == '_') return Word();
        ++at_;
        return {TokenKind::Mark, std::string(1, ch), 0, line_};
    }

private:
    bool Follows(const char* mark) const { return script_.compare(at_, 2, mark) == 0; }

    void SkipBlanks() {
        while (at_ < script_.size()) {
            const char ch = script_[at_];
            if (Follows("//")) {
                at_ = std::min(script_.find('\n', at_), script_.size());
            } else if (Follows("/*")) {
                SkipComment();
            } else if (std::isspace(static_cast<unsigned char>(ch))) {
                line_ += ch == '\n';
                ++at_;
            } else {
                return;
            }
        }
    }

    void SkipComment() {
        const int begin = line_;
        const size_t end = script_.find("*/", at_ + 2);
        if (end == std::string::npos) throw ResourceError(begin, "this comment has no end");
        for (; at_ < end + 2; ++at_)
            line_ += script_[at_] == '\n';
    }

    // A quote inside is written twice.
    Token Text() {
        std::string text;
        for (++at_;; ++at_) {
            if (at_ >= script_.size() || script_[at_] == '\n')
                throw ResourceError(line_, "this text has no closing quote");
            if (script_[at_] == '"') {
                if (script_.compare(at_, 2, "\"\"") != 0) break;
                ++at_;
            }
            if (script_[at_] == '\\') throw ResourceError(line_, "escapes are not taken in texts");
            text += script_[at_];
        }
        ++at_;
        return {TokenKind::Text, text, 0, line_};
    }

    Token Number() {
        const size_t begin = at_;
        while (at_ < script_.size() && std::isalnum(static_cast<unsigned char>(script_[at_])))
            ++at_;
        std::string digits = script_.substr(begin, at_ - begin);
        if (digits.back() == 'L' || digits.back() == 'l') digits.pop_back();
        const bool hexadecimal = digits.size() > 2 && (digits[1] == 'x' || digits[1] == 'X');
        size_t used = 0;
        long long number = 0;
        try {
            number = std::stoll(digits, &used, hexadecimal ? 16 : 10);
        } catch (const std::exception&) {
            used = 0;
        }
        if (used != digits.size() || number > 0xFFFFFFFFLL)
            throw ResourceError(line_, "bad number " + digits);
        return {TokenKind::Number, digits, number, line_};
    }

    Token Word() {
        const size_t begin = at_;
        while (at_ < script_.size() &&
               (std::isalnum(static_cast<unsigned char>(script_[at_])) || script_[at_] == '_'))
            ++at_;
        return {TokenKind::Word, script_.substr(begin, at_ - begin), 0, line_};
    }

    const std::string& script_;
    size_t at_ = 0;
    int line_ = 1;
};

}  // namespace

std::vector<Token> ReadTokens(const std::string& script) {
    Lexer lexer(script);
    std::vector<Token> tokens;
    do
        tokens.push_back(lexer.Next());
    while (tokens.back().kind != TokenKind::End);
    return tokens;
}
