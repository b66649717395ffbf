#include "support/file_objects.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "temp_folder.h"

namespace {

class MemoryFile : public dmemfile_t {
public:
    long Capacity() const { return capacity; }
};

// The bytes that GetText hands out.
std::string TextOf(file_t& file) {
    unsigned char* text = nullptr;
    long length = -1;
    file.GetText(&text, length);
    const std::unique_ptr<unsigned char[]> owned(text);
    return text ? std::string(reinterpret_cast<char*>(text), static_cast<size_t>(length)) : std::string();
}

std::string Contents(file_t& memory) {
    return {static_cast<char*>(memory.GetMemPtr()), static_cast<size_t>(memory.GetLen())};
}

void Fill(dmemfile_t& memory, const std::string& bytes) {
    memory.Close();
    memory.Write(bytes.data(), static_cast<long>(bytes.size()), 1);
    ASSERT_EQ(bytes.size(), static_cast<size_t>(memory.GetLen()));
    ASSERT_EQ(0, memory.Seek(0, 0));
}

std::vector<std::string> LinesOf(file_t& file, int n) {
    std::vector<std::string> lines;
    std::string buffer(static_cast<size_t>(n) + 1, '#');
    while (file.Gets(buffer.data(), n))
        lines.emplace_back(buffer.c_str());
    return lines;
}

TEST(FileT, IsReadAndRewrittenThroughOneObject) {
    TempFolder folder;
    folder.Write("a.brl", "x = 1;\r\ny;\n");
    file_t file;
    ASSERT_TRUE(file.OpenRead(folder.Name("a.brl").c_str()));
    EXPECT_EQ(11, file.GetLen());
    EXPECT_EQ('x', file.Getc());
    EXPECT_EQ("x = 1;\r\ny;\n", TextOf(file));
    // The name that the object holds may be the one it is opened with.
    ASSERT_TRUE(file.OpenWrite(file.GetName()));
    EXPECT_EQ(2, file.Write("ab\r\ncd", 3, 2));
    EXPECT_GE(file.Puts(const_cast<char*>("z\n")), 0);
    file.Close();
    file.Close();
    EXPECT_TRUE(file.IsLodEntry());
    EXPECT_EQ("ab\r\ncdz\n", folder.Read("a.brl"));
}

TEST(FileT, StaysClosedWhenItCannotOpen) {
    TempFolder folder;
    folder.Write("there", "abc");
    file_t file;
    for (const std::string& name : {folder.Name("missing"), folder.Name(), std::string()}) {
        ASSERT_TRUE(file.OpenRead(folder.Name("there").c_str()));
        EXPECT_FALSE(file.OpenRead(name.c_str())) << name;
        EXPECT_TRUE(file.IsLodEntry());
        EXPECT_STREQ("", file.GetName());
        EXPECT_EQ("", TextOf(file));
    }
    EXPECT_FALSE(file.OpenRead(nullptr));
    EXPECT_FALSE(file.OpenWrite(folder.Name("missing\\file").c_str()));
    EXPECT_TRUE(file.IsLodEntry());
}

TEST(FileT, OpensOddFiles) {
    TempFolder folder;
    const std::string cut(255 - folder.Name("").size(), 'n');
    folder.Write(cut, "abc");
    folder.Write("empty", "");
    folder.Write("large", std::string(65536, 'a'));
    file_t file;
    // Of a name the first 255 characters count.
    ASSERT_TRUE(file.OpenRead(folder.Name(cut + "xyz").c_str()));
    EXPECT_EQ(folder.Name(cut), file.GetName());
    EXPECT_EQ("abc", TextOf(file));
    EXPECT_TRUE(file.OpenRead(folder.Name("empty").c_str()));
    EXPECT_EQ("", TextOf(file));
    dmemfile_t memory;
    EXPECT_FALSE(memory.OpenRead(folder.Name("empty").c_str()));
    EXPECT_EQ(nullptr, memory.GetMemPtr());
    // What is left of a file that shrinks while it is open.
    ASSERT_TRUE(file.OpenRead(folder.Name("large").c_str()));
    std::filesystem::resize_file(folder.Path("large"), 10000);
    EXPECT_EQ(std::string(10000, 'a'), TextOf(file));
}

TEST(FileT, CopiesToAnotherFileInPieces) {
    TempFolder folder;
    std::string bytes;
    for (int i = 0; i < 2500; ++i)
        bytes += static_cast<char>(i % 251);
    folder.Write("from", bytes);
    file_t from;
    ASSERT_TRUE(from.OpenRead(folder.Name("from").c_str()));
    dmemfile_t memory;
    EXPECT_EQ(1500, from.WriteToFile(&memory, 1500));
    // A negative count goes on from there to the end.
    EXPECT_EQ(1000, from.WriteToFile(&memory, -1));
    EXPECT_EQ(0, from.WriteToFile(&memory, 7));
    EXPECT_EQ(bytes, Contents(memory));

    file_t to;
    ASSERT_TRUE(to.OpenWrite(folder.Name("to").c_str()));
    ASSERT_EQ(0, memory.Seek(500, 0));
    EXPECT_EQ(2000, memory.WriteToFile(&to, -1));
    to.Close();
    EXPECT_EQ(bytes.substr(500), folder.Read("to"));
}

TEST(MemoryFile, WritesToATargetThatRefusesOrIsItself) {
    dmemfile_t memory;
    Fill(memory, std::string(1500, 'a'));
    smemfile_t full(4);
    EXPECT_EQ(0, memory.WriteToFile(&full, 3));
    EXPECT_EQ(3, memory.Tell());
    EXPECT_EQ(0, memory.WriteToFile(&full, 1498));
    EXPECT_EQ(3, memory.Tell());
    EXPECT_EQ(1497, memory.WriteToFile(&memory, -1));
    EXPECT_EQ(1500, memory.Tell());
    // Bytes of its own buffer, which must grow for them.
    EXPECT_EQ(1, memory.Write(memory.GetMemPtr(), 1500, 1));
    EXPECT_EQ(std::string(3000, 'a'), Contents(memory));
}

TEST(MemoryFile, GrowsInSteps) {
    // Bytes there, bytes written behind them, and the capacity that leaves.
    const std::tuple<size_t, size_t, long> cases[] = {
        {0, 1023, 1024}, {0, 1024, 2048},  {0, 1025, 2064},
        {0, 2049, 3088}, {1000, 23, 1024}, {1000, 24, 2048},
    };
    for (const auto& [before, count, capacity] : cases) {
        MemoryFile memory;
        memory.Write(std::string(before, 'a').data(), 1, static_cast<long>(before));
        memory.Write(std::string(count, 'b').data(), 1, static_cast<long>(count));
        EXPECT_EQ(capacity, memory.Capacity()) << before << " " << count;
        EXPECT_EQ(std::string(before, 'a') + std::string(count, 'b'), Contents(memory));
    }
    MemoryFile memory;
    for (int i = 0; i < 1024; ++i)
        memory.Putc('a');
    EXPECT_EQ(1024, memory.Capacity());
    EXPECT_EQ(0x1ff, memory.Putc(0x1ff));
    EXPECT_EQ(2048, memory.Capacity());
    memory.Seek(-1, 2);
    EXPECT_EQ(0xff, memory.Getc());
    EXPECT_EQ(1, memory.Puts(const_cast<char*>("ab")));
    EXPECT_STREQ("ab", static_cast<char*>(memory.GetMemPtr()) + 1025);
}

TEST(MemoryFile, SplitsLines) {
    const std::tuple<const char*, int, std::vector<std::string>> cases[] = {
        {"a\n\rb", 80, {"a\n\r", "b"}},
        {"a\n\nb\r\r", 80, {"a\n", "\n", "b\r", "\r"}},
        {"\r\n\n\r\n", 80, {"\r\n", "\n\r", "\n"}},
        {"abcdef\n", 4, {"abc", "def", "\n"}},
        {"abc\r\nd", 5, {"abc\r\n", "d"}},  // the pair is not split by the limit
        {"abc", 2, {"a", "b", "c"}},
        {"abc", 1, {}},
        {"", 80, {}},
    };
    for (const auto& [bytes, n, lines] : cases) {
        dmemfile_t memory;
        Fill(memory, bytes);
        EXPECT_EQ(lines, LinesOf(memory, n)) << bytes << " by " << n;
        EXPECT_EQ(lines.empty() ? 0 : memory.GetLen(), memory.Tell());
    }
}

TEST(MemoryFile, ReadsWholeItemsAndTheRest) {
    dmemfile_t memory;
    Fill(memory, "abcdefgh");
    char buffer[16] = "...............";
    EXPECT_EQ(1, memory.Read(buffer, 2, 1));
    EXPECT_EQ(7, memory.Read(buffer, 0, 7));
    EXPECT_EQ(1, memory.Read(buffer, 4, 3));
    EXPECT_EQ("cdefgh..", std::string(buffer, 8));
    EXPECT_EQ(8, memory.Eof());
    EXPECT_EQ(-1, memory.Getc());
}

TEST(MemoryFile, RefusesNumbersThatMakeNoSense) {
    const std::pair<long, long> cases[] = {{-1, 1},           {1, -1},         {0, -1},
                                           {0x10000, 0x8000}, {0x7fffffff, 2}, {1, 0}};
    dmemfile_t memory;
    Fill(memory, "abc");
    char buffer[8] = {};
    for (const auto& [size, count] : cases) {
        EXPECT_EQ(0, memory.Write("x", size, count)) << size << " x " << count;
        EXPECT_EQ(0, memory.Read(buffer, size, count)) << size << " x " << count;
    }
    for (const auto& [length, offset] :
         {std::pair(-2, 0), {1, -1}, {0x7fffffff, 0x7fffffff}, {-1, 1}, {2, 2}})
        EXPECT_EQ(nullptr, memory.create_part("p", length, offset)) << length << " at " << offset;
    EXPECT_EQ(0, memory.Tell());
    EXPECT_EQ("abc", Contents(memory));
    EXPECT_EQ(0, smemfile_t(-4).GetLen());
}

TEST(MemoryFile, LoadsAFile) {
    TempFolder folder;
    folder.Write("a", "abc");
    MemoryFile memory;
    ASSERT_TRUE(memory.OpenRead(folder.Name("a").c_str()));
    EXPECT_EQ(3, memory.Capacity());
    EXPECT_TRUE(memory.OpenRead(memory.GetName()));
    EXPECT_EQ("abc", TextOf(memory));
    EXPECT_FALSE(memory.OpenWrite(folder.Name("a").c_str()));
    EXPECT_FALSE(memory.OpenRead(folder.Name("missing").c_str()));
    EXPECT_EQ("", TextOf(memory));
}

// Who frees what shows itself under the leak checker.
TEST(FixedMemoryFile, IsReadOnlyAndFreesWhatIsItsOwn) {
    TempFolder folder;
    folder.Write("a", "from disk");
    unsigned char foreign[] = "abc";
    smemfile_t adopted("own", new unsigned char[3]{'x', 'y', 'z'}, 3, false);
    smemfile_t wrapped("name", foreign, 3, true);
    smemfile_t copy(wrapped);
    EXPECT_STREQ("name", wrapped.GetName());
    EXPECT_EQ(0, wrapped.Putc('x') + wrapped.Puts(const_cast<char*>("xyz")) + wrapped.Write("xyz", 1, 1));
    EXPECT_EQ(0, wrapped.Tell());
    ASSERT_TRUE(wrapped.OpenRead(folder.Name("a").c_str()));
    EXPECT_EQ("from disk", Contents(wrapped));
    EXPECT_EQ("abc", Contents(copy));
    EXPECT_STREQ("abc", reinterpret_cast<char*>(foreign));
    smemfile_t zeros(5);
    EXPECT_EQ(std::string(5, '\0'), Contents(zeros));
}

TEST(FixedMemoryFile, IsAViewOfItsParent) {
    dmemfile_t memory;
    Fill(memory, "abcdef");
    const std::unique_ptr<file_t> all(memory.create_part("all", -1, 0));
    const std::unique_ptr<file_t> middle(memory.create_part("middle", 3, 2));
    ASSERT_TRUE(all && middle);
    EXPECT_EQ("abcdef", Contents(*all));
    EXPECT_EQ("cde", TextOf(*middle));
    memory.Seek(2, 0);
    memory.Putc('C');
    EXPECT_EQ("Cde", Contents(*middle));
}

class PartOfFile : public testing::Test {
protected:
    void SetUp() override {
        folder_.Write("a", "0123\nabc\ndef");
        ASSERT_TRUE(file_.OpenRead(folder_.Name("a").c_str()));
    }
    std::unique_ptr<file_t> Part(long length, long offset) {
        return std::unique_ptr<file_t>(file_.create_part("part", length, offset));
    }

    TempFolder folder_;
    file_t file_;
};

TEST_F(PartOfFile, ReadsItsRangeOnly) {
    const auto part = Part(6, 5);  // abc LF de
    EXPECT_TRUE(part->IsLodEntry());
    EXPECT_EQ((std::vector<std::string>{"abc\n", "de"}), LinesOf(*part, 80));
    EXPECT_EQ(6, part->Eof());
    EXPECT_EQ(-1, part->Getc());
    ASSERT_EQ(0, part->Seek(-5, 2));
    char buffer[8] = {};
    EXPECT_EQ(1, part->Read(buffer, 4, 2));
    EXPECT_STREQ("bc\nde", buffer);
    EXPECT_EQ(6, part->Tell());
    EXPECT_EQ("abc\nde", TextOf(*part));
    EXPECT_EQ(0, part->Write("x", 1, 1));
    EXPECT_FALSE(part->OpenWrite(folder_.Name("a").c_str()));
    EXPECT_EQ(nullptr, Part(-2, 0));
    EXPECT_EQ(-1, Part(5, 0x7fffffff)->Getc());
}

TEST_F(PartOfFile, SharesTheStream) {
    const auto digits = Part(4, 0);
    const auto letters = Part(-1, 5);  // reaches beyond the file, which only its reads find out
    EXPECT_EQ('0', digits->Getc());
    EXPECT_EQ('a', letters->Getc());
    EXPECT_EQ('1', digits->Getc());
    char buffer[16];
    EXPECT_STREQ("bc\n", letters->Gets(buffer, 16));
    EXPECT_STREQ("2", digits->Gets(buffer, 2));
    EXPECT_EQ(3, letters->Read(buffer, 1, 8));
    EXPECT_EQ(-1, letters->Getc());
    digits->Close();
    EXPECT_EQ(-1, digits->Getc());
    ASSERT_EQ(0, file_.Seek(0, 0));
    EXPECT_EQ('0', file_.Getc());
}

TEST(MemoryAndPart, SeekWithinTheirEnds) {
    constexpr long kLeast = -0x7fffffff - 1;
    // Where a seek from 2 leads; -1: refused.
    const std::tuple<long, int, long> cases[] = {
        {0, 0, 0},   {6, 0, 6},  {7, 0, -1}, {-1, 0, -1}, {4, 1, 6},  {5, 1, -1},      {-2, 1, 0},
        {-3, 1, -1}, {1, 2, -1}, {-6, 2, 0}, {-7, 2, -1}, {0, 3, -1}, {kLeast, 1, -1}, {kLeast, 2, -1},
    };
    dmemfile_t memory;
    Fill(memory, "abcdef");
    TempFolder folder;
    folder.Write("a", "..abcdef..");
    file_t file;
    ASSERT_TRUE(file.OpenRead(folder.Name("a").c_str()));
    const std::unique_ptr<file_t> part(file.create_part("part", 6, 2));
    for (file_t* target : {static_cast<file_t*>(&memory), part.get()}) {
        for (const auto& [offset, whence, position] : cases) {
            ASSERT_EQ(0, target->Seek(2, 0));
            EXPECT_EQ(position < 0 ? -1 : 0, target->Seek(offset, whence)) << offset << " " << whence;
            EXPECT_EQ(position < 0 ? 2 : position, target->Tell()) << offset << " " << whence;
        }
    }
}

}  // namespace
