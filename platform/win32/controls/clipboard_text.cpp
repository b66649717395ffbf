#include "clipboard_text.h"

#include <mutex>
#include <utility>

namespace {

struct Clipboard {
    std::mutex mutex;
    std::string text;
};

Clipboard& TheClipboard() {
    static Clipboard clipboard;
    return clipboard;
}

}  // namespace

void SetClipboardText(std::string text) {
    Clipboard& clipboard = TheClipboard();
    const std::lock_guard lock(clipboard.mutex);
    clipboard.text = std::move(text);
}

std::string ClipboardText() {
    Clipboard& clipboard = TheClipboard();
    const std::lock_guard lock(clipboard.mutex);
    return clipboard.text;
}
