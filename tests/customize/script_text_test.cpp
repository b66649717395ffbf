#include "customize/script_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "temp_folder.h"

namespace {

std::string Bytes(const ScriptText& text) {
    return {text.Data(), static_cast<size_t>(text.Size())};
}

TEST(ScriptText, BroughtToItsClosingForm) {
    using namespace std::string_literals;
    const std::pair<std::string, std::string> cases[] = {{"a", "a\r\n\0"s},        {"a\r\n", "a\r\n\r\n\0"s},
                                                         {"a\r\n\0"s, "a\r\n\0"s}, {"\r\n\0"s, "\r\n\0"s},
                                                         {"\n\0"s, "\n\0\r\n\0"s}, {"", ""}};
    TempFolder folder;
    for (const auto& [bytes, closed] : cases) {
        folder.Write("a.brl", bytes);
        ScriptText text;
        ASSERT_TRUE(text.Load(folder.Name("a.brl").c_str()));
        EXPECT_EQ(Bytes(text), closed) << bytes;
        EXPECT_EQ(text.WasClosed(), bytes == closed) << bytes;
    }
    ScriptText text;
    EXPECT_FALSE(text.Load(folder.Name("none.brl").c_str()));
    EXPECT_TRUE(text.IsEmpty());
    // a name that opening would cut short is none, even when a file has the shortened name
    EXPECT_FALSE(text.Load((folder.Name("a.brl") + std::string(256, 'x')).c_str()));
}

}  // namespace
