#include "customize/tag_observer.h"

#include <gtest/gtest.h>

#include <string>

#include "parsed_script.h"

namespace {

// Collects what is told as line:first-two-bytes:note.
class Listener : public TagObserver {
public:
    void Passed(TagNote note, int keyword, int line, const char* place) override {
        told += std::to_string(line) + ":" + std::string(place, 2) + ":" + KeywordName(keyword) + ":" +
                std::to_string(static_cast<int>(note)) + " ";
        EXPECT_STRNE(TagNoteText(note), "");
    }
    std::string told;
};

std::string Told(int line, const char* start, const char* keyword, TagNote note) {
    return std::to_string(line) + ":" + start + ":" + keyword + ":" + std::to_string(static_cast<int>(note)) +
           " ";
}

TEST(TagObserver, HearsOfEveryLoss) {
    const struct {
        const char* text;
        std::string told;
    } cases[] = {
        {"// entry: A\nx=1;", ""},
        {"x\n\n// hm", Told(2, "//", "", TagNote::PlainComment)},
        {"x\n// entry: A\n\n", Told(1, "//", "entry", TagNote::BlankLine)},
        {"// entry: A\n// entry: B\nx=1;", Told(0, "//", "entry", TagNote::ReplacedByTag)},
        {"// id: 1\n// entry: A\nvar x;", Told(1, "//", "entry", TagNote::NoValue)},
        {"// entry: A\nx = y;", Told(0, "//", "entry", TagNote::NotANumber)},
        {"// entry: A\nx = /**/ 5;", Told(0, "//", "entry", TagNote::CommentInValue)},
        {"// entry_path: A\nx = <a;", Told(0, "//", "entry_path", TagNote::BracketNotClosed)},
        {"// entry: A\nx = \"a\n// title: T",
         Told(0, "//", "entry", TagNote::QuoteNotClosed) + Told(2, "//", "title", TagNote::UsedUp)},
        {"// entry: A\nx\n// entry: B\ny=1;",
         Told(0, "//", "entry", TagNote::CommentInValue) + Told(2, "//", "entry", TagNote::UsedUp)},
        {"// entry: A", Told(0, "//", "entry", TagNote::TextEnded)},
        {"// help: A\n// id: 2\nx;", Told(0, "//", "help", TagNote::NoEntry)},
        {"// entry: A\n// action\n// title: T",
         Told(0, "//", "entry", TagNote::ActionBegan) + Told(2, "//", "title", TagNote::InsideAction)},
        {"// skill1: A", Told(0, "//", "skill1", TagNote::IgnoredKeyword)},
        {"// cntl: slider\n// entry: A\nx=1;", Told(0, "//", "cntl", TagNote::UnknownControl)},
    };
    for (const auto& c : cases) {
        Listener listener;
        const ParsedScript script(c.text, &listener);
        EXPECT_EQ(listener.told, c.told) << c.text;
    }
}

}  // namespace
