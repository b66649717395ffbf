#pragma once

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

// A memory context with a bitmap whose pixels can be looked at. It begins white.
class Canvas {
public:
    Canvas(int width, int height, int bits = 32, bool topDown = true) : width_(width), height_(height) {
        Header header{};
        header.info = {sizeof header.info,
                       width,
                       topDown ? -height : height,
                       1,
                       static_cast<WORD>(bits),
                       BI_RGB,
                       0,
                       0,
                       0,
                       0,
                       0};
        // Greys, so that a color and its index in the palette can be told from each other.
        for (int i = 0; i < 256; ++i) {
            const auto level = static_cast<BYTE>(255 - i);
            header.colors[i] = {level, level, level, 0};
        }
        bitmap_ = CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&header), DIB_RGB_COLORS, &bits_,
                                   nullptr, 0);
        former_ = SelectObject(dc_, bitmap_);
        Clear();
    }
    ~Canvas() {
        SelectObject(dc_, former_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    operator HDC() const { return dc_; }
    HBITMAP Bitmap() const { return bitmap_; }
    BYTE* Bytes() const {
        GdiFlush();
        return static_cast<BYTE*>(bits_);
    }

    void Clear() const {
        const RECT all{0, 0, width_, height_};
        FillRect(dc_, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    }

    // Rows of one letter per pixel: '.' white, '#' black, '?' all else.
    std::vector<std::string> Picture() const {
        std::vector<std::string> rows;
        for (int y = 0; y < height_; ++y) {
            std::string row;
            for (int x = 0; x < width_; ++x) {
                const COLORREF color = GetPixel(dc_, x, y);
                row += color == kWhite ? '.' : color == kBlack ? '#' : '?';
            }
            rows.push_back(row);
        }
        return rows;
    }

    // The smallest rectangle with all pixels that are not white; empty when there are none.
    RECT Inked() const {
        RECT inked{width_, height_, 0, 0};
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                if (GetPixel(dc_, x, y) == kWhite) continue;
                inked.left = std::min<LONG>(inked.left, x);
                inked.top = std::min<LONG>(inked.top, y);
                inked.right = std::max<LONG>(inked.right, x + 1);
                inked.bottom = std::max<LONG>(inked.bottom, y + 1);
            }
        }
        return inked.right > inked.left ? inked : RECT{};
    }

private:
    struct Header {
        BITMAPINFOHEADER info;
        RGBQUAD colors[256];
    };

    const int width_;
    const int height_;
    void* bits_ = nullptr;
    HDC dc_ = CreateCompatibleDC(nullptr);
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ former_ = nullptr;
};

using Picture = std::vector<std::string>;
