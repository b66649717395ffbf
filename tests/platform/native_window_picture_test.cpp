// A window as a PNG file, read back by the library that knows the format.

#include <gtest/gtest.h>
#include <png.h>
#include <window_picture.h>

#include <vector>

#include "control_host.h"
#include "temp_folder.h"

namespace {

struct Picture {
    png_image header = {};
    std::vector<unsigned char> pixels;  // red, green, blue

    explicit Picture(const std::string& file) {
        header.version = PNG_IMAGE_VERSION;
        if (!png_image_begin_read_from_file(&header, file.c_str())) return;
        header.format = PNG_FORMAT_RGB;
        pixels.resize(PNG_IMAGE_SIZE(header));
        png_image_finish_read(&header, nullptr, pixels.data(), 0, nullptr);
    }

    COLORREF At(LONG x, LONG y) const {
        const unsigned char* const pixel =
            &pixels[(static_cast<size_t>(y) * header.width + static_cast<size_t>(x)) * 3];
        return RGB(pixel[0], pixel[1], pixel[2]);
    }
};

TEST(NativeWindowPicture, ShowsFrameAndChildren) {
    const TempFolder folder;
    ControlHost host;
    const HWND child = host.Add("Button", "Press", WS_VISIBLE);
    UpdateWindow(host.Window());
    const std::string file = folder.Path("window.png").string();
    ASSERT_TRUE(SaveWindowPicture(host.Window(), file.c_str()));
    const Picture picture(file);
    RECT window = {};
    GetWindowRect(host.Window(), &window);
    ASSERT_EQ(picture.header.width, static_cast<unsigned>(window.right - window.left));
    ASSERT_EQ(picture.header.height, static_cast<unsigned>(window.bottom - window.top));
    const HDC dc = GetWindowDC(host.Window());
    RECT button = {};
    GetWindowRect(child, &button);
    int differing = 0;
    for (LONG y = 0; y < button.bottom - window.top; ++y)
        for (LONG x = 0; x < button.right - window.left; ++x)
            differing += picture.At(x, y) != GetPixel(dc, x, y);
    ReleaseDC(host.Window(), dc);
    EXPECT_EQ(differing, 0);
    EXPECT_EQ(picture.At(button.left - window.left, button.top - window.top),
              GetSysColor(COLOR_BTNHIGHLIGHT));
}

TEST(NativeWindowPicture, RefusesWhatCannotBe) {
    const TempFolder folder;
    ControlHost host;
    EXPECT_FALSE(SaveWindowPicture(host.Window(), folder.Path("no/such/folder.png").c_str()));
    EXPECT_FALSE(SaveWindowPicture(reinterpret_cast<HWND>(0x7654), folder.Path("a.png").c_str()));
    EXPECT_FALSE(folder.Has("a.png"));
}

}  // namespace
