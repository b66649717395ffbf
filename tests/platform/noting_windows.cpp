#include "noting_windows.h"

#include <map>
#include <vector>

namespace {

std::vector<std::string> noted;
std::map<HWND, std::string> names;

const std::map<UINT, const char*> kNoted = {{WM_NCCREATE, "NCCREATE"}, {WM_NCCALCSIZE, "NCCALCSIZE"},
                                            {WM_CREATE, "CREATE"},     {WM_SIZE, "SIZE"},
                                            {WM_MOVE, "MOVE"},         {WM_SHOWWINDOW, "SHOW"},
                                            {WM_DESTROY, "DESTROY"},   {WM_NCDESTROY, "NCDESTROY"},
                                            {WM_SETFOCUS, "SETFOCUS"}, {WM_KILLFOCUS, "KILLFOCUS"},
                                            {WM_ENABLE, "ENABLE"},     {WM_CLOSE, "CLOSE"},
                                            {WM_HELP, "HELP"},         {WM_CAPTURECHANGED, "CAPTURECHANGED"}};

LRESULT CALLBACK Noting(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) names[window] = reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName;
    if (NotingHook) NotingHook(window, message);
    const auto known = kNoted.find(message);
    if (known != kNoted.end()) noted.push_back(names[window] + ":" + known->second);
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

std::string Noted() {
    std::string all;
    for (const std::string& entry : noted)
        all += (all.empty() ? "" : " ") + entry;
    noted.clear();
    return all;
}

std::string Noted(const char* message) {
    std::string all;
    for (const std::string& entry : noted)
        if (entry.substr(entry.find(':') + 1) == message) all += entry.substr(0, entry.find(':'));
    noted.clear();
    return all;
}

HWND MakeNoting(const char* name, HWND parent, DWORD style, RECT place) {
    WNDCLASSA record = {};
    record.lpfnWndProc = &Noting;
    record.hInstance = GetModuleHandleA(nullptr);
    record.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    record.lpszClassName = "Noting";
    RegisterClassA(&record);
    return CreateWindowExA(0, "Noting", name, style, place.left, place.top, place.right - place.left,
                           place.bottom - place.top, parent, nullptr, record.hInstance, nullptr);
}
