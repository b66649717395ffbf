// Measures of the system and counters.

#include "desktop.h"
#include "window.h"

int WINAPI GetSystemMetrics(int index) {
    switch (index) {
        case SM_CXSCREEN: return kScreenWidth;
        case SM_CYSCREEN: return kScreenHeight;
        case SM_CXVSCROLL:
        case SM_CYHSCROLL:
        case SM_CYVTHUMB: return 16;
        case SM_CYCAPTION: return 19;
        case SM_CXBORDER:
        case SM_CYBORDER: return 1;
        case SM_CXDLGFRAME:
        case SM_CYDLGFRAME: return 3;
        case SM_CXFRAME:
        case SM_CYFRAME: return 4;
        case SM_CXEDGE:
        case SM_CYEDGE: return 2;
        default: return 0;
    }
}

DWORD WINAPI GetGuiResources(HANDLE, DWORD kind) {
    return kind == GR_GDIOBJECTS ? CountDrawingObjects() : kind == GR_USEROBJECTS ? CountWindows() : 0;
}
