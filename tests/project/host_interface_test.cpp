#include "shell/host_interface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

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

template <int Slot, typename... Words>
const void* Entry() {
    return reinterpret_cast<const void*>(&Called<Slot, Words...>);
}

using W = HostWord;

const void* const kTable[] = {
    Entry<0>(),
    Entry<1>(),
    Entry<2>(),
    Entry<3>(),
    Entry<4, W, W>(),
    Entry<5>(),
    Entry<6>(),
    Entry<7, W, W, W>(),
    Entry<8>(),
    Entry<9>(),
    Entry<10, W, W, W>(),
    Entry<11>(),
    Entry<12>(),
    Entry<13, W, W, W>(),
    Entry<14>(),
    Entry<15, W, W, W, W>(),
    Entry<16, W, W>(),
    Entry<17, W, W, W>(),
    Entry<18, W, W, W>(),
    Entry<19>(),
    Entry<20>(),
    Entry<21>(),
    Entry<22, W, W, W, W>(),
};

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
    EXPECT_EQ(100, host->GetClassId());
    host->CreateMainScript();
    EXPECT_TRUE(made(1, {}));
    EXPECT_EQ(104, host->GetMainScript(buffer, 260));
    EXPECT_TRUE(made(4, {Word(buffer), 260}));
    host->ScriptsChanged();
    EXPECT_TRUE(made(5, {}));
    EXPECT_EQ(106, host->BeginEntities());
    EXPECT_EQ(107, host->GetEntity(3, buffer, 64));
    EXPECT_TRUE(made(7, {3, Word(buffer), 64}));
    host->EndEntities();
    EXPECT_TRUE(made(8, {}));
    EXPECT_EQ(109, host->BeginPathsA());
    EXPECT_EQ(110, host->GetPathA(4, buffer, 64));
    host->EndPathsA();
    EXPECT_TRUE(made(11, {}));
    EXPECT_EQ(112, host->BeginPathsB());
    EXPECT_EQ(113, host->GetPathB(5, buffer, 64));
    host->EndPathsB();
    EXPECT_TRUE(made(14, {}));
    EXPECT_EQ(115, host->BrowseFile(buffer, 260, 2, text));
    EXPECT_TRUE(made(15, {Word(buffer), 260, 2, Word(text)}));
    host->GetProjectFolder(buffer, 260);
    EXPECT_TRUE(made(16, {Word(buffer), 260}));
    EXPECT_EQ(117, host->CopyToProject(text, buffer, 260));
    EXPECT_TRUE(made(17, {Word(text), Word(buffer), 260}));
    EXPECT_EQ(118, host->CopyWithSubstitution(text, buffer, table));
    EXPECT_TRUE(made(18, {Word(text), Word(buffer), Word(table)}));
    EXPECT_EQ(122, host->Message(7, 161, buffer, 12));
    EXPECT_TRUE(made(22, {7, 161, Word(buffer), 12}));
}

TEST(HostInterface, TheCallIsThatOfATable) {
    HandMadeEditor editor{kTable};
    CheckCalls(reinterpret_cast<TarnInterface*>(&editor), editor);
}

TEST(HostInterface, OnlyTheLowByteOfACopyingAnswerCounts) {
    EXPECT_TRUE(HostAgrees(1));
    EXPECT_TRUE(HostAgrees(static_cast<HostWord>(0x7fffff80)));
    EXPECT_FALSE(HostAgrees(0x100));
    EXPECT_FALSE(HostAgrees(0));
}

}  // namespace
