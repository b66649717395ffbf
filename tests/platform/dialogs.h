#pragma once

#include <windows.h>

#include <string>
#include <vector>

// A dialog of the test's resources that writes down what it is told.
//
// An answer to a message is given by `on_message`, which sees every message first.
struct TestDialog;
using DialogAnswer = INT_PTR (*)(TestDialog& dialog, UINT message, WPARAM wParam, LPARAM lParam);

struct TestDialog {
    DialogAnswer on_message = nullptr;
    std::string told;  // the clicks, as "id " each, and what on_message adds
    HWND window = nullptr;
};

inline INT_PTR CALLBACK TestDialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(window, DWLP_USER, lParam);
        reinterpret_cast<TestDialog*>(lParam)->window = window;
    }
    auto* const dialog = reinterpret_cast<TestDialog*>(GetWindowLongPtrA(window, DWLP_USER));
    if (!dialog) return FALSE;
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED)
        dialog->told += std::to_string(LOWORD(wParam)) + ' ';
    return dialog->on_message ? dialog->on_message(*dialog, message, wParam, lParam)
                              : message == WM_INITDIALOG;
}

inline LPCDLGTEMPLATE DialogResource(int id) {
    const HMODULE module = GetModuleHandleA(nullptr);
    const HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(id), MAKEINTRESOURCEA(5));
    return static_cast<LPCDLGTEMPLATE>(LockResource(LoadResource(module, found)));
}

inline HWND MakeDialog(TestDialog& dialog, int id, HWND owner = nullptr) {
    return CreateDialogIndirectParamA(GetModuleHandleA(nullptr), DialogResource(id), owner,
                                      &TestDialogProcedure, reinterpret_cast<LPARAM>(&dialog));
}

inline INT_PTR RunDialog(TestDialog& dialog, int id, HWND owner = nullptr) {
    return DialogBoxIndirectParamA(GetModuleHandleA(nullptr), DialogResource(id), owner, &TestDialogProcedure,
                                   reinterpret_cast<LPARAM>(&dialog));
}
