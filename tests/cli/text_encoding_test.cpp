#include "cli/text_encoding.h"

#include <gtest/gtest.h>

namespace {

TEST(TextEncoding, ToUtf8) {
    const struct {
        const char* text;
        const char* utf8;
    } cases[] = {
        {"plain", "plain"},
        {"T\xFCr", "T\xC3\xBCr"},      // Windows-1252
        {"T\xC3\xBCr", "T\xC3\xBCr"},  // UTF-8 already
        {"\x80 \x96", "\xE2\x82\xAC \xE2\x80\x93"},
        {"\xC3\xBC\xFC", "\xC3\x83\xC2\xBC\xC3\xBC"},  // one bad byte makes all of it Windows-1252
        {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
        {"\xC0\x80", "\xC3\x80\xE2\x82\xAC"},              // an overlong form is no UTF-8
        {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},  // nor is half a surrogate pair
        {"\xE2\x82", "\xC3\xA2\xE2\x80\x9A"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ToUtf8(c.text), c.utf8) << c.utf8;
}

}  // namespace
