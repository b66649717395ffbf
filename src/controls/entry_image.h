#pragma once

#include "controls/entry_wnd.h"

// A picture file at its own size. The label is the file's name.
class CEntryImage : public CEntryWnd {
public:
    CEntryImage() = default;
    ~CEntryImage() override;

protected:
    void CreateParts() override;

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    // A bitmap's header with the colour table behind it, as drawing takes them.
    struct BitmapInfo {
        BITMAPINFOHEADER header;
        RGBQUAD colors[256];
    };

    void LoadPicture(const char* path);
    void BuildBitmap(const unsigned char* pixels, const unsigned char* palette, int width, int height,
                     int bytes_per_pixel);

    HBITMAP bitmap_ = nullptr;
    void* bits_ = nullptr;  // of the bitmap
    int image_width_ = 0;
    int image_height_ = 0;
    BitmapInfo info_ = {};
};
