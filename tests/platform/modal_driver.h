#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

// Works on modal dialogs from inside their own message loops, one step at a time: no second thread, no timer.
//
//   ModalDriver driver({{"Caption", [](HWND dialog) { SendMessageA(dialog, WM_COMMAND, IDOK, 0); }}});
//   EXPECT_EQ(MessageBoxA(nullptr, "Text", "Caption", MB_OK), IDOK);
class ModalDriver {
public:
    struct Step {
        std::string caption;  // of a dialog that can be used: its own dialogs are gone
        std::function<void(HWND dialog)> act;
    };

    // The first step is taken when the thread next takes messages.
    explicit ModalDriver(std::vector<Step> steps);
    // Fails the test when a step is left.
    ~ModalDriver();
    ModalDriver(const ModalDriver&) = delete;
    ModalDriver& operator=(const ModalDriver&) = delete;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Next();
    void GiveUp();

    std::vector<Step> steps_;
    size_t next_ = 0;
    DWORD waiting_since_ = 0;
    HWND window_ = nullptr;
};

// The dialog of this thread that has a caption and takes input.
HWND UsableDialog(const std::string& caption);

std::string TextOf(HWND window);
std::string ItemText(HWND dialog, int id);

// As the button itself tells its dialog.
void Click(HWND dialog, int id);
