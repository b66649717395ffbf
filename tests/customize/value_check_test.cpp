#include "customize/value_check.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>

#include "customize/script_document.h"
#include "customize/typed_value.h"
#include "parsed_script.h"

namespace {

TEST(ValueCheck, FaultsOfAValueByItself) {
    const ParsedScript script(
        "//entry A\na=\"x\";\n//entry B\nb=<x>;\n//entry_drop C\nc=x;\n//entry_text 9, 3, D\nd=\"x\";\n"
        "//entry_text E\ne=\"x\";\n//enable F\nf();\n");
    const std::tuple<size_t, const char*, ValueFault> cases[] = {
        {0, "a > b; c", ValueFault::None},     {0, "a\"b", ValueFault::QuoteInside},
        {1, "a b.wav", ValueFault::None},      {1, "a>", ValueFault::BracketInside},
        {1, "a\r", ValueFault::LineEndInside}, {2, "a b", ValueFault::NotOneWord},
        {2, "", ValueFault::NotOneWord},       {3, "a\r\nb", ValueFault::None},
        {3, "\"", ValueFault::QuoteInside},    {5, "1", ValueFault::None},
    };
    for (const auto& [entry, value, fault] : cases) {
        EXPECT_EQ(FindValueFault(script.list.entries[entry], value), fault) << entry << ' ' << value;
    }
    EXPECT_EQ(FindValueFault(script.list.entries[0], CString("a\0b", 3)), ValueFault::NulInside);
}

TEST(ValueCheck, ReadsBack) {
    const std::string tooLong(1100, 'y');  // for its line
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"//entry A\na=\"x\";", "y", true},
        {"//entry A\na=<x>;", " y ", false},    // blanks would be trimmed
        {"//entry_drop A\na=x;", "/y", false},  // a comment
        {"//enable A\ntitle();", "0", true},
        {"//enable A\ntitle (1);", "0", false},  // the switched-off line would be a tag
        {"//entry A\na=\"x\";", tooLong.c_str(), false},
    };
    for (const auto& [bytes, value, reads] : cases) {
        const ParsedScript script(bytes);
        const std::vector<NewValue> changes = {{0, value}};
        const SplicedScript spliced = SpliceValues(script.text, script.list, changes);
        CEntryList expected = script.list;
        ApplySplice(spliced, changes, expected);
        EXPECT_EQ(ReadsBack(spliced.text, expected), reads) << bytes;
    }
}

TEST(TypedValue, AsTheControlsTakeIt) {
    const ParsedScript script(
        "//enable A\na();\n//entry B\n//cntl spin 0 10\nb=5;\n//entry C\nc=1.5;\n//entry_drop D\n//cntl drop "
        "fast Slow\n"
        "d=\"fast\";\n//entry_entity E\ne=\"e1\";\n//entry F\nf=\"x\";\n//entry G\ng=007;\n");
    // Entry, what is typed, the value then (null: refused), and whether there is a notice.
    const std::tuple<size_t, const char*, const char*, bool> cases[] = {
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
    for (const auto& [index, typed, expected, notice] : cases) {
        const CScriptEntry& entry = script.list.entries[index];
        const std::unique_ptr<EntryValue> value = MakeValueOf(entry);
        const TypedValue taken = TakeTypedValue(entry, *value, typed);
        EXPECT_EQ(taken.error.IsEmpty(), expected != nullptr) << entry.label << ' ' << typed;
        EXPECT_EQ(!taken.notice.IsEmpty(), notice) << entry.label << ' ' << typed;
        EXPECT_EQ(value->GetValue(), expected != nullptr ? expected : entry.value.GetString()) << typed;
    }
}

}  // namespace
