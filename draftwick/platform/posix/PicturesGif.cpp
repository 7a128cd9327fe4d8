#include <draftwick/platform/posix/PicturesParts.h>

#include <algorithm>
#include <array>
#include <new>

#include <gif_lib.h>

namespace draftwick::platform::posix {

namespace {

int ReadBytes(GifFileType* gif, GifByteType* bytes, int size) {
    auto* source = static_cast<PictureSource*>(gif->UserData);
    return static_cast<int>(source->Read(bytes, static_cast<std::size_t>(size)));
}

struct CloseGif {
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};
using Gif = std::unique_ptr<GifFileType, CloseGif>;

/// Moves on to the first frame and reads its descriptor; notes the colour that is transparent there.
bool FindFrame(GifFileType* gif, int& transparent) {
    for (;;) {
        GifRecordType type = UNDEFINED_RECORD_TYPE;
        if (DGifGetRecordType(gif, &type) != GIF_OK) return false;
        if (type == IMAGE_DESC_RECORD_TYPE) return DGifGetImageDesc(gif) == GIF_OK;
        if (type != EXTENSION_RECORD_TYPE) return false;
        int code = 0;
        GifByteType* block = nullptr;  // its first byte is its length
        if (DGifGetExtension(gif, &code, &block) != GIF_OK) return false;
        while (block != nullptr) {
            GraphicsControlBlock control;
            if (code == GRAPHICS_EXT_FUNC_CODE && DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK)
                transparent = control.TransparentColor;
            if (DGifGetExtensionNext(gif, &block) != GIF_OK) return false;
        }
    }
}

class Painter {
public:
    Painter(GifFileType* gif, Bitmap& bitmap, const ColorMapObject& colours, int transparent)
        : gif_(gif), bitmap_(bitmap), line_(static_cast<std::size_t>(gif->Image.Width)),
          transparent_(transparent) {
        const auto count = static_cast<std::size_t>(std::clamp(colours.ColorCount, 0, 256));
        std::copy_n(colours.Colors, count, colours_.begin());
    }

    bool Paint() {
        const int height = gif_->Image.Height;
        if (!gif_->Image.Interlace) return PaintRows(0, 1, height);
        return PaintRows(0, 8, height) && PaintRows(4, 8, height) && PaintRows(2, 4, height)
               && PaintRows(1, 2, height);
    }

private:
    bool PaintRows(int first, int step, int height) {
        for (int y = first; y < height; y += step) {
            if (DGifGetLine(gif_, line_.data(), gif_->Image.Width) != GIF_OK) return false;
            if (gif_->Image.Top + y < bitmap_.height) PaintRow(gif_->Image.Top + y);
        }
        return true;
    }

    /// Copies the part of the line that lies on the screen; what is transparent stays white.
    void PaintRow(int y) {
        const int left = gif_->Image.Left;
        const int width = std::min(gif_->Image.Width, bitmap_.width - left);
        if (width <= 0) return;
        std::uint8_t* pixel = bitmap_.Row(y) + static_cast<std::size_t>(left) * 3;
        for (int x = 0; x < width; ++x, pixel += 3) {
            const GifPixelType index = line_[static_cast<std::size_t>(x)];
            if (index == transparent_) continue;
            const GifColorType& colour = colours_[index];
            pixel[0] = colour.Blue;
            pixel[1] = colour.Green;
            pixel[2] = colour.Red;
        }
    }

    GifFileType* gif_;
    Bitmap& bitmap_;
    std::vector<GifPixelType> line_;
    std::array<GifColorType, 256> colours_{};  // black beyond the file's table
    int transparent_;
};

}  // namespace

std::optional<Bitmap> ReadGif(PictureSource& source) {
    int reason = 0;
    const Gif gif(DGifOpen(&source, ReadBytes, &reason));
    if (!gif) {
        if (reason == D_GIF_ERR_NOT_ENOUGH_MEM) throw std::bad_alloc();
        return {};
    }
    int transparent = NO_TRANSPARENT_COLOR;
    if (!FindFrame(gif.get(), transparent)) {
        if (gif->Error == D_GIF_ERR_NOT_ENOUGH_MEM) throw std::bad_alloc();
        return {};
    }
    const GifImageDesc& frame = gif->Image;
    const ColorMapObject* colours = frame.ColorMap != nullptr ? frame.ColorMap : gif->SColorMap;
    if (colours == nullptr || frame.Width < 1 || frame.Height < 1) return {};

    // Some writers leave the logical screen empty and mean the frame.
    const std::int64_t width = gif->SWidth > 0 ? gif->SWidth : frame.Left + frame.Width;
    const std::int64_t height = gif->SHeight > 0 ? gif->SHeight : frame.Top + frame.Height;
    const std::int64_t framePixels = std::int64_t{frame.Width} * frame.Height;
    if (framePixels > MaxBitmapPixels) return {};
    if (static_cast<std::uint64_t>(std::max(width * height, framePixels) / pictures::MaxGifPixelsPerByte)
        > source.Length())
        return {};
    auto bitmap = pictures::MakeBitmap(width, height);
    if (!bitmap || !Painter(gif.get(), *bitmap, *colours, transparent).Paint()) return {};
    return bitmap;
}

}  // namespace draftwick::platform::posix
