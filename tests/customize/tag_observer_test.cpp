#include "customize/tag_observer.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "parsed_script.h"

namespace {

std::string Told(int line, const char* keyword, TagNote note) {
    return std::to_string(line) + ":" + keyword + ":" + std::to_string(static_cast<int>(note)) + " ";
}

class Listener : public TagObserver {
public:
    void Passed(TagNote note, int keyword, int line, const char* place) override {
        told += Told(line, KeywordName(keyword), note);
        EXPECT_EQ(std::string(place, 2), "//");
        EXPECT_STRNE(TagNoteText(note), "");
    }
    std::string told;
};

TEST(TagObserver, HearsOfEveryLoss) {
    const std::pair<const char*, std::string> cases[] = {
        {"// entry: A\nx=1;", ""},
        {"x\n\n// hm", Told(2, "", TagNote::PlainComment)},
        {"x\n// entry: A\n\n", Told(1, "entry", TagNote::BlankLine)},
        {"// entry: A\n// entry: B\nx=1;", Told(0, "entry", TagNote::ReplacedByTag)},
        {"// id: 1\n// entry: A\nvar x;", Told(1, "entry", TagNote::NoValue)},
        {"// entry: A\nx = y;", Told(0, "entry", TagNote::NotANumber)},
        {"// entry: A\nx = /**/ 5;", Told(0, "entry", TagNote::CommentInValue)},
        {"// entry_path: A\nx = <a;", Told(0, "entry_path", TagNote::BracketNotClosed)},
        {"// entry: A\nx = \"a\n// title: T",
         Told(0, "entry", TagNote::QuoteNotClosed) + Told(2, "title", TagNote::UsedUp)},
        {"// entry: A\nx\n// entry: B\ny=1;",
         Told(0, "entry", TagNote::CommentInValue) + Told(2, "entry", TagNote::UsedUp)},
        {"// entry: A", Told(0, "entry", TagNote::TextEnded)},
        {"// help: A\n// id: 2\nx;", Told(0, "help", TagNote::NoEntry)},
        {"// entry: A\n// action\n// title: T",
         Told(0, "entry", TagNote::ActionBegan) + Told(2, "title", TagNote::InsideAction)},
        {"// skill1: A", Told(0, "skill1", TagNote::IgnoredKeyword)},
        {"// cntl: slider\n// entry: A\nx=1;", Told(0, "cntl", TagNote::UnknownControl)},
    };
    for (const auto& [text, told] : cases) {
        Listener listener;
        const ParsedScript script(text, &listener);
        EXPECT_EQ(listener.told, told) << text;
    }
}

}  // namespace
