#pragma once

#include <cstddef>
#include <cstdint>

// The editor's two objects as the library calls them, and the blocks that their `Message` takes.
//
// The editor is built by other hands with another compiler, so what counts is the compiled call. Operations
// are plain virtual calls, one slot each in the order below, with the convention that the platform's
// compilers use for members: on 32-bit Windows the object comes in ECX and the callee takes the arguments
// from the stack. There is no virtual destructor and nothing here asks for run-time type information: the
// editor deletes its objects itself.
//
// Paths and names are 8-bit strings that end in a 0. The buffers are the caller's.

// What the editor calls a 32-bit word: a number, a handle or a pointer. Signed, since some results are
// compared with 0.
using HostWord = intptr_t;

inline constexpr HostWord kHostClassId = 0x40000002;

class TarnInterface {
public:
    virtual HostWord GetClassId() = 0;  // kHostClassId
    virtual void CreateMainScript() = 0;
    virtual void NotCalled1() = 0;
    virtual void NotCalled2() = 0;
    // Non-zero: the main script's path is in the buffer.
    virtual HostWord GetMainScript(char* buffer, HostWord size) = 0;
    // Tells that the includes of the main script have changed or a script was copied into the project.
    virtual void ScriptsChanged() = 0;

    // Three lists, each to be begun, read and ended. The first gives the number of names; a result above 0 of
    // the second tells that the name number `index`, from 0, is in the buffer of 64 bytes.
    virtual HostWord BeginEntities() = 0;
    virtual HostWord GetEntity(HostWord index, char* buffer, HostWord size) = 0;
    virtual void EndEntities() = 0;
    virtual HostWord BeginPathsA() = 0;
    virtual HostWord GetPathA(HostWord index, char* buffer, HostWord size) = 0;
    virtual void EndPathsA() = 0;
    virtual HostWord BeginPathsB() = 0;
    virtual HostWord GetPathB(HostWord index, char* buffer, HostWord size) = 0;
    virtual void EndPathsB() = 0;

    // Lets the user choose a file. Non-zero: its path is in the buffer. `kind` is 2, `folder` "template_6".
    virtual HostWord BrowseFile(char* buffer, HostWord size, HostWord kind, const char* folder) = 0;
    // The folder, without a backslash at its end, is in the buffer afterwards.
    virtual void GetProjectFolder(char* buffer, HostWord size) = 0;
    // Copies a file into the project folder, over one of that name. HostAgrees tells whether it did; the
    // buffer, which may be that of `source`, then holds the path of the copy.
    virtual HostWord CopyToProject(const char* source, char* buffer, HostWord size) = 0;
    // Copies a file and replaces texts on the way. `table` is null or holds pairs of texts, the one to find
    // and the one to put in its place, ended by a null pointer. HostAgrees tells whether it did.
    virtual HostWord CopyWithSubstitution(const char* source, const char* destination,
                                          const char* const* table) = 0;
    virtual void NotCalled3() = 0;
    virtual void NotCalled4() = 0;
    virtual void NotCalled5() = 0;
    // `context` is the viewer's, else 0; `size` is that of the block in bytes.
    virtual HostWord Message(HostWord context, HostWord code, void* block, HostWord size) = 0;

protected:
    ~TarnInterface() = default;
};

// The application object. Only the pointer is looked at.
struct AppInterface {
    HostWord unused[10];
    TarnInterface* tarn;
};

// Of the words that the two copying operations give back, only the low byte tells something.
inline bool HostAgrees(HostWord answer) {
    return (answer & 0xff) != 0;
}

// What the library was given when it was initialised; null before that. Written once, on the editor's thread.
inline AppInterface* g_appInterface = nullptr;

inline TarnInterface* CurrentHost() {
    return g_appInterface ? g_appInterface->tarn : nullptr;
}

// ---- Codes and blocks of Message. ----

enum HostMessage : HostWord {
    MessageGetFolder = 1,   // HostFolderBlock
    MessageGetAction = 21,  // HostActionFileBlock or HostActionNameBlock, told apart by the second word
    MessageGetEntityAction = 161,  // HostEntityActionBlock
    MessageRemoveAction = 163,     // HostEntityBlock
    MessageGetFlags = 164,         // HostFlagsBlock; above 0 when the entity has flags
    MessageSetFlags = 165,
    MessageGetSkills = 166,  // HostSkillsBlock; non-zero when the entity has skills
    MessageSetSkills = 167,
};

enum HostFolderQuery : HostWord {
    QueryBaseFolder = 1,
    QueryTemplateFolder = 12,  // its name below the base folder
    QuerySearchFolder = 13,    // number `index` of them, from 0
};

enum HostActionQuery : HostWord {
    QueryActionFile = 1,
    QueryFlagName = 4,
    QuerySkillName = 5,
};

inline constexpr int kHostFlags = 8;    // flags of an entity; bit 0 is flag 1
inline constexpr int kHostSkills = 20;  // skills of an entity

// A result other than 0 with a length above 0 is success.
struct HostFolderBlock {
    HostWord query;
    HostWord index;
    char* buffer;
    HostWord length;  // in: size of the buffer; out: length of the text
};

// Which file holds an action and where. With a null buffer only the size comes back: the bytes that the path
// takes, its terminator included.
struct HostActionFileBlock {
    const char* action;
    HostWord query;  // QueryActionFile
    char* buffer;
    HostWord size;
    HostWord offset;  // of the action's text in the file, in bytes
    HostWord length;
};

// The name of a flag or skill. The result is the number of them; a size of 0 tells that this one has no name.
// With a null buffer only the size comes back, terminator included.
struct HostActionNameBlock {
    const char* action;
    HostWord query;  // QueryFlagName or QuerySkillName
    HostWord index;  // from 0
    char* buffer;
    HostWord size;
};

// The name of an entity's action; the result 0 tells that it has none. With a null buffer only the size comes
// back, terminator included.
struct HostEntityActionBlock {
    HostWord entity;
    char* buffer;
    HostWord size;
};

struct HostEntityBlock {
    HostWord entity;
};

struct HostFlagsBlock {
    HostWord entity;
    HostWord flags;
};

struct HostSkillsBlock {
    HostWord entity;
    float skills[kHostSkills];
};

// The layout that the editor reads and writes.
static_assert(sizeof(void*) != 4 || sizeof(HostWord) == 4);
static_assert(sizeof(void*) != 4 || offsetof(AppInterface, tarn) == 40);
static_assert(sizeof(void*) != 4 || sizeof(HostFolderBlock) == 16);
static_assert(sizeof(void*) != 4 || sizeof(HostActionFileBlock) == 24);
static_assert(sizeof(void*) != 4 || sizeof(HostActionNameBlock) == 20);
static_assert(sizeof(void*) != 4 || sizeof(HostEntityActionBlock) == 12);
static_assert(sizeof(void*) != 4 || sizeof(HostEntityBlock) == 4);
static_assert(sizeof(void*) != 4 || sizeof(HostFlagsBlock) == 8);
static_assert(sizeof(void*) != 4 || sizeof(HostSkillsBlock) == 84);
