#include <gtest/gtest.h>
#include <resource.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>

#include "temp_folder.h"

namespace {

Bytes ReadAll(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

class FilesIn : public ResourceFiles {
public:
    explicit FilesIn(std::filesystem::path folder) : folder_(std::move(folder)) {}
    Bytes Read(const std::string& name) const override { return ReadAll(folder_ / name); }

private:
    std::filesystem::path folder_;
};

using ResourceMap = std::map<std::pair<uint16_t, uint16_t>, Bytes>;

ResourceMap Compiled(const std::filesystem::path& script) {
    const Bytes text = ReadAll(script);
    ResourceMap map;
    for (Resource& each :
         CompileResources(std::string(text.begin(), text.end()), FilesIn(script.parent_path())))
        map[{each.type, each.name}] = std::move(each.data);
    return map;
}

// The resources of a .res file: each has its sizes, type and name ahead, and begins on a multiple of four.
ResourceMap ReadResFile(const std::filesystem::path& file) {
    const Bytes bytes = ReadAll(file);
    const auto word = [&bytes](size_t at) { return static_cast<uint16_t>(bytes[at] | bytes[at + 1] << 8); };
    const auto number = [&word](size_t at) { return word(at) | static_cast<size_t>(word(at + 2)) << 16; };
    ResourceMap map;
    for (size_t at = 0; at + 16 <= bytes.size();) {
        const size_t size = number(at);
        const size_t head = number(at + 4);
        const auto data = bytes.begin() + static_cast<ptrdiff_t>(at + head);
        if (size > 0) map[{word(at + 10), word(at + 14)}] = Bytes(data, data + static_cast<ptrdiff_t>(size));
        at = (at + head + size + 3) / 4 * 4;
    }
    return map;
}

TEST(ResourceCompiler, MakesTheBytesOfWindres) {
    if (std::system("x86_64-w64-mingw32-windres --version > /dev/null 2>&1") != 0)
        GTEST_SKIP() << "there is no windres to compare with";
    const TempFolder folder;
    for (const char* const name : {"src/resources/brlv.rc", "tests/platform/dialog_test.rc"}) {
        SCOPED_TRACE(name);
        const std::filesystem::path script = std::filesystem::path(SOURCE_FOLDER) / name;
        const std::filesystem::path made = folder.Path("made.res");
        const std::string command = "x86_64-w64-mingw32-windres -O res --include-dir " +
                                    script.parent_path().string() + ' ' + script.string() + ' ' +
                                    made.string();
        ASSERT_EQ(std::system(command.c_str()), 0);
        const ResourceMap expected = ReadResFile(made);
        const ResourceMap actual = Compiled(script);
        EXPECT_FALSE(expected.empty());
        EXPECT_EQ(actual.size(), expected.size());
        for (const auto& [key, bytes] : expected) {
            const auto found = actual.find(key);
            ASSERT_NE(found, actual.end()) << "type " << key.first << ", name " << key.second;
            EXPECT_EQ(found->second, bytes) << "type " << key.first << ", name " << key.second;
        }
    }
}

class TestFiles : public ResourceFiles {
public:
    Bytes Read(const std::string& name) const override {
        // One picture of 1000 bytes is announced, and not there.
        if (name == "short.ico")
            return {0, 0, 1, 0, 1, 0, 16, 16, 0, 0, 1, 0, 32, 0, 0xE8, 3, 0, 0, 22, 0, 0, 0};
        if (name == "text.ico") return {'t', 'e', 'x', 't'};
        throw std::runtime_error(name + " can't be read");
    }
};

TEST(ResourceCompiler, FaultsAreToldWithTheirLine) {
    const std::string dialog = "1 DIALOG 0, 0, 9, 9\nSTYLE 0x40\nBEGIN\n";
    const struct {
        std::string script;
        int line;
        const char* what;
    } cases[] = {
        {"\n1 MENU", 2, "unknown statement MENU"},
        {"STRINGTABLE", 1, "statement expected, beginning with its number, not STRINGTABLE"},
        {"// text\n/* more\n", 2, "this comment has no end"},
        {"1 ICON \"none.ico\"", 1, "none.ico can't be read"},
        {"1 ICON \"text.ico\"", 1, "text.ico is no icon"},
        {"1 ICON \"short.ico\"", 1, "short.ico ends too soon"},
        {"1 ICON \"open", 1, "this text has no closing quote"},
        {"1 DIALOG 0, 0, 9", 1, "comma expected, not the end"},
        {"1 DIALOG 0, 0, 9, 0x1FFFFFFFF", 1, "bad number 0x1FFFFFFFF"},
        {"1 DIALOG 0, 0, 9, 9\nMENU 3", 2, "BEGIN expected, not MENU"},
        {dialog, 4, "CONTROL expected, not the end"},
        {dialog + "PUSHBUTTON", 4, "CONTROL expected, not PUSHBUTTON"},
        {dialog + "CONTROL \"a\\n\", 1", 4, "escapes are not taken in texts"},
        {dialog + "CONTROL \"\", 7, \"Edit\", 0, 0, 0, 0, 0\nCONTROL \"\", 7, \"Edit\", 0, 0, 0, 0, 0\nEND",
         6, "a second control with the id 7"},
        {dialog +
             "CONTROL \"\", 7, \"BUTTON\", 1, 0, 0, 0, 0\nCONTROL \"\", 8, \"button\", 1, 0, 0, 0, 0\nEND",
         6, "a second default button"},
        {"1 VERSIONINFO\nCOMMENTS 1", 2, "unknown statement COMMENTS"},
        {"1 VERSIONINFO\nBEGIN\nBLOCK \"a\"\nBEGIN\nVALUE 3", 5, "text in quotes expected, not 3"},
        {dialog + "END\n" + dialog + "END", 5, "a second resource of the type 5 and the name 1"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.script);
        try {
            CompileResources(each.script, TestFiles());
            ADD_FAILURE() << "nothing is told";
        } catch (const ResourceError& error) {
            EXPECT_EQ(error.Line(), each.line);
            EXPECT_STREQ(error.what(), each.what);
        }
    }
}

}  // namespace
