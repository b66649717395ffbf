#include "customize/keywords.h"

#include <afx.h>

#include <array>
#include <cstddef>
#include <string_view>

namespace {

constexpr std::array<std::string_view, KeywordCount> kKeywords = {"title",
                                                                  "image",
                                                                  "text",
                                                                  "section",
                                                                  "help",
                                                                  "entry_help",
                                                                  "id",
                                                                  "cntl",
                                                                  "enable",
                                                                  "action",
                                                                  "entry",
                                                                  "entry_numEdit",
                                                                  "entry_numEditF",
                                                                  "entry_chooseFile",
                                                                  "entry_strEdit",
                                                                  "entry_entity",
                                                                  "entry_path",
                                                                  "entry_drop",
                                                                  "entry_text",
                                                                  "ver",
                                                                  "date",
                                                                  "desc",
                                                                  "flag",
                                                                  "flag1",
                                                                  "flag2",
                                                                  "flag3",
                                                                  "flag4",
                                                                  "flag5",
                                                                  "flag6",
                                                                  "flag7",
                                                                  "flag8",
                                                                  "skill",
                                                                  "skill1",
                                                                  "skill2",
                                                                  "skill3",
                                                                  "skill4",
                                                                  "skill5",
                                                                  "skill6",
                                                                  "skill7",
                                                                  "skill8",
                                                                  "skill9",
                                                                  "skill10",
                                                                  "skill11",
                                                                  "skill12",
                                                                  "skill13",
                                                                  "skill14",
                                                                  "skill15",
                                                                  "skill16",
                                                                  "skill17",
                                                                  "skill18",
                                                                  "skill19",
                                                                  "skill20"};

// Every comment of a script asks once, and most are no tags: by length a handful of words is left to compare.
struct Bucket {
    std::array<unsigned char, KeywordCount> kinds{};
    int count = 0;
};

constexpr std::array<Bucket, kLongestKeyword + 1> SortByLength() {
    std::array<Bucket, kLongestKeyword + 1> buckets{};
    for (size_t kind = 0; kind < kKeywords.size(); ++kind) {
        Bucket& bucket = buckets[kKeywords[kind].size()];
        bucket.kinds[static_cast<size_t>(bucket.count++)] = static_cast<unsigned char>(kind);
    }
    return buckets;
}

constexpr std::array<Bucket, kLongestKeyword + 1> kByLength = SortByLength();

}  // namespace

int FindKeyword(const char* text, int length) {
    if (text == nullptr || length < 0 || length > kLongestKeyword) return KindNone;
    const Bucket& bucket = kByLength[static_cast<size_t>(length)];
    for (int i = 0; i < bucket.count; ++i) {
        const int kind = bucket.kinds[static_cast<size_t>(i)];
        const std::string_view keyword = kKeywords[static_cast<size_t>(kind)];
        const bool same_start = ((text[0] ^ keyword[0]) & ~0x20) == 0;
        if (same_start && _strnicmp(text, keyword.data(), keyword.size()) == 0) return kind;
    }
    return KindNone;
}

const char* KeywordName(int kind) {
    return kind >= 0 && kind < KeywordCount ? kKeywords[static_cast<size_t>(kind)].data() : "";
}
