// Another tool's view of the shared library: the support library through its exports alone.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/file_names.h"
#include "support/file_objects.h"
#include "support/lex.h"
#include "temp_folder.h"

namespace {

TEST(Exports, LinesAndTokens) {
    const std::string text = "// entry: Walk speed\nvar speed = 10;\n";
    CLex lex(text.data(), static_cast<long>(text.size()));
    EXPECT_EQ(std::string(lex.getNextLine()), "var speed = 10;");
    EXPECT_EQ(CLex::GetFirstToken(text.c_str(), 8, ":"), text.c_str());
    EXPECT_EQ(CLex::GetTokenLen(), 2);
    float value = 0;
    EXPECT_NE(CLex::ScanFloatValue("2.5", value), nullptr);
    EXPECT_EQ(value, 2.5f);
}

TEST(Exports, FilesOfEveryKind) {
    TempFolder folder;
    const std::string name = folder.Name("a.txt");
    file_t file;
    ASSERT_TRUE(file.OpenWrite(name.c_str()));
    EXPECT_EQ(file.Write("hello", 1, 5), 5);
    file.Close();
    EXPECT_TRUE(file_t::FileExist(name.c_str(), nullptr));

    dmemfile_t memory;
    ASSERT_TRUE(memory.OpenRead(name.c_str()));
    const std::unique_ptr<file_t> part(memory.create_part("part", 2, 1));
    ASSERT_NE(part, nullptr);
    EXPECT_EQ(part->Getc(), 'e');
    smemfile_t empty;
    EXPECT_EQ(empty.GetMemPtr(), nullptr);
}

TEST(Exports, Names) {
    CFName name("C:\\dir\\a.b.txt");
    EXPECT_STREQ(name.GetShortName(), "a.b.txt");
    EXPECT_STREQ(name.GetDir(), "C:\\dir");
    EXPECT_STREQ(dname_t("C:\\dir\\").GetPath(), "C:\\dir");
    CFileFinder finder;
    EXPECT_NE(finder.OpenFinder("*.txt"), 0);
    EXPECT_NE(finder.TestName("B.TXT"), 0);
}

}  // namespace
