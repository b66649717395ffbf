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
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.GetUpperBound(), -1);
    EXPECT_EQ(array.Add("a"), 0);
    EXPECT_EQ(array.Add("b"), 1);
    for (int i = 0; i < 20; ++i)
        array.Add(array[0]);
    EXPECT_EQ(array[21], "a");
    array.SetSize(2);
    array.InsertAt(0, array[1]);
    EXPECT_EQ(Joined(array), "b|a|b|");
    array.InsertAt(5, "x");
    array.SetAt(3, "y");
    array.ElementAt(0) += "c";
    array[1].Empty();
    EXPECT_EQ(Joined(array), "bc||b|y||x|");
    array.RemoveAt(0);
    array.RemoveAt(1, 3);
    array.RemoveAt(2, 0);
    EXPECT_EQ(Joined(array), "|x|");
    array.RemoveAll();
    EXPECT_EQ(array.GetCount(), 0);
}

TEST(StringArray, TakesOver) {
    CStringArray source;
    source.Add("a");
    source.Add("b");
    CStringArray array;
    array.Add("x");
    EXPECT_EQ(array.Append(source), 1);
    EXPECT_EQ(Joined(array), "x|a|b|");
    array.Copy(source);
    EXPECT_EQ(Joined(array), "a|b|");
    array.Copy(array);
    EXPECT_EQ(Joined(array), "a|b|");
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
        ASSERT_EQ(array.GetSize(), 3001);
        for (INT_PTR i = 0; i <= 3000; ++i)
            ASSERT_EQ(array.GetData()[i], Entry(i));
    }
}

TEST(PtrArray, FillsGapsWithNull) {
    CPtrArray array;
    array.SetSize(4, 1024);
    for (INT_PTR i = 0; i < 4; ++i)
        array[i] = Entry(1);
    array.SetSize(1);
    array.SetAtGrow(3, Entry(2));
    EXPECT_EQ(array.GetAt(0), Entry(1));
    EXPECT_EQ(array.GetAt(1), nullptr);
    EXPECT_EQ(array.GetAt(2), nullptr);
    EXPECT_EQ(array.GetAt(3), Entry(2));
    array.RemoveAll();
    EXPECT_EQ(array.GetData(), nullptr);
    array.FreeExtra();
    EXPECT_EQ(array.GetUpperBound(), -1);
}

TEST(PtrArray, RemovesEntries) {
    CPtrArray array;
    for (INT_PTR i = 0; i < 5; ++i)
        array.Add(Entry(i));
    array.RemoveAt(1, 2);
    EXPECT_EQ(array[1], Entry(3));
    array.RemoveAt(2);
    array.RemoveAt(2, 0);
    ASSERT_EQ(array.GetCount(), 2);
    EXPECT_EQ(array[0], Entry(0));
    EXPECT_EQ(array[1], Entry(3));
}

template <typename Array>
void ExpectChecks(Array& array) {
    const INT_PTR size = array.GetSize();
    for (const INT_PTR outside : {INT_PTR{-1}, size, INTPTR_MAX, INTPTR_MIN}) {
        EXPECT_TRUE(RaisesInvalidArg([&] { array.GetAt(outside); })) << outside;
        EXPECT_TRUE(RaisesInvalidArg([&] { array[outside]; })) << outside;
        EXPECT_TRUE(RaisesInvalidArg([&] { array.SetAt(outside, {}); })) << outside;
        EXPECT_TRUE(RaisesInvalidArg([&] { array.RemoveAt(outside, 1); })) << outside;
    }
    EXPECT_TRUE(RaisesInvalidArg([&] { array.RemoveAt(0, size + 1); }));
    EXPECT_TRUE(RaisesInvalidArg([&] { array.RemoveAt(0, -1); }));
    EXPECT_TRUE(RaisesInvalidArg([&] { array.SetSize(-1); }));
    EXPECT_EQ(array.GetSize(), size);
}

TEST(Arrays, CheckTheirIndexes) {
    CStringArray strings;
    strings.SetSize(2);
    ExpectChecks(strings);
    EXPECT_TRUE(RaisesInvalidArg([&] { strings.InsertAt(-1, ""); }));
    CPtrArray pointers;
    ExpectChecks(pointers);
    pointers.SetSize(2);
    ExpectChecks(pointers);
    EXPECT_TRUE(RaisesInvalidArg([&] { pointers.SetAtGrow(-1, nullptr); }));
    EXPECT_THROW(pointers.SetAtGrow(INTPTR_MAX, nullptr), std::bad_alloc);
    EXPECT_EQ(pointers.GetSize(), 2);
}

}  // namespace
