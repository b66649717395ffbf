// The sample scripts with what is told of them beside them, in expected/. To take over a wanted difference,
// run brlv tags or brlv check on the sample, read the result, and put it there without the folder's name.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "cli/commands.h"

namespace {

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.good()) << path;
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string Expected(const std::string& name) {
    return ReadFile(std::filesystem::path(BRLV_EXPECTED) / name);
}

std::string WithoutFolder(std::string text, const std::string& folder) {
    for (size_t at = text.find(folder); at != std::string::npos; at = text.find(folder, at)) {
        text.erase(at, folder.size());
    }
    return text;
}

TEST(Samples, Tags) {
    const std::string folder = BRLV_SAMPLES "/templates/template_6/";
    for (const char* name : {"hero", "messages", "enemy", "weather"}) {
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(RunTags(folder + name + ".brl", false, {out, err}), ExitOk) << err.str();
        EXPECT_EQ(WithoutFolder(out.str(), folder), Expected(std::string(name) + ".tags"));
    }
}

TEST(Samples, Notes) {
    const std::string folder = BRLV_SAMPLES "/broken/";
    for (const char* name : {"lost_entries", "ignored_tags", "runaway", "long_line"}) {
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(RunCheck({folder + name + ".brl"}, {out, err}), ExitUser) << err.str();
        EXPECT_EQ(WithoutFolder(out.str(), folder), Expected(std::string(name) + ".notes"));
    }
}

// The good samples hold no tag that is lost.
TEST(Samples, NothingToNote) {
    for (const char* folder : {BRLV_SAMPLES "/templates/template_6", BRLV_SAMPLES "/project"}) {
        for (const auto& file : std::filesystem::directory_iterator(folder)) {
            if (file.path().extension() != ".brl") continue;
            std::ostringstream out;
            std::ostringstream err;
            EXPECT_EQ(RunCheck({file.path().string()}, {out, err}), ExitOk) << out.str() << err.str();
        }
    }
}

}  // namespace
