#include <afx.h>
#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

#include "platform/raises.h"

namespace {

TEST(String, TakesTexts) {
    const CString empty;
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_STREQ(empty, "");
    EXPECT_EQ(CString(static_cast<const char*>(nullptr)), "");
    EXPECT_EQ(CString("abc", 2), "ab");
    EXPECT_EQ(CString("abc", -1), "");
    EXPECT_EQ(CString('x', 3), "xxx");
    EXPECT_EQ(CString('x', -3), "");
    CString text = "abc";
    text = text.GetString() + 1;
    EXPECT_EQ(text, "bc");
    text = 'z';
    EXPECT_EQ(text, "z");
    const CString moved = std::move(text);
    EXPECT_EQ(moved, "z");
}

TEST(String, KeepsZerosInside) {
    const CString a("a\0b", 3);
    CString b("a\0c", 3);
    EXPECT_EQ(a.GetLength(), 3);
    EXPECT_NE(a, b);
    EXPECT_LT(a, b);
    EXPECT_NE(a, "a");
    EXPECT_GT(a, "a");
    EXPECT_LT(a.CompareNoCase(b), 0);
    b.SetAt(2, 'B');
    EXPECT_EQ(a.CompareNoCase(b), 0);
    EXPECT_EQ((a + b).GetLength(), 6);
    b += a;
    b.Append(a);
    EXPECT_EQ(b.ReverseFind('\0'), 7);
}

TEST(String, JoinsTexts) {
    const CString text("bc");
    EXPECT_EQ("a" + text + 'd' + CString("e") + "f", "abcdef");
    EXPECT_EQ('a' + text, "abc");
    CString grown;
    grown += "ab";
    grown += 'c';
    grown += grown;
    grown += grown.GetString() + 4;
    grown.Append("xyz", 2);
    grown.AppendChar('!');
    EXPECT_EQ(grown, "abcabcbcxy!");
    EXPECT_TRUE(RaisesInvalidArg([&] { grown.Append(nullptr, 1); }));
}

TEST(String, ComparesAsUnsignedBytes) {
    EXPECT_LT(CString("Z"), "a");
    EXPECT_GT("\xe4", CString("z"));
    EXPECT_LT(CString("ab").Compare("abc"), 0);
    EXPECT_EQ(CString("AbC").CompareNoCase("aBc"), 0);
    EXPECT_LT(CString("a_").CompareNoCase("AB"), 0);
    EXPECT_NE(CString("\xe4").CollateNoCase("\xc4"), 0);
    EXPECT_GT(CString("abc").CollateNoCase("AB"), 0);
}

TEST(String, GivesParts) {
    const CString text("abcde");
    const struct {
        CString part;
        const char* expected;
    } cases[] = {
        {text.Left(2), "ab"},    {text.Left(9), "abcde"},  {text.Left(-1), ""},
        {text.Right(2), "de"},   {text.Right(9), "abcde"}, {text.Right(-1), ""},
        {text.Mid(1), "bcde"},   {text.Mid(5), ""},        {text.Mid(9), ""},
        {text.Mid(-1), "abcde"}, {text.Mid(1, 2), "bc"},   {text.Mid(3, INT_MAX), "de"},
        {text.Mid(1, -1), ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.part, c.expected) << &c - cases;
}

TEST(String, Searches) {
    const CString text("abcabc");
    EXPECT_EQ(text.Find('b'), 1);
    EXPECT_EQ(text.Find('b', 2), 4);
    EXPECT_EQ(text.Find('x'), -1);
    EXPECT_EQ(text.Find("bc", 2), 4);
    EXPECT_EQ(text.Find("cb"), -1);
    EXPECT_EQ(text.Find("", 6), 6);
    for (const int outside : {-1, 7}) {
        EXPECT_EQ(text.Find('a', outside), -1);
        EXPECT_EQ(text.Find("", outside), -1);
    }
    EXPECT_EQ(text.ReverseFind('a'), 3);
    EXPECT_EQ(text.ReverseFind('x'), -1);
}

TEST(String, Trims) {
    EXPECT_EQ(CString(" \t\r\n\v\fa b\n ").Trim(), "a b");
    EXPECT_EQ(CString(" a ").TrimLeft(), "a ");
    EXPECT_EQ(CString(" a ").TrimRight(), " a");
    EXPECT_EQ(CString(" \n").Trim(), "");
    EXPECT_EQ(CString("//a/b//").Trim('/'), "a/b");
    EXPECT_EQ(CString("xyaxby").Trim("yx"), "axb");
    EXPECT_EQ(CString("xx").TrimLeft('x'), "");
    EXPECT_EQ(CString("xx").TrimRight('x'), "");
    EXPECT_EQ(CString(" a ").Trim(""), " a ");
}

TEST(String, Changes) {
    EXPECT_EQ(CString("aZ[\xc4").MakeLower(), "az[\xc4");
    EXPECT_EQ(CString("aZ{\xe4").MakeUpper(), "AZ{\xe4");
    const struct {
        const char* old;
        const char* with;
        int count;
        const char* result;
    } cases[] = {
        {"a", "aa", 3, "aabaacaa"}, {"a", "", 3, "bc"},    {"a", nullptr, 3, "bc"}, {"ba", "x", 1, "axca"},
        {"aba", "-", 1, "-ca"},     {"", "x", 0, "abaca"}, {"bb", "x", 0, "abaca"},
    };
    for (const auto& c : cases) {
        CString text("abaca");
        EXPECT_EQ(text.Replace(c.old, c.with), c.count) << c.old;
        EXPECT_EQ(text, c.result) << c.old;
    }
    CString runs("aaaa");
    EXPECT_EQ(runs.Replace("aa", "a"), 2);
    EXPECT_EQ(runs, "aa");
}

TEST(String, Formats) {
    CString text("abc");
    text.Format("%s|%s|%03d", text.GetString(), "x", 7);
    EXPECT_EQ(text, "abc|x|007");
    const std::string longText(5000, 'y');
    text.AppendFormat("%s%c", longText.c_str(), '.');
    EXPECT_EQ(text.GetLength(), 9 + 5000 + 1);
    EXPECT_EQ(text.Right(2), "y.");
}

TEST(String, LendsItsBuffer) {
    CString text("ab");
    char* buffer = text.GetBuffer(300);
    EXPECT_STREQ(buffer, "ab");
    std::memset(buffer, 'c', 300);
    text.ReleaseBuffer(300);
    EXPECT_EQ(text.GetLength(), 300);
    std::strcpy(text.GetBuffer(), "short");
    text.ReleaseBuffer();
    EXPECT_EQ(text, "short");
    EXPECT_TRUE(RaisesInvalidArg([&] { text.ReleaseBuffer(6); }));
    EXPECT_TRUE(RaisesInvalidArg([&] { text.GetBuffer(-1); }));
}

TEST(String, ChecksPositions) {
    CString text("ab");
    EXPECT_EQ(text[1], 'b');
    EXPECT_EQ(text.GetAt(2), '\0');
    EXPECT_TRUE(RaisesInvalidArg([&] { text.GetAt(3); }));
    EXPECT_TRUE(RaisesInvalidArg([&] { text.GetAt(-1); }));
    EXPECT_TRUE(RaisesInvalidArg([&] { text.SetAt(2, 'x'); }));
}

}  // namespace
