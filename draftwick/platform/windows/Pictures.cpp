#include <draftwick/platform/pictures/Loader.h>
#include <draftwick/platform/windows/PicturesParts.h>
#include <draftwick/platform/windows/Windows.h>

#include <cstring>
#include <ocidl.h>
#include <olectl.h>
#include <type_traits>

namespace draftwick::platform {

namespace windows {

namespace {

using pictures::PictureSource;
using pictures::Size;

/// The longest file that is given to the system's loader.
constexpr std::uint64_t LongestGif = std::uint64_t{1} << 29;

struct DeleteContext {
    void operator()(HDC context) const { ::DeleteDC(context); }
};
struct DeleteBitmap {
    void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};
struct DeleteRecord {
    void operator()(HENHMETAFILE record) const { ::DeleteEnhMetaFile(record); }
};
template <class Type, class Delete>
using Gdi = std::unique_ptr<std::remove_pointer_t<Type>, Delete>;
using Context = Gdi<HDC, DeleteContext>;
using Bitmap = Gdi<HBITMAP, DeleteBitmap>;
using Record = Gdi<HENHMETAFILE, DeleteRecord>;

/// Lets a bitmap be drawn on, or copied from, as long as it lives.
class Selection {
public:
    Selection(HDC context, HBITMAP bitmap) : context_(context), before_(::SelectObject(context, bitmap)) {}
    ~Selection() { ::SelectObject(context_, before_); }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    bool Worked() const { return before_ != nullptr && before_ != HGDI_ERROR; }

private:
    HDC context_;
    HGDIOBJ before_;
};

std::size_t RowSize(std::int32_t width) { return (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4; }

/// A bitmap of the system: rows from the top, three bytes to a pixel.
Bitmap MakeBitmap(std::int32_t width, std::int32_t height, std::uint8_t*& pixels) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* memory = nullptr;
    Bitmap bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0));
    if (bitmap == nullptr) throw std::bad_alloc();
    pixels = static_cast<std::uint8_t*>(memory);
    return bitmap;
}

Bitmap MakeBitmap(const pictures::Bitmap& decoded) {
    std::uint8_t* pixels = nullptr;
    Bitmap bitmap = MakeBitmap(decoded.width, decoded.height, pixels);
    for (std::int32_t y = 0; y < decoded.height; ++y, pixels += RowSize(decoded.width)) {
        std::memcpy(pixels, decoded.Row(y), decoded.RowSize());
    }
    return bitmap;
}

/// The system's picture object for a whole file.
ComPointer<IPicture> LoadPicture(std::string_view bytes) {
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (memory == nullptr) throw std::bad_alloc();
    std::memcpy(::GlobalLock(memory), bytes.data(), bytes.size());
    ::GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (FAILED(::CreateStreamOnHGlobal(memory, TRUE, &stream))) {
        ::GlobalFree(memory);
        throw std::bad_alloc();
    }
    const ComPointer<IStream> owned(stream);
    void* picture = nullptr;
    if (FAILED(::OleLoadPicture(stream, static_cast<LONG>(bytes.size()), FALSE, IID_IPicture, &picture)))
        return nullptr;
    return ComPointer<IPicture>(static_cast<IPicture*>(picture));
}

/// Draws the picture where its file wants it; empty when that cannot be.
Bitmap Draw(IPicture& picture, const GifLayout& layout) {
    OLE_HANDLE handle = 0;
    BITMAP pixels{};
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    if (FAILED(picture.get_Handle(&handle)) || FAILED(picture.get_Width(&width))
        || FAILED(picture.get_Height(&height))
        || ::GetObjectW(reinterpret_cast<HBITMAP>(static_cast<std::uintptr_t>(handle)), sizeof pixels,
                        &pixels)
               == 0)
        return nullptr;
    // Some loaders give the frame alone, some the screen with the frame in its place.
    const bool isFrame = pixels.bmWidth == layout.frameWidth && pixels.bmHeight == layout.frameHeight;
    if (!isFrame && (pixels.bmWidth != layout.width || pixels.bmHeight != layout.height)) return nullptr;
    std::uint8_t* memory = nullptr;
    Bitmap bitmap = MakeBitmap(layout.width, layout.height, memory);
    std::memset(memory, 0xFF, RowSize(layout.width) * static_cast<std::size_t>(layout.height));
    const Context context(::CreateCompatibleDC(nullptr));
    if (context == nullptr) throw std::bad_alloc();
    const Selection selection(context.get(), bitmap.get());
    ::SetStretchBltMode(context.get(), COLORONCOLOR);
    const HRESULT drawn = picture.Render(context.get(), isFrame ? layout.left : 0, isFrame ? layout.top : 0,
                                         pixels.bmWidth, pixels.bmHeight, 0, height, width, -height, nullptr);
    ::GdiFlush();
    return SUCCEEDED(drawn) ? std::move(bitmap) : nullptr;
}

class LoadedBitmap final : public Picture {
public:
    LoadedBitmap(Size size, Bitmap bitmap, std::int32_t pixelsWide, std::int32_t pixelsHigh)
        : Picture(size.width, size.height), bitmap_(std::move(bitmap)), pixelsWide_(pixelsWide),
          pixelsHigh_(pixelsHigh) {}

    bool Has(std::int32_t width, std::int32_t height) const {
        return width >= 1 && height >= 1 && width <= pixelsWide_ && height <= pixelsHigh_;
    }
    HBITMAP Pixels() const { return bitmap_.get(); }

private:
    Bitmap bitmap_;
    std::int32_t pixelsWide_;
    std::int32_t pixelsHigh_;
};

/// The bytes of a metafile that shows the top left part of a bitmap; empty when the system has no memory for it.
std::string RecordBitmap(HBITMAP bitmap, std::int32_t width, std::int32_t height) {
    const HDC recording = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    if (recording == nullptr) return {};
    bool copied = false;
    if (const Context memory(::CreateCompatibleDC(recording)); memory != nullptr) {
        const Selection selection(memory.get(), bitmap);
        copied =
            selection.Worked() && ::BitBlt(recording, 0, 0, width, height, memory.get(), 0, 0, SRCCOPY) != 0;
    }
    const Record record(::CloseEnhMetaFile(recording));
    if (record == nullptr || !copied) return {};
    std::string bytes(::GetEnhMetaFileBits(record.get(), 0, nullptr), '\0');
    bytes.resize(::GetEnhMetaFileBits(record.get(), static_cast<UINT>(bytes.size()),
                                      reinterpret_cast<BYTE*>(bytes.data())));
    return bytes;
}

class WindowsPictures final : public pictures::Loader {
public:
    using Loader::Loader;

    void Record(const Picture& picture, std::int32_t width, std::int32_t height, FileSystem& files,
                const std::string& name, std::error_code& error) override {
        const auto* loaded = dynamic_cast<const LoadedBitmap*>(&picture);
        if (loaded == nullptr || !loaded->Has(width, height)) {
            error = std::make_error_code(std::errc::invalid_argument);
            return;
        }
        const std::string bytes = RecordBitmap(loaded->Pixels(), width, height);
        if (bytes.empty()) throw std::bad_alloc();
        const auto file = files.Create(name, Creation::Overwrite, error);
        if (error) return;
        file->Write(bytes.data(), bytes.size(), error);
        if (!error) file->Close(error);
    }

private:
    Loaded ReadGif(PictureSource& source) const override {
        if (source.Length() > LongestGif) return nullptr;
        std::string bytes(static_cast<std::size_t>(source.Length()), '\0');
        bytes.resize(source.Read(reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size()));
        const std::optional<GifLayout> layout = ReadGifLayout(bytes);
        if (!layout) return nullptr;
        const Apartment apartment;
        const ComPointer<IPicture> picture = LoadPicture(bytes);
        return picture != nullptr ? Keep(Draw(*picture, *layout), layout->width, layout->height) : nullptr;
    }
    Loaded Wrap(pictures::Bitmap decoded) const override {
        return Keep(MakeBitmap(decoded), decoded.width, decoded.height);
    }
    Loaded Keep(Bitmap bitmap, std::int32_t width, std::int32_t height) const {
        if (bitmap == nullptr) return nullptr;
        return std::make_unique<LoadedBitmap>(SizeOf(width, height), std::move(bitmap), width, height);
    }
};

/// What the screen says; 0 when there is none.
double ScreenTwipsPerPixel() {
    const HDC screen = ::GetDC(nullptr);
    if (screen == nullptr) return 0;
    const int perInch = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return perInch > 0 ? 1440.0 / perInch : 0;
}

}  // namespace

}  // namespace windows

std::shared_ptr<Pictures> pictures::MakePictures(double twipsPerPixel) {
    const double screen = windows::ScreenTwipsPerPixel();
    return std::make_shared<windows::WindowsPictures>(screen > 0 ? screen : twipsPerPixel);
}

}  // namespace draftwick::platform
