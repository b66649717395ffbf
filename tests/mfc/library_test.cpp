#include <afxwin.h>
#include <gtest/gtest.h>

namespace {

TEST(Library, StartsAndEndsItsApplication) {
    using Instance = HINSTANCE (*)(int*);
    int ends = 0;
    for (int round = 1; round <= 2; ++round) {
        const HMODULE library = LoadLibraryA(LIBRARY_SAMPLE);
        ASSERT_TRUE(library) << LIBRARY_SAMPLE;
        const auto instance = reinterpret_cast<Instance>(
            reinterpret_cast<void (*)()>(GetProcAddress(library, "SampleInstance")));
        ASSERT_TRUE(instance);
        EXPECT_EQ(instance(&ends), library);
        EXPECT_NE(AfxGetInstanceHandle(), library);
        EXPECT_EQ(ends, round - 1);
        EXPECT_TRUE(FreeLibrary(library));
        EXPECT_EQ(ends, round);
    }
}

TEST(Library, FailsAsDocumented) {
    EXPECT_FALSE(LoadLibraryA("no such library"));
    EXPECT_EQ(GetLastError(), ERROR_MOD_NOT_FOUND);
    const HMODULE library = LoadLibraryA(LIBRARY_SAMPLE);
    EXPECT_FALSE(GetProcAddress(library, "NoSuchFunction"));
    EXPECT_EQ(GetLastError(), ERROR_PROC_NOT_FOUND);
    EXPECT_TRUE(FreeLibrary(library));
    EXPECT_FALSE(FreeLibrary(library));
}

}  // namespace
