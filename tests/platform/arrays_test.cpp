#include <afx.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/raises.h"

namespace {

std::string Joined(const CStringArray& array) {
    std::string text;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        text.append(array[i].GetString()).append("|");
    return text;
}

void* Entry(INT_PTR number) {
    return reinterpret_cast<void*>(number);
}

TEST(StringArray, HoldsStrings) {
    CStringArray array;
    EXPECT_EQ(array.Add("a"), 0);
    EXPECT_EQ(array.Add("b"), 1);
    for (int i = 0; i < 20; ++i)
        array.Add(array[0]);  // its own entry, while it grows
    EXPECT_EQ(array[21], "a");
    array.SetSize(2);
    array.InsertAt(0, array[1]);
    EXPECT_EQ(Joined(array), "b|a|b|");
    array.InsertAt(5, "x");
    array.SetAt(3, "y");
    array.ElementAt(0) += "c";
    array.RemoveAt(1, 3);
    array.RemoveAt(3, 0);
    EXPECT_EQ(Joined(array), "bc||x|");
    CStringArray source;
    source.Add("s");
    EXPECT_EQ(array.Append(source), 3);
    EXPECT_EQ(Joined(array), "bc||x|s|");
    array.Copy(array);
    EXPECT_EQ(array.GetSize(), 4);
    EXPECT_TRUE(RaisesInvalidArg([&] { array.Append(array); }));
}

TEST(PtrArray, GrowsInStepsWithoutLosingEntries) {
    for (const INT_PTR growBy : {0, 1, 1024}) {
        CPtrArray array;
        array.SetSize(0, growBy);
        for (INT_PTR i = 0; i < 3000; ++i)
            array.SetAtGrow(i, Entry(i));
        array.FreeExtra();
        EXPECT_EQ(array.Add(Entry(3000)), 3000);
        for (INT_PTR i = 0; i <= 3000; ++i)
            ASSERT_EQ(array.GetData()[i], Entry(i));
        array.RemoveAt(1, 2998);
        EXPECT_EQ(array[1], Entry(2999));
        array.SetSize(1);
        array.SetAtGrow(3, Entry(2));
        EXPECT_EQ(array.GetAt(1), nullptr) << "gaps hold nothing, whatever stood there before";
    }
}

TEST(Arrays, CheckTheirIndexes) {
    const auto check = [](auto& array, INT_PTR size) {
        array.SetSize(size);
        for (const INT_PTR outside : {INT_PTR{-1}, size, INTPTR_MAX, INTPTR_MIN}) {
            EXPECT_TRUE(RaisesInvalidArg([&] { array[outside]; })) << outside;
            EXPECT_TRUE(RaisesInvalidArg([&] { array.SetAt(outside, {}); })) << outside;
            EXPECT_TRUE(RaisesInvalidArg([&] { array.RemoveAt(outside, 1); })) << outside;
        }
        EXPECT_TRUE(RaisesInvalidArg([&] { array.RemoveAt(0, size + 1); }));
        EXPECT_TRUE(RaisesInvalidArg([&] { array.SetSize(-1); }));
        EXPECT_EQ(array.GetSize(), size);
    };
    CStringArray strings;
    check(strings, 2);
    CPtrArray pointers;
    check(pointers, 0);
    EXPECT_TRUE(RaisesInvalidArg([&] { pointers.SetAtGrow(-1, nullptr); }));
    EXPECT_THROW(pointers.SetAtGrow(INTPTR_MAX, nullptr), std::bad_alloc);
}

}  // namespace
