#include "template_builder.h"

namespace {

constexpr size_t kCountWord = 4;
constexpr char kFontName[] = "MS Shell Dlg";
constexpr int kFontSize = 8;

}  // namespace

TemplateBuilder::TemplateBuilder(DWORD style, const std::string& caption, int width, int height) {
    Long(style | DS_SETFONT);
    Long(0);
    Word(0);  // items, counted by Add
    for (const int measure : {0, 0, width, height})
        Word(measure);
    Word(0);  // no menu
    Word(0);  // the class of dialogs
    Text(caption);
    Word(kFontSize);
    Text(kFontName);
}

void TemplateBuilder::Add(const char* class_name, const std::string& text, int id, DWORD style,
                          const RECT& place) {
    if (words_.size() % 2 != 0) Word(0);
    Long(style | WS_CHILD | WS_VISIBLE);
    Long(0);
    for (const LONG measure : {place.left, place.top, place.right - place.left, place.bottom - place.top})
        Word(measure);
    Word(id);
    Text(class_name);
    Text(text);
    Word(0);  // no creation data
    ++words_[kCountWord];
}

LPCDLGTEMPLATE TemplateBuilder::Get() {
    return reinterpret_cast<LPCDLGTEMPLATE>(words_.data());
}

void TemplateBuilder::Long(DWORD value) {
    Word(LOWORD(value));
    Word(HIWORD(value));
}

void TemplateBuilder::Text(const std::string& text) {
    for (const char character : text)
        Word(static_cast<unsigned char>(character));
    Word(0);
}
