#include "customize/value_check.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "customize/script_document.h"
#include "customize/typed_value.h"
#include "parsed_script.h"

namespace {

TEST(ValueCheck, FaultsOfAValueByItself) {
    const ParsedScript script(
        "//entry A\na=\"x\";\n//entry B\nb=<x>;\n//entry_drop C\nc=x;\n//entry_text 9, 3, D\nd=\"x\";\n"
        "//entry_text E\ne=\"x\";\n//enable F\nf();\n");
    const struct {
        size_t entry;
        const char* value;
        ValueFault fault;
    } cases[] = {
        {0, "a > b; c", ValueFault::None},
        {0, "a\"b", ValueFault::QuoteInside},
        {0, "a\nb", ValueFault::LineEndInside},
        {1, "a b.wav", ValueFault::None},
        {1, "a>", ValueFault::BracketInside},
        {1, "a\r", ValueFault::LineEndInside},
        {2, "y", ValueFault::None},
        {2, "a b", ValueFault::NotOneWord},
        {2, "", ValueFault::NotOneWord},
        {2, "a;", ValueFault::NotOneWord},
        {3, "a\r\nb", ValueFault::None},
        {3, "\"", ValueFault::QuoteInside},
        {4, "a\nb", ValueFault::LineEndInside},
        {5, "1", ValueFault::None},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FindValueFault(script.list.entries[c.entry], c.value), c.fault)
            << c.entry << ' ' << c.value;
    }
    EXPECT_EQ(FindValueFault(script.list.entries[0], CString("a\0b", 3)), ValueFault::NulInside);
}

TEST(ValueCheck, ReadsBack) {
    const struct {
        const char* script;
        const char* value;
        bool reads;
    } cases[] = {
        {"//entry A\na=\"x\";", "y", true},
        {"//entry A\na=<x>;", " y ", false},    // blanks would be trimmed
        {"//entry_drop A\na=x;", "/y", false},  // a comment
        {"//enable A\ntitle();", "0", true},
        {"//enable A\ntitle (1);", "0", false},  // the switched-off line would be a tag
        {"//entry A\na=x\"y\";", "z", true},
    };
    for (const auto& c : cases) {
        const ParsedScript script(c.script);
        if (script.list.entries.empty()) continue;
        const std::vector<NewValue> changes = {{0, c.value}};
        const SplicedScript spliced = SpliceValues(script.text, script.list, changes);
        CEntryList expected = script.list;
        ApplySplice(spliced, changes, expected);
        EXPECT_EQ(ReadsBack(spliced.text, expected), c.reads) << c.script;
    }
    const ParsedScript script("//entry A\na=\"x\";");
    const std::vector<NewValue> changes = {{0, CString('y', 1100)}};  // the line grows beyond the limit
    const SplicedScript spliced = SpliceValues(script.text, script.list, changes);
    CEntryList expected = script.list;
    ApplySplice(spliced, changes, expected);
    EXPECT_FALSE(ReadsBack(spliced.text, expected));
}

TEST(TypedValue, AsTheControlsTakeIt) {
    const ParsedScript script(
        "//enable A\na();\n//entry B\n//cntl spin 0 10\nb=5;\n//entry C\nc=1.5;\n//entry_drop D\n//cntl drop "
        "fast Slow\n"
        "d=\"fast\";\n//entry_entity E\ne=\"e1\";\n//entry F\nf=\"x\";\n//entry G\ng=007;\n");
    const struct {
        size_t entry;
        const char* typed;
        const char* value;  // null: refused
        bool notice;
    } cases[] = {
        {0, "off", "0", false},       {0, "YES", "1", false},
        {0, "maybe", nullptr, false}, {1, "7", "7", false},
        {1, "99", "10", true},        {1, "-3", "0", true},
        {1, "+4", "4", false},        {1, "1.5", nullptr, false},
        {1, "7x", nullptr, false},    {1, "", nullptr, false},
        {1, "-", nullptr, false},     {1, "4294967296", nullptr, false},
        {2, "2", "2.0", false},       {2, "0,25", "0.25", false},
        {2, "x", nullptr, false},     {2, ".", nullptr, false},
        {3, "Slow", "Slow", false},   {3, "SLOW", "Slow", false},
        {3, "other", nullptr, false}, {4, "anything", "anything", false},
        {5, "a b", "a b", false},     {6, "7", "007", false},
    };
    for (const auto& c : cases) {
        const CScriptEntry& entry = script.list.entries[c.entry];
        const std::unique_ptr<EntryValue> value = MakeValueOf(entry);
        const TypedValue taken = TakeTypedValue(entry, *value, c.typed);
        EXPECT_EQ(taken.error.IsEmpty(), c.value != nullptr) << entry.label << ' ' << c.typed;
        EXPECT_EQ(!taken.notice.IsEmpty(), c.notice) << entry.label << ' ' << c.typed;
        EXPECT_EQ(value->GetValue(), c.value != nullptr ? c.value : entry.value.GetString()) << c.typed;
    }
}

}  // namespace
