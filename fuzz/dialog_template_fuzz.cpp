#include <dialog_template.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// What is understood lies within the bytes: no text is longer than they are.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto dialog = ReadDialogTemplate({data, size});
    if (!dialog) return 0;
    size_t characters = dialog->class_name.size() + dialog->caption.size() + dialog->font_name.size();
    for (const DialogItem& item : dialog->items)
        characters += item.class_name.size() + item.text.size();
    if (dialog->items.size() != dialog->head.cdit || 2 * characters > size) std::abort();
    return 0;
}
