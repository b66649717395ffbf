#include <afx.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include <tuple>
#include <utility>

#include "platform/raises.h"

namespace {

TEST(String, TakesAndJoinsTexts) {
    EXPECT_EQ(CString(static_cast<const char*>(nullptr)), "");
    EXPECT_EQ(CString("abc", -1), "");
    EXPECT_EQ(CString('x', -3), "");
    CString text = "abc";
    text = text.GetString() + 1;
    EXPECT_EQ("a" + text + 'd' + CString("e") + "f", "abcdef");
    text += text;
    text += text.GetString() + 3;
    text.Append("xyz", 2);
    EXPECT_EQ(text, "bcbccxy");
    EXPECT_TRUE(RaisesInvalidArg([&] { text.Append(nullptr, 1); }));
}

TEST(String, ComparesBytesWithZerosAmongThem) {
    const CString a("a\0b", 3);
    CString b("a\0C", 3);
    EXPECT_LT(b, a);
    EXPECT_LT(a.CompareNoCase(b), 0);
    b.SetAt(2, 'B');
    EXPECT_EQ(a.CompareNoCase(b), 0);
    b += a;
    b.Append(a);
    EXPECT_EQ(b.ReverseFind('\0'), 7);
    EXPECT_GT(a, "a");
    EXPECT_GT("\xe4", CString("z"));
    EXPECT_LT(CString("a_").CompareNoCase("AB"), 0);
    EXPECT_NE(CString("\xe4").CollateNoCase("\xc4"), 0);
}

TEST(String, GivesParts) {
    const CString text("abcde");
    const std::pair<CString, const char*> cases[] = {
        {text.Left(9), "abcde"},      {text.Left(-1), ""},    {text.Right(2), "de"},
        {text.Right(9), "abcde"},     {text.Right(-1), ""},   {text.Mid(9), ""},
        {text.Mid(-1), "abcde"},      {text.Mid(1, 2), "bc"}, {text.Mid(1, -1), ""},
        {text.Mid(3, INT_MAX), "de"},
    };
    for (const auto& [part, expected] : cases)
        EXPECT_EQ(part, expected);
    EXPECT_EQ(CString(" \t\r\n\v\fa b\n ").Trim(), "a b");
    EXPECT_EQ(CString("xyaxby").TrimLeft("yx"), "axby");
    EXPECT_EQ(CString("xx").TrimRight('x'), "");
    EXPECT_EQ(CString("aZ[\xc4").MakeLower(), "az[\xc4");
    EXPECT_EQ(text.Find("de", 3), 3);
    EXPECT_EQ(text.Find("", 5), 5);
    EXPECT_EQ(text.Find("", 6), -1);
}

TEST(String, Replaces) {
    const std::tuple<const char*, const char*, const char*, int, const char*> cases[] = {
        {"abaca", "a", "aa", 3, "aabaacaa"}, {"abaca", "a", nullptr, 3, "bc"},
        {"abaca", "ba", "x", 1, "axca"},     {"abaca", "", "x", 0, "abaca"},
        {"aaaa", "aa", "a", 2, "aa"},
    };
    for (const auto& [before, old, with, count, result] : cases) {
        CString text(before);
        EXPECT_EQ(text.Replace(old, with), count) << old;
        EXPECT_EQ(text, result) << old;
    }
}

TEST(String, Deletes) {
    const std::tuple<int, int, const char*> cases[] = {
        {0, 1, "bcd"},  {1, 2, "ad"},   {2, 9, "ab"},    {4, 1, "abcd"},
        {9, 1, "abcd"}, {1, 0, "abcd"}, {1, -1, "abcd"},
    };
    for (const auto& [index, count, left] : cases) {
        CString text("abcd");
        EXPECT_EQ(text.Delete(index, count), static_cast<int>(std::strlen(left))) << index << ' ' << count;
        EXPECT_EQ(text, left) << index << ' ' << count;
    }
}

TEST(String, FormatsAndLendsItsBuffer) {
    CString text("abc");
    text.Format("%s|%s|%03d", text.GetString(), "x", 7);
    EXPECT_EQ(text, "abc|x|007");
    text.AppendFormat("%s%c", std::string(5000, 'y').c_str(), '.');
    EXPECT_EQ(text.GetLength(), 9 + 5000 + 1);
    std::memset(text.GetBuffer(9000), 'c', 9000);
    text.ReleaseBuffer(9000);
    EXPECT_EQ(text.GetLength(), 9000);
    std::strcpy(text.GetBuffer(), "short");
    text.ReleaseBuffer();
    EXPECT_EQ(text, "short");
    EXPECT_TRUE(RaisesInvalidArg([&] { text.ReleaseBuffer(6); }));
    EXPECT_EQ(text.GetAt(5), '\0');
    EXPECT_TRUE(RaisesInvalidArg([&] { text.GetAt(6); }));
    EXPECT_TRUE(RaisesInvalidArg([&] { text.SetAt(5, 'x'); }));
}

}  // namespace
