#pragma once

#include <winuser.h>

// Tab control and up-down, as published.

#define ICC_TAB_CLASSES 0x8u
#define ICC_UPDOWN_CLASS 0x10u

#define WC_TABCONTROLA "SysTabControl32"
#define UPDOWN_CLASSA "msctls_updown32"

#define TCM_FIRST 0x1300u
#define TCM_GETITEMCOUNT (TCM_FIRST + 4u)
#define TCM_GETITEMA (TCM_FIRST + 5u)
#define TCM_INSERTITEMA (TCM_FIRST + 7u)
#define TCM_GETITEMRECT (TCM_FIRST + 10u)
#define TCM_GETCURSEL (TCM_FIRST + 11u)
#define TCM_SETCURSEL (TCM_FIRST + 12u)
#define TCN_FIRST (0u - 550u)
#define TCN_SELCHANGE (TCN_FIRST - 1u)
#define TCN_SELCHANGING (TCN_FIRST - 2u)
#define TCIF_TEXT 0x1u

#define UDS_ARROWKEYS 0x20
#define UDM_SETRANGE (WM_USER + 101u)
#define UDM_GETRANGE (WM_USER + 102u)
#define UDM_SETPOS (WM_USER + 103u)
#define UDM_GETPOS (WM_USER + 104u)
#define UDM_SETBUDDY (WM_USER + 105u)
#define UDM_GETBUDDY (WM_USER + 106u)
#define UDN_FIRST (0u - 721u)
#define UDN_DELTAPOS (UDN_FIRST - 1u)

typedef struct tagINITCOMMONCONTROLSEX {
    DWORD dwSize;
    DWORD dwICC;
} INITCOMMONCONTROLSEX;

typedef struct tagTCITEMA {
    UINT mask;
    DWORD dwState;
    DWORD dwStateMask;
    LPSTR pszText;
    int cchTextMax;
    int iImage;
    LPARAM lParam;
} TCITEMA;
typedef TCITEMA TCITEM;

typedef struct _NM_UPDOWN {
    NMHDR hdr;
    int iPos;
    int iDelta;
} NMUPDOWN, *LPNMUPDOWN;

extern "C" {
// The classes are there from the start; the call only checks its record.
WINUSERAPI BOOL WINAPI InitCommonControlsEx(const INITCOMMONCONTROLSEX* wanted);
}
