#include <draftwick/platform/posix/PicturesParts.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdio>  // jpeglib.h needs it
#include <new>

#include <jpeglib.h>

#include <jerror.h>

namespace draftwick::platform::posix {

namespace {

/// Profiles and previews stand in front of the size; a file with more of them than this is no picture.
constexpr std::uint64_t MaxHeaderSize = 64 << 20;

/// libjpeg reports an error by never coming back from error_exit, so this jumps; nothing that is on the stack
/// between here and there has a destructor.
struct ErrorManager {
    jpeg_error_mgr base{};  // first: libjpeg hands out a pointer to it
    std::jmp_buf escape{};
};

[[noreturn]] void Escape(j_common_ptr info) {
    std::longjmp(reinterpret_cast<ErrorManager*>(info->err)->escape, 1);  // NOLINT(cert-err52-cpp)
}
void Ignore(j_common_ptr) {}
void IgnoreLevel(j_common_ptr, int) {}

struct SourceManager {
    jpeg_source_mgr base{};  // first, as above
    PictureSource* source = nullptr;
    std::array<JOCTET, 4096> buffer{};
};

SourceManager& SourceOf(j_decompress_ptr info) { return *reinterpret_cast<SourceManager*>(info->src); }

void NoAction(j_decompress_ptr) {}

boolean Fill(j_decompress_ptr info) {
    SourceManager& manager = SourceOf(info);
    const std::size_t size = manager.source->Position() < MaxHeaderSize
                                 ? manager.source->Read(manager.buffer.data(), manager.buffer.size())
                                 : 0;
    if (size == 0) ERREXIT(info, JERR_INPUT_EOF);
    manager.base.next_input_byte = manager.buffer.data();
    manager.base.bytes_in_buffer = size;
    return TRUE;
}

void Skip(j_decompress_ptr info, long size) {
    jpeg_source_mgr& base = SourceOf(info).base;
    while (size > static_cast<long>(base.bytes_in_buffer)) {
        size -= static_cast<long>(base.bytes_in_buffer);
        Fill(info);
    }
    if (size > 0) {
        base.next_input_byte += size;
        base.bytes_in_buffer -= static_cast<std::size_t>(size);
    }
}

void ReadHeader(jpeg_decompress_struct& info, SourceManager& source, ErrorManager& errors) {
    if (setjmp(errors.escape) != 0) return;  // NOLINT(cert-err52-cpp)
    jpeg_create_decompress(&info);
    info.src = &source.base;
    jpeg_read_header(&info, TRUE);
}

std::int32_t Himetric(JDIMENSION pixels, double perInch) {
    return std::max(1, static_cast<std::int32_t>(std::lround(pixels * 2540.0 / perInch)));
}

}  // namespace

std::optional<Size> ReadJpegSize(PictureSource& source, double twipsPerPixel) {
    ErrorManager errors;
    jpeg_std_error(&errors.base);
    errors.base.error_exit = Escape;
    errors.base.output_message = Ignore;
    errors.base.emit_message = IgnoreLevel;
    SourceManager manager;
    manager.source = &source;
    manager.base.init_source = NoAction;
    manager.base.fill_input_buffer = Fill;
    manager.base.skip_input_data = Skip;
    manager.base.resync_to_restart = jpeg_resync_to_restart;
    manager.base.term_source = NoAction;

    jpeg_decompress_struct info{};
    info.err = &errors.base;
    ReadHeader(info, manager, errors);
    // The component table is set up by a sound frame header. What follows that header is not ours to judge.
    const bool sized = info.comp_info != nullptr;
    const auto width = info.image_width;
    const auto height = info.image_height;
    const int unit = info.saw_JFIF_marker ? info.density_unit : 0;
    const double perUnit = unit == 1 ? 1 : 2.54;
    const double perInchX = info.X_density * perUnit;
    const double perInchY = info.Y_density * perUnit;
    jpeg_destroy_decompress(&info);

    if (errors.base.msg_code == JERR_OUT_OF_MEMORY) throw std::bad_alloc();
    if (!sized) return {};
    if ((unit == 1 || unit == 2) && perInchX > 0 && perInchY > 0)
        return Size{Himetric(width, perInchX), Himetric(height, perInchY)};
    return Size{HimetricFromPixels(static_cast<std::int32_t>(width), twipsPerPixel),
                HimetricFromPixels(static_cast<std::int32_t>(height), twipsPerPixel)};
}

}  // namespace draftwick::platform::posix
