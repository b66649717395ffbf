#include "controls/window_class.h"

void RegisterControlClass(const char* name, WNDPROC procedure, HBRUSH background) {
    WNDCLASSA known = {};
    if (GetClassInfoA(AfxGetInstanceHandle(), name, &known)) return;
    WNDCLASSA wanted = {};
    wanted.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    wanted.lpfnWndProc = procedure;
    wanted.hInstance = AfxGetInstanceHandle();
    wanted.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    wanted.hbrBackground = background;
    wanted.lpszClassName = name;
    if (!AfxRegisterClass(&wanted)) AfxThrowResourceException();
}
