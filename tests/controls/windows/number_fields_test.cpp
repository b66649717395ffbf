#include <gtest/gtest.h>

#include "controls/windows/panel.h"

namespace {

constexpr char kNumbers[] =
    "// entry: Speed\n"
    "// cntl: spin 0 10 2\n"
    "var speed = 5;\n"
    "// entry: Turn\n"
    "var turn = 1.5;\n"
    "// entry: Free\n"
    "var free = 007;\n";

class NumberFields : public testing::Test {
protected:
    CWnd& Field(size_t index) { return *Child(*Child(panel_.Control(index), 1009), 5123); }
    CWnd& Spin(size_t index) { return *Child(*Child(panel_.Control(index), 1009), 5124); }

    // Types over the whole field and commits by a key.
    void Enter(size_t index, const std::string& text, int key = VK_RETURN) {
        Field(index).SetFocus();
        Field(index).SendMessage(EM_SETSEL, 0, -1);
        Type(Field(index), text);
        Press(Field(index), key);
    }

    Panel panel_{kNumbers};
};

TEST_F(NumberFields, CommitWhatIsTyped) {
    const struct {
        size_t field;
        const char* typed;
        int key;
        const char* shown;
        const char* value;
    } rows[] = {{0, "12", VK_RETURN, "10", "10"},    {0, "-3", VK_RETURN, "0", "0"},
                {0, "7", VK_ESCAPE, "7", "7"},       {0, "1x2", VK_RETURN, "10", "10"},
                {1, "1,5", VK_RETURN, "1,5", "1.5"}, {1, "2.2.5", VK_TAB, "2.25", "2.25"},
                {1, "3", VK_RETURN, "3", "3.0"},     {2, "-12", VK_RETURN, "-12", "-12"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        Enter(row.field, row.typed, row.key);
        EXPECT_EQ(TextOf(Field(row.field)), row.shown);
        EXPECT_STREQ(panel_.Control(row.field).GetValue(), row.value);
    }
}

TEST_F(NumberFields, KeepTheSpellingUntilTheNumberChanges) {
    EXPECT_STREQ(panel_.Control(2).GetValue(), "007");
    Enter(2, "7");
    EXPECT_FALSE(panel_.Control(2).IsChanged());
    EXPECT_STREQ(panel_.Control(2).GetValue(), "007");
    Enter(2, "8");
    EXPECT_TRUE(panel_.Control(2).IsChanged());
    EXPECT_STREQ(panel_.Control(2).GetValue(), "8");
}

TEST_F(NumberFields, AnEmptiedFieldShowsItsValueAgain) {
    Field(0).SetFocus();
    Press(Field(0), VK_DELETE);
    EXPECT_EQ(TextOf(Field(0)), "");
    Field(1).SetFocus();
    EXPECT_EQ(TextOf(Field(0)), "5");
    EXPECT_FALSE(panel_.Control(0).IsChanged());
}

TEST_F(NumberFields, LeavingTheFieldCommitsToo) {
    Field(0).SetFocus();
    Type(Field(0), "9");
    EXPECT_FALSE(panel_.Control(0).IsChanged());
    Field(1).SetFocus();
    EXPECT_TRUE(panel_.Control(0).IsChanged());
}

TEST_F(NumberFields, ArrowsStepAndStayInTheRange) {
    RECT spin = {};
    Spin(0).GetClientRect(&spin);
    const int x = spin.right / 2;
    Click(Spin(0), x, spin.bottom / 4);
    EXPECT_EQ(TextOf(Field(0)), "7");
    Click(Spin(0), x, spin.bottom / 4);
    Click(Spin(0), x, spin.bottom / 4);
    EXPECT_EQ(TextOf(Field(0)), "10");
    Click(Spin(0), x, spin.bottom * 3 / 4);
    EXPECT_EQ(TextOf(Field(0)), "8");
    EXPECT_STREQ(panel_.Control(0).GetValue(), "8");
}

TEST_F(NumberFields, ArrowKeysActAsTheArrows) {
    Field(1).SetFocus();
    Press(Field(1), VK_UP);
    EXPECT_EQ(TextOf(Field(1)), "2.5");
    Press(Field(1), VK_DOWN);
    Press(Field(1), VK_DOWN);
    EXPECT_EQ(TextOf(Field(1)), "0.5");
}

TEST_F(NumberFields, AFieldIsSelectedWhenItGetsTheFocus) {
    CWnd& container = *Child(panel_.Control(0), 1009);
    container.SetFocus();
    EXPECT_EQ(GetFocus(), Field(0).m_hWnd);
    Type(Field(0), "4");
    EXPECT_EQ(TextOf(Field(0)), "4");
}

}  // namespace
