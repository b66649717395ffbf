#include "shell/host_interface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

// The convention of 32-bit Windows for members; elsewhere members take the object as any first argument.
#ifndef __thiscall
#define __thiscall
#endif

namespace {

// An editor made by hand, as another compiler would: a pointer to a table of functions, and nothing in front
// of it.
struct HandMadeEditor {
    const void* const* table;
    int slot = -1;
    HostWord arguments[4] = {};
};

// The convention is meant for members, says the compiler.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wattributes"
template <int Slot, typename... Words>
HostWord __thiscall Called(HandMadeEditor* editor, Words... words) {
    editor->slot = Slot;
    HostWord* next = editor->arguments;
    ((*next++ = words), ...);
    return Slot + 100;
}
#pragma GCC diagnostic pop

using W = HostWord;

// The number of words that each entry takes: its end must clean up as many.
constexpr size_t kArguments[] = {0, 0, 0, 0, 2, 0, 0, 3, 0, 0, 3, 0, 0, 3, 0, 4, 2, 3, 3, 0, 0, 0, 4};

template <size_t Slot, size_t... Arguments>
const void* Entry(std::index_sequence<Arguments...>) {
    return reinterpret_cast<const void*>(&Called<Slot, decltype(W{Arguments})...>);
}

template <size_t... Slots>
std::array<const void*, sizeof...(Slots)> Table(std::index_sequence<Slots...>) {
    return {Entry<Slots>(std::make_index_sequence<kArguments[Slots]>())...};
}

W Word(const void* pointer) {
    return reinterpret_cast<W>(pointer);
}

// Kept apart, so that the compiler knows nothing of the object; it has no type information for a sanitizer.
__attribute__((noinline, no_sanitize("vptr"))) void CheckCalls(TarnInterface* host,
                                                               const HandMadeEditor& editor) {
    char buffer[4];
    const char* const text = "text";
    const char* const table[] = {nullptr};
    const auto made = [&editor](int slot, std::initializer_list<W> arguments) {
        return editor.slot == slot && std::equal(arguments.begin(), arguments.end(), editor.arguments);
    };
    EXPECT_TRUE(host->GetClassId() == 100 && made(0, {}));
    EXPECT_TRUE((host->CreateMainScript(), made(1, {})));
    EXPECT_TRUE(host->GetMainScript(buffer, 260) == 104 && made(4, {Word(buffer), 260}));
    EXPECT_TRUE((host->ScriptsChanged(), made(5, {})));
    EXPECT_TRUE(host->BeginEntities() == 106 && made(6, {}));
    EXPECT_TRUE(host->GetEntity(3, buffer, 64) == 107 && made(7, {3, Word(buffer), 64}));
    EXPECT_TRUE((host->EndEntities(), made(8, {})));
    EXPECT_TRUE(host->GetPathA(4, buffer, 64) == 110 && made(10, {4, Word(buffer), 64}));
    EXPECT_TRUE(host->BeginPathsB() == 112 && made(12, {}));
    EXPECT_TRUE(host->GetPathB(5, buffer, 64) == 113 && made(13, {5, Word(buffer), 64}));
    EXPECT_TRUE((host->EndPathsB(), made(14, {})));
    EXPECT_EQ(115, host->BrowseFile(buffer, 260, 2, text));
    EXPECT_TRUE(made(15, {Word(buffer), 260, 2, Word(text)}));
    EXPECT_TRUE((host->GetProjectFolder(buffer, 260), made(16, {Word(buffer), 260})));
    EXPECT_EQ(117, host->CopyToProject(text, buffer, 260));
    EXPECT_TRUE(made(17, {Word(text), Word(buffer), 260}));
    EXPECT_EQ(118, host->CopyWithSubstitution(text, buffer, table));
    EXPECT_TRUE(made(18, {Word(text), Word(buffer), Word(table)}));
    EXPECT_TRUE(host->Message(7, 161, buffer, 12) == 122 && made(22, {7, 161, Word(buffer), 12}));
}

TEST(HostInterface, TheCallIsThatOfATable) {
    const auto table = Table(std::make_index_sequence<std::size(kArguments)>());
    HandMadeEditor editor{table.data()};
    CheckCalls(reinterpret_cast<TarnInterface*>(&editor), editor);
}

TEST(HostInterface, OnlyTheLowByteOfACopyingAnswerCounts) {
    EXPECT_TRUE(HostAgrees(static_cast<HostWord>(0x7fffff80)));
    EXPECT_FALSE(HostAgrees(0x100));
}

}  // namespace
