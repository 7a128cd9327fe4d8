#pragma once

#include <draftwick/platform/FileSystem.h>

#include <cstdint>
#include <memory>
#include <string>
#include <system_error>
#include <type_traits>

namespace draftwick::platform {

/// What a picture file is said to hold. The caller decides it from the file's name; the loader holds the
/// content to it.
enum class PictureKind {
    /// Embedded as it is, so only the header is read, however long the file. So are Emf and Wmf.
    Jpeg,
    Emf,  ///< Enhanced metafile.
    /// Windows metafile. Files of this kind have no signature, so anything passes that is none of the others,
    /// an empty file too.
    Wmf,
    /// Decoded: the first frame on its logical screen; white where that is transparent or not painted.
    Gif,
    /// Decoded: Windows and OS/2 bitmaps of 1 to 32 bits per pixel, plain or run-length encoded. Alpha is
    /// ignored; what run lengths skip is white.
    Bmp,
    Png,  ///< Embedded as it is.
};

/// Why a file that could be read is of no use.
enum class PictureError {
    /// Damaged, cut short, empty, of another kind than its name says, of a variety that is not supported, or
    /// larger than MaxBitmapPixels or MaxBitmapSide.
    Unreadable = 1,
};

/// Lets a std::error_code carry a PictureError and be compared with one.
DRAFTWICK_API std::error_code make_error_code(PictureError error) noexcept;

/// The largest bitmap (GIF or BMP) that is loaded, in pixels: 64 Mi, an A3 page at 400 dots per inch with room
/// to spare. A loaded bitmap takes 3 bytes of memory per pixel.
inline constexpr std::int64_t MaxBitmapPixels = 1 << 26;

/// The longest side of a bitmap that is loaded, in pixels.
inline constexpr std::int32_t MaxBitmapSide = 65535;

/// A loaded picture: its size and, for GIF and BMP, its bitmap. Immutable; holds no file open.
class DRAFTWICK_API Picture {
public:
    virtual ~Picture() = default;
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    /// The size of the picture in HIMETRIC, hundredths of a millimetre (2540 per inch); never negative.
    /// - GIF and BMP: their pixels at the screen's resolution, rounded up, so that
    ///   floor(size / 2540 * 1440 / TwipsPerPixel()) is the number of pixels again.
    /// - JPEG and PNG: the pixels at the density that the file gives, or at the screen's when it gives none. At least 1.
    /// - EMF: the frame rectangle of the header. 0 when nothing was drawn.
    /// - WMF: the bounding box of the placeable header, at its units per inch. 0 without such a header.
    std::int32_t Width() const { return width_; }
    std::int32_t Height() const { return height_; }

protected:
    Picture(std::int32_t width, std::int32_t height) : width_(width), height_(height) {}

private:
    std::int32_t width_;
    std::int32_t height_;
};

/// The system's picture loader and its recorder of enhanced metafiles.
/// Holds no state that changes: any thread may use it. Nothing here throws but std::bad_alloc, and what the
/// file system given to it throws.
class DRAFTWICK_API Pictures {
public:
    virtual ~Pictures() = default;

    /// Loads the picture in the file `name` of `files`.
    /// Returns it and clears `error`; or returns nothing and sets `error` to PictureError::Unreadable or to
    /// what the file system reported.
    virtual std::unique_ptr<const Picture> Load(FileSystem& files, const std::string& name, PictureKind kind,
                                                std::error_code& error) = 0;

    /// Records the bitmap of a picture that this object has loaded as an enhanced metafile: a drawing of
    /// `width` by `height` pixels that shows the bitmap from its top left corner, a pixel for a pixel. Neither
    /// may be less than 1 or more than the bitmap has; std::errc::invalid_argument otherwise, and for a
    /// picture without a bitmap.
    /// The file `name` is created; one that is there already is replaced, so the caller should have claimed
    /// the name. After a failure it may be there, incomplete. Deleting it is always the caller's business.
    virtual void Record(const Picture& picture, std::int32_t width, std::int32_t height, FileSystem& files,
                        const std::string& name, std::error_code& error) = 0;

    /// How many twips (1/1440 inch) a pixel of the screen is wide, not always a whole number of them; the
    /// same figure serves for its height.
    virtual double TwipsPerPixel() const = 0;
};

/// The system's own pictures service. Where no screen can be asked, a pixel is `twipsPerPixel` wide: 15 means
/// 96 pixels per inch. 1 to 1440; std::invalid_argument otherwise.
DRAFTWICK_API std::shared_ptr<Pictures> SystemPictures(double twipsPerPixel = 15);

}  // namespace draftwick::platform

template <>
struct std::is_error_code_enum<draftwick::platform::PictureError> : std::true_type {};
