#include "catalogue/xml_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogue/xml_dump.h"

namespace {

// The tree in one line, or the error and its place. The text lies in memory of its exact size.
std::string Read(const std::string& text) {
    const std::vector<char> bytes(text.c_str(), text.c_str() + text.size() + 1);
    XmlResult result;
    const XmlTreePtr tree(CXmlReader::Parse(bytes.data(), &result));
    EXPECT_EQ(tree == nullptr, result.error != XmlErrorNone);
    if (tree) return Dump(*tree);
    return "error " + std::to_string(result.error) + " at " + std::to_string(result.line) + ":" +
           std::to_string(result.column);
}

struct Case {
    std::string text;
    std::string outcome;
};

template <size_t count>
void Check(const Case (&cases)[count]) {
    for (const auto& [text, outcome] : cases)
        EXPECT_EQ(Read(text), outcome) << text;
}

TEST(XmlReader, StartTags) {
    Check({
        {"<a x=1 y z='q \"r\"' w=\"<>&amp;\">", "a{@x=1 @y @z='q \"r\"' @w=\"<>&amp;\"}"},
        {"<a x=1 x=2/><b>", "a{@x=1 @x=2} b{}"},
        {"<a x = 1 y\t=\r\n\"2\"\n>", "a{@x=1 @y=\"2\"}"},
        {"<a x=\"1\"y='2'z>", "a{@x=\"1\" @y='2' @z}"},
        {"<a x=it's y=b\"c/>", "a{@x=it's @y=b\"c}"},
        {"<a x=b/c/d/><b>", "a{@x=b/c/d} b{}"},
        {"<a/ ><b/ x>", "a/{b/{@x}}"},
        {"<a x=/>", "error 7 at 1:8"},
        {"< a ></ A >", "a{}"},
        {"<a x y", "a{@x}"},
    });
}

TEST(XmlReader, Content) {
    Check({
        {"", ""},
        {"<a>", "a{}"},
        {"  one  two\n\tthree \r\n<a>", "'one  two\n\tthree' a{}"},
        {"<a>x = 1 = 2</a>", "a{'x = 1 = 2'}"},
        {"<a>a/b // c/d</a>", "a{'a/b // c/d'}"},
        {"<a>it's \"so </a> <b>\" there</a>", "a{'it's \"so </a> <b>\" there'}"},
        {"<a>one<!-- <x> -->two</a>", "a{'one' [<!--| <x> |-->] 'two'}"},
        {"\xEF\xBB\xBF<a>\xE4\x80\xFF</a>", "'\xEF\xBB\xBF' a{'\xE4\x80\xFF'}"},
    });
}

// The words of a long text are passed over in steps of eight bytes. Nothing of interest may be lost wherever
// it stands among them.
void CheckBehind(const std::string& lead) {
    const std::string kept = lead.substr(0, lead.find_last_not_of(' ') + 1);
    const bool inWord = kept == lead && lead.back() != '=';
    const auto column = [&lead](size_t behind) { return std::to_string(3 + lead.size() + behind + 1); };
    Check({
        {"<a>" + lead + "</a>", "a{'" + kept + "'}"},
        {"<a>" + lead + "<b/>" + lead + "</a>", "a{'" + kept + "' b{} '" + kept + "'}"},
        {"<a>" + lead + "> more of it</a>", "error 7 at 1:" + column(1)},
        {"<a>" + lead + "/> more of it</a>", "error 7 at 1:" + column(2)},
        {"<a>" + lead + "' more of it</a>",
         inWord ? "a{'" + lead + "' more of it'}" : "error 5 at 1:" + column(0)},
        {"<a>" + lead + "\"</a>\" more</a>",
         inWord ? "error 5 at 1:" + column(5) : "a{'" + lead + "\"</a>\" more'}"},
    });
}

TEST(XmlReader, LongTextsAtEveryOffset) {
    const std::string words = "some words, 12 = 0x0C; path\\to/file & so on ";
    for (const size_t start : {0u, 1u, 2u, 3u, 5u, 6u, 7u, 8u}) {
        for (size_t end = start + 1; end <= words.size(); ++end)
            CheckBehind(words.substr(start, end - start));
    }
}

TEST(XmlReader, RawBlocks) {
    Check({
        {"<![CDATA[ <a> & ]] ]>]]>t<a>", "[<![CDATA[| <a> & ]] ]>|]]>] 't' a{}"},
        {"<script><b></Script>", "[<Script>|<b>|</Script>]"},
        {"<Script ></Script>", "Script{}"},
        {"<Script id=1>x</Script>", "Script{@id=1 'x'}"},
        {"<!DOCTYPE x [<!ENTITY y \"z\">]>", "error 7 at 1:31"},
        {"<!doctype a \">\">", "error 5 at 1:15"},
        {"<a><!-- \n -->", "a{[<!--| \n |-->]}"},
        {"<![CDATA", "![CDATA{}"},
    });
}

TEST(XmlReader, Declarations) {
    Check({
        {"<?xml version=\"1.0\" encoding='x' ?>t<a>", "?xml{@version=\"1.0\" @encoding='x' 't' a{}}"},
        {"<?xml version=\"1.0\"?><a/>", "?xml{@version=\"1.0\" a{}}"},
        {"<?xml x=?><a/>", "?xml{@x= a{}}"},
        {"<?xml ? x='?'>", "?xml{@? @x='?'}"},
        {"<?xml?>", "?xml?{}"},
        {"<a b? c=d?/>", "a{@b? @c=d?}"},
        {"<a><?a b=1?></a>", "a{} a{@b=1?}"},
    });
}

// A name is compared over the length of the open element's name, and a tag that begins like it closes that
// one.
TEST(XmlReader, ClosingByOtherTags) {
    Check({
        {"<r><a><A>1</a></r>", "r{a{} A{'1'}}"},
        {"<r><need>1<needs>2</r>", "r{need{'1'} needs{'2'}}"},
        {"<r><need>1<needs x=1>2</need></r>", "error 6 at 1:30"},
        {"<r><b><c><c1><b1>t</r>", "r{b{c{} c1{b1{'t'}}}}"},
        {"<r><b><bc><bcd><b>t</r>", "r{b{} bc{} bcd{b{'t'}}}"},
        {"<a><b><c>1</a>2<d/>", "a{b{c{'1'}}} '2' d{}"},
        {"<abc><ab><a><abcd><e>", "abc{ab{a{}}} abcd{e{}}"},
        {"<a></abc>t<b>", "a{} 't' b{}"},
    });
}

TEST(XmlReader, ErrorsAndTheirPlaces) {
    Check({
        {"<", "error 3 at 1:2"},
        {"<=a>", "error 3 at 1:3"},
        {"<<!--x-->", "error 3 at 1:6"},
        {"<a></", "error 4 at 1:6"},
        {"<a></a", "error 4 at 1:7"},
        {"<a></'a>", "error 4 at 1:6"},
        {"<a></a b\n>", "error 4 at 2:1"},
        {"<a>it 's so\nmuch</a>", "error 5 at 1:7"},
        {"<a\n x=\"1>", "error 5 at 2:4"},
        {"</a>", "error 6 at 1:5"},
        {"<a><!-- \n ", "error 6 at 1:8"},
        {"<a>x > y</a>", "error 7 at 1:7"},
        {">", "error 7 at 1:2"},
        {"<a x=1 <b>", "error 7 at 1:9"},
        {"<a x</a>", "error 7 at 1:7"},
        {"<a x\n<!--c-->>", "error 7 at 2:5"},
        {"<a \"x\"\n\n  >", "error 7 at 3:3"},
        {"<a x==1>", "error 7 at 1:7"},
        {"<a <PRE>>", "error 7 at 1:9"},
    });
}

TEST(XmlReader, ResultIsOptionalAndPlaceIsLeftWithoutAnError) {
    EXPECT_EQ(CXmlReader::Parse(">", nullptr), nullptr);
    XmlResult result{7, 8, 9};
    const XmlTreePtr tree(CXmlReader::Parse("<a x/>", &result));
    ASSERT_TRUE(tree);
    EXPECT_EQ(result.error, 0);
    EXPECT_EQ(result.line, 8);
    EXPECT_EQ(result.column, 9);

    EXPECT_EQ(tree->name, nullptr);
    EXPECT_EQ(tree->parent, nullptr);
    ASSERT_EQ(tree->itemCount, 1);
    const CXmlElement& a = tree->items[0].Element();
    EXPECT_EQ(a.parent, tree.get());
    EXPECT_EQ(a.itemCount, 1);
    CXmlElement::Free(nullptr);
}

TEST(XmlReader, ErrorWords) {
    EXPECT_STREQ(XmlErrorText(0), "No error");
    EXPECT_STREQ(XmlErrorText(9), "No elements found");
    EXPECT_EQ(XmlErrorText(10), nullptr);
    EXPECT_EQ(XmlErrorText(-1), nullptr);
}

// What is cut off may leave something open, but never holds a token that has no place.
TEST(XmlReader, CutOffAtEveryByte) {
    const std::string text =
        "<?xml version=\"1.0\"?><!DOCTYPE r><r a b=c d='e'><![CDATA[<]]>t \"u\" = v<n/><m>w</m><m>/x</r>";
    for (size_t length = 0; length < text.size(); ++length) {
        const std::string outcome = Read(text.substr(0, length));
        EXPECT_TRUE(outcome.rfind("error 7", 0) == std::string::npos) << length << ": " << outcome;
    }
    EXPECT_EQ(Read(text),
              "?xml{@version=\"1.0\" [<!DOCTYPE| r|>] r{@a @b=c @d='e' [<![CDATA[|<|]]>] 't \"u\" = v' n{} "
              "m{'w'} m{'/x'}}}");
}

// Depth must not cost call stack, in reading, closing and freeing.
TEST(XmlReader, DeepNesting) {
    constexpr int32_t kDepth = 300000;
    std::string text = "<top>";
    for (int32_t i = 1; i < kDepth; ++i)
        text += i % 2 ? "<x>" : "<y>";
    for (const char* end : {"", "</x>", "</top>"}) {
        const XmlTreePtr tree(CXmlReader::Parse((text + end).c_str(), nullptr));
        ASSERT_TRUE(tree);
        int32_t depth = 0;
        for (const CXmlElement* at = tree.get(); at->itemCount > 0; at = &at->items[0].Element())
            ++depth;
        EXPECT_EQ(depth, kDepth);
    }
    EXPECT_EQ(CXmlReader::Parse((text + "</z>").c_str(), nullptr), nullptr);
}

TEST(XmlReader, LongLists) {
    constexpr int32_t kItems = 100000;
    std::string text = "<a";
    for (int32_t i = 0; i < kItems; ++i)
        text += " x" + std::to_string(i);
    const XmlTreePtr tree(CXmlReader::Parse((text + "><b/><b/>").c_str(), nullptr));
    ASSERT_TRUE(tree);
    const CXmlElement& a = tree->items[0].Element();
    ASSERT_EQ(a.itemCount, kItems + 2);
    for (int32_t i = 0; i < kItems; ++i)
        ASSERT_EQ(a.items[i].Attribute().name, "x" + std::to_string(i));
}

}  // namespace
