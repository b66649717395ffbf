#include "controls/entry_image.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>

#include "controls/images/bitmap_layout.h"
#include "controls/images/load_image.h"
#include "shell/host_interface.h"
#include "support/file_objects.h"
#include "support/path_limit.h"

namespace {

constexpr int kHeightWithoutPicture = 1;

enum class Search {
    Found,
    NoFolders,  // the host names no search folder at all
    NotThere,   // no host, or no folder holds the file
};

// Folder number `index` of those that the host searches.
std::optional<CString> SearchFolder(TarnInterface& host, int index) {
    char folder[kPathSize + 1] = {};  // terminated even where the host fills all that it is given
    HostFolderBlock block = {QuerySearchFolder, index, folder, kPathSize};
    if (host.Message(0, MessageGetFolder, &block, sizeof block) == 0 || block.length == 0)
        return std::nullopt;
    return CString(folder);
}

Search FindPicture(const char* name, CString& path) {
    path = name;
    if (file_t::FileExist(name, nullptr)) return Search::Found;
    TarnInterface* const host = CurrentHost();
    if (!host) return Search::NotThere;
    for (int index = 0;; ++index) {
        const std::optional<CString> folder = SearchFolder(*host, index);
        if (!folder) return index == 0 ? Search::NoFolders : Search::NotThere;
        path = *folder + "\\" + name;
        if (file_t::FileExist(path, nullptr)) return Search::Found;
    }
}

using Block = std::unique_ptr<unsigned char, decltype(&std::free)>;

}  // namespace

BEGIN_MESSAGE_MAP(CEntryImage, CEntryWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

CEntryImage::~CEntryImage() {
    if (bitmap_) DeleteObject(bitmap_);
}

void CEntryImage::CreateParts() {
    CString path;
    const Search found = label_ ? FindPicture(label_, path) : Search::NoFolders;
    // The height of creation stays where a picture is expected that nobody has.
    if (found == Search::NotThere) return;
    if (found == Search::Found && std::strchr(label_, '.')) LoadPicture(path);
    if (bitmap_) width_ = image_width_;
    height_ = bitmap_ ? image_height_ : kHeightWithoutPicture;
}

void CEntryImage::LoadPicture(const char* path) {
    unsigned char* pixels = nullptr;
    unsigned char* palette = nullptr;
    int size = 0;
    int width = 0;
    int height = 0;
    int bytes_per_pixel = 0;
    if (!LoadImageFile(path, pixels, size, palette, width, height, bytes_per_pixel)) return;
    const Block pixels_owner(pixels, &std::free);
    const Block palette_owner(palette, &std::free);
    BuildBitmap(pixels, palette, width, height, bytes_per_pixel);
}

void CEntryImage::BuildBitmap(const unsigned char* pixels, const unsigned char* palette, int width,
                              int height, int bytes_per_pixel) {
    BitmapLayout layout;
    if (!LayOutBitmap(width, height, bytes_per_pixel, layout)) return;
    BITMAPINFOHEADER& header = info_.header;
    header.biSize = sizeof header;
    header.biWidth = layout.strideWidth;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(layout.BitCount());
    header.biCompression = BI_RGB;
    header.biSizeImage = static_cast<DWORD>(layout.strideWidth) * static_cast<DWORD>(height);
    header.biXPelsPerMeter = 50;
    header.biYPelsPerMeter = 50;
    header.biClrUsed = static_cast<DWORD>(layout.ColorsUsed());
    if (palette) StoreColorTable(palette, reinterpret_cast<unsigned char*>(info_.colors));
    const HWND desktop = GetDesktopWindow();
    const HDC screen = ::GetDC(desktop);
    if (!screen) return;
    // The colours count when painting only, so the section needs none.
    bitmap_ = CreateDIBSection(screen, reinterpret_cast<const BITMAPINFO*>(&info_), DIB_PAL_COLORS, &bits_,
                               nullptr, 0);
    ::ReleaseDC(desktop, screen);
    if (!bitmap_ || !bits_) return;
    image_width_ = width;
    image_height_ = height;
    StoreBitmapRows(layout, pixels, static_cast<unsigned char*>(bits_));
}

void CEntryImage::OnPaint() {
    CPaintDC dc(this);
    if (!bitmap_ || !bits_) return;
    const auto rows = static_cast<UINT>(info_.header.biHeight);
    SetDIBitsToDevice(dc.GetSafeHdc(), 0, 0, static_cast<DWORD>(image_width_), rows, 0, 0, 0, rows, bits_,
                      reinterpret_cast<const BITMAPINFO*>(&info_), DIB_RGB_COLORS);
}
