#include "customize/script_document.h"

#include <gtest/gtest.h>

#include <string>

#include "temp_folder.h"

namespace {

std::string Closed(const std::string& text) {
    return text + std::string("\r\n\0", 3);
}

class ScriptDocumentTest : public testing::Test {
protected:
    LoadResult Load(const std::string& bytes) {
        folder_.Write("a.brl", bytes);
        return script_.Load(folder_.Name("a.brl").c_str());
    }
    void Show(size_t entry, const char* text) { script_.Edit(entry)->DisplayValue(text); }

    TempFolder folder_;
    ScriptDocument script_;
};

TEST_F(ScriptDocumentTest, WritesOnlyWhatWasSet) {
    // the second value would count as changed in its field right after loading
    ASSERT_EQ(Load("// ver: 2\n//entry A\n//id 1\na=5;\n//entry B\n//id 2\nb=1.23456;\n"),
              LoadResult::Loaded);
    Show(0, "6");
    const std::vector<NewValue> changes = script_.ChangedValues();
    ASSERT_EQ(changes.size(), 1u);
    EXPECT_EQ(script_.Save(changes), SaveResult::Saved);
    EXPECT_EQ(folder_.Read("a.brl"),
              Closed("// ver: 2\n//entry A\n//id 1\na=6;\n//entry B\n//id 2\nb=1.23456;\n"));
    EXPECT_EQ(folder_.Read("a.brl.brlv"), "1\n2\n-1\n\n1\n11\n6\n\n2\n12\n1.23456\n\n");
    EXPECT_TRUE(script_.ChangedValues().empty());
}

TEST_F(ScriptDocumentTest, Limits) {
    Load(
        "//entry A\n//cntl spin 0 10 2\na=5;\n//entry B\n//cntl spin 0 10 2\nb=5.0;\n//entry_drop C\n//cntl "
        "drop x y x\nc=\"y\";\n");
    EXPECT_EQ(static_cast<IntValue*>(script_.Edit(0))->Field().Maximum(), 10);
    EXPECT_EQ(static_cast<FloatValue*>(script_.Edit(1))->Field().Maximum(),
              0.0f);  // a script's decimals have none
    EXPECT_EQ(static_cast<DropValue*>(script_.Edit(2))->Items(), (std::vector<CString>{"y", "x"}));
}

TEST_F(ScriptDocumentTest, WhatCannotBeLoadedOrSaved) {
    EXPECT_EQ(script_.Load(folder_.Name("none.brl").c_str()), LoadResult::CannotOpen);
    EXPECT_EQ(Load(""), LoadResult::Loaded);
    EXPECT_TRUE(script_.List().entries.empty());
    EXPECT_EQ(Load("//entry A\na=5;\n" + std::string(1023, 'x') + "\n"), LoadResult::LineTooLong);
    EXPECT_EQ(script_.LongLine(), 2);
    EXPECT_TRUE(script_.List().entries.empty());

    const std::string bytes = "// title: T\n//entry A\n//id 3\na=5;\n";
    Load(bytes);
    EXPECT_EQ(script_.Edit(0), nullptr);
    Show(1, "6");
    const std::vector<NewValue> changes = script_.ChangedValues();
    // a folder stands where the file should go
    std::filesystem::rename(folder_.Path("a.brl"), folder_.Path("kept.brl"));
    std::filesystem::create_directory(folder_.Path("a.brl"));
    EXPECT_EQ(script_.Save(changes), SaveResult::CannotOpen);
    EXPECT_FALSE(folder_.Has("a.brl.brlv"));
    EXPECT_EQ(script_.Entry(1).value, "5");
    std::filesystem::remove(folder_.Path("a.brl"));
    std::filesystem::rename(folder_.Path("kept.brl"), folder_.Path("a.brl"));
    EXPECT_EQ(script_.Save(changes), SaveResult::Saved);
    EXPECT_EQ(folder_.Read("a.brl"), Closed("// title: T\n//entry A\n//id 3\na=6;\n"));

    std::filesystem::create_directory(folder_.Path("b.brl.brlv"));
    folder_.Write("b.brl", bytes);
    script_.Load(folder_.Name("b.brl").c_str());
    Show(1, "6");
    EXPECT_EQ(script_.Save(script_.ChangedValues()), SaveResult::CannotWriteSideFile);
}

}  // namespace
