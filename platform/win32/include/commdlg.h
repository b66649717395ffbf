#pragma once

#include <winuser.h>

// The dialog that asks for a file.

#define OFN_OVERWRITEPROMPT 0x2u
#define OFN_HIDEREADONLY 0x4u
#define OFN_NOCHANGEDIR 0x8u
#define OFN_PATHMUSTEXIST 0x800u
#define OFN_FILEMUSTEXIST 0x1000u
#define OFN_EXPLORER 0x80000u

#define CDERR_DIALOGFAILURE 0xFFFFu
#define CDERR_STRUCTSIZE 0x1u
#define CDERR_INITIALIZATION 0x2u
#define FNERR_BUFFERTOOSMALL 0x3003u

// Its controls: the list of folders and files, the types and the name.
#define lst1 0x0460
#define cmb1 0x0470
#define cmb13 0x047C

typedef struct tagOFNA {
    DWORD lStructSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    LPCSTR lpstrFilter;
    LPSTR lpstrCustomFilter;
    DWORD nMaxCustFilter;
    DWORD nFilterIndex;
    LPSTR lpstrFile;
    DWORD nMaxFile;
    LPSTR lpstrFileTitle;
    DWORD nMaxFileTitle;
    LPCSTR lpstrInitialDir;
    LPCSTR lpstrTitle;
    DWORD Flags;
    WORD nFileOffset;
    WORD nFileExtension;
    LPCSTR lpstrDefExt;
    LPARAM lCustData;
    LPVOID lpfnHook;
    LPCSTR lpTemplateName;
    LPVOID pvReserved;
    DWORD dwReserved;
    DWORD FlagsEx;
} OPENFILENAMEA, *LPOPENFILENAMEA;
typedef OPENFILENAMEA OPENFILENAME;

extern "C" {

// One file; the flags above. Differs: the list is a list box with folders in brackets, and the field for the
// name an edit. Without a folder the dialog begins in the current one. Hooks, own templates and
// the default extension are not looked at.
WINUSERAPI BOOL WINAPI GetOpenFileNameA(LPOPENFILENAMEA dialog);
WINUSERAPI DWORD WINAPI CommDlgExtendedError();
}
