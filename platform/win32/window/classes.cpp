#include <algorithm>
#include <map>

#include "ascii_case.h"
#include "controls/system_classes.h"
#include "window.h"

namespace {

constexpr ATOM kDialogAtom = 0x8002;
constexpr ATOM kFirstAtom = 0xC000;

struct NamedAtom {
    ATOM atom;
    const char* name;
};

// The classes that a dialog template knows by number.
constexpr NamedAtom kTemplateAtoms[] = {{0x80, "Button"},       {0x81, "Edit"},      {0x82, "Static"},
                                        {0x83, "ListBox"},      {0x84, "ScrollBar"}, {0x85, "ComboBox"},
                                        {kDialogAtom, "#32770"}};

std::string Lowered(LPCSTR name) {
    std::string text = name;
    std::transform(text.begin(), text.end(), text.begin(), [](char ch) { return AsciiLower(ch); });
    return text;
}

struct Classes {
    // By module, null for the system, and name in small letters.
    std::map<std::pair<HINSTANCE, std::string>, std::shared_ptr<WindowClass>> by_name;
    std::vector<std::weak_ptr<WindowClass>> by_atom;
};

Classes& TheClasses() {
    static Classes& classes = *new Classes;
    return classes;
}

// What an atom stands for; empty for one that is none.
std::string NameOf(LPCSTR name) {
    if (!IS_INTRESOURCE(name)) return Lowered(name);
    const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(name));
    for (const NamedAtom& known : kTemplateAtoms)
        if (known.atom == atom) return Lowered(known.name);
    const size_t index = atom - kFirstAtom;
    const auto& classes = TheClasses().by_atom;
    const auto found = atom >= kFirstAtom && index < classes.size() ? classes[index].lock() : nullptr;
    return found ? Lowered(found->name.c_str()) : std::string();
}

void LoadSystemClasses() {
    static std::once_flag loaded;
    std::call_once(loaded, RegisterSystemClasses);
}

// True while the system's own classes are being registered, by the very functions that would ask for them.
thread_local bool loading = false;

void EnsureSystemClasses() {
    if (loading) return;
    loading = true;
    LoadSystemClasses();
    loading = false;
}

}  // namespace

std::shared_ptr<WindowClass> FindClass(HINSTANCE module, LPCSTR name) {
    const std::string wanted = NameOf(name);
    const auto& classes = TheClasses().by_name;
    for (HINSTANCE const owner : {module, HINSTANCE(nullptr)}) {
        const auto found = classes.find({owner, wanted});
        if (found != classes.end()) return found->second;
    }
    return nullptr;
}

ATOM RegisterClassA(const WNDCLASSA* windowClass) {
    if (!windowClass || !windowClass->lpszClassName || IS_INTRESOURCE(windowClass->lpszClassName) ||
        !windowClass->lpfnWndProc || windowClass->cbWndExtra < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    EnsureSystemClasses();
    const std::lock_guard lock(WindowMutex());
    Classes& classes = TheClasses();
    const std::pair key(windowClass->hInstance, Lowered(windowClass->lpszClassName));
    if (classes.by_name.contains(key)) {
        SetLastError(ERROR_CLASS_ALREADY_EXISTS);
        return 0;
    }
    auto made = std::make_shared<WindowClass>();
    made->name = windowClass->lpszClassName;
    made->record = *windowClass;
    made->record.lpszClassName = made->name.c_str();
    classes.by_name[key] = made;
    classes.by_atom.push_back(made);
    return static_cast<ATOM>(kFirstAtom + classes.by_atom.size() - 1);
}

BOOL UnregisterClassA(LPCSTR name, HINSTANCE module) {
    const std::lock_guard lock(WindowMutex());
    const auto found = name ? FindClass(module, name) : nullptr;
    if (!found || found->record.hInstance != module) {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    if (found->windows > 0) {
        SetLastError(ERROR_CLASS_HAS_WINDOWS);
        return FALSE;
    }
    TheClasses().by_name.erase({module, Lowered(found->name.c_str())});
    return TRUE;
}

BOOL GetClassInfoA(HINSTANCE module, LPCSTR name, LPWNDCLASSA windowClass) {
    EnsureSystemClasses();
    const std::lock_guard lock(WindowMutex());
    const auto found = name && windowClass ? FindClass(module, name) : nullptr;
    if (!found) {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    *windowClass = found->record;
    windowClass->lpszClassName = name;
    return TRUE;
}

int GetClassNameA(HWND window, LPSTR name, int size) {
    const WindowRef found = FindWindowRef(window);
    if (!found || !name || size <= 0) return 0;
    const size_t length = std::min(found->cls->name.size(), static_cast<size_t>(size) - 1);
    std::copy_n(found->cls->name.data(), length, name);
    name[length] = 0;
    return static_cast<int>(length);
}
