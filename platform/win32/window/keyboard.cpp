#include <cstring>

#include "queue.h"

namespace {

struct ShiftedKey {
    WPARAM key;
    char plain;
    char shifted;
};

// The keys beside letters and digits that give characters, on the usual keyboard.
constexpr ShiftedKey kKeys[] = {{VK_SPACE, ' ', ' '}, {0xBA, ';', ':'},  {0xBB, '=', '+'}, {0xBC, ',', '<'},
                                {0xBD, '-', '_'},     {0xBE, '.', '>'},  {0xBF, '/', '?'}, {0xC0, '`', '~'},
                                {0xDB, '[', '{'},     {0xDC, '\\', '|'}, {0xDD, ']', '}'}, {0xDE, '\'', '"'},
                                {0x6A, '*', '*'},     {0x6B, '+', '+'},  {0x6D, '-', '-'}, {0x6E, '.', '.'},
                                {0x6F, '/', '/'}};
constexpr char kShiftedDigits[] = ")!@#$%^&*(";

bool IsControlKey(WPARAM key) {
    return key == VK_RETURN || key == VK_ESCAPE || key == VK_TAB || key == VK_BACK;
}

bool Held(int key) {
    return GetKeyState(key) < 0;
}

// The character of a key, 0 for one without.
unsigned char CharacterOf(WPARAM key) {
    const bool shift = Held(VK_SHIFT);
    if (IsControlKey(key)) return static_cast<unsigned char>(key);
    if (key >= 'A' && key <= 'Z') {
        if (Held(VK_CONTROL)) return static_cast<unsigned char>(key - 'A' + 1);
        return static_cast<unsigned char>(shift ? key : key - 'A' + 'a');
    }
    if (Held(VK_CONTROL)) return 0;
    if (key >= '0' && key <= '9') return static_cast<unsigned char>(shift ? kShiftedDigits[key - '0'] : key);
    if (key >= 0x60 && key <= 0x69) return static_cast<unsigned char>('0' + (key - 0x60));
    for (const ShiftedKey& known : kKeys)
        if (known.key == key) return static_cast<unsigned char>(shift ? known.shifted : known.plain);
    return 0;
}

}  // namespace

SHORT WINAPI GetKeyState(int key) {
    if (key < 0 || key > 255) return 0;
    return static_cast<signed char>(CurrentQueue().keys[key]);
}

BOOL WINAPI SetKeyboardState(BYTE* keys) {
    if (!keys) return FALSE;
    std::memcpy(CurrentQueue().keys, keys, sizeof CurrentQueue().keys);
    return TRUE;
}

BOOL WINAPI TranslateMessage(const MSG* message) {
    if (!message) return FALSE;
    const bool system = message->message == WM_SYSKEYDOWN;
    const bool key = message->message == WM_KEYDOWN || message->message == WM_KEYUP || system ||
                     message->message == WM_SYSKEYUP;
    if (!key) return FALSE;
    if (message->message == WM_KEYDOWN || system)
        if (const unsigned char character = CharacterOf(message->wParam))
            PostMessageA(message->hwnd, system ? WM_SYSCHAR : WM_CHAR, character, message->lParam);
    return TRUE;
}
