#include <draftwick/base/Error.h>
#include <draftwick/base/UniqueFile.h>
#include <draftwick/base/Units.h>
#include <draftwick/base/WritingContext.h>
#include <draftwick/drawing/PictureWriter.h>

#include <algorithm>
#include <array>

namespace draftwick {

namespace {

using platform::PictureKind;

std::int32_t Percent(std::int32_t twips, std::int32_t himetric) {
    if (himetric == 0) RaiseRuntimeError(dwRunDivisionByZero, "the picture has no size that could be scaled");
    return RoundDown(static_cast<double>(TwipsToHimetric(twips)) / himetric * 100);
}

/// Reads until `size` bytes are there or the file ends.
std::size_t ReadFully(platform::File& file, char* bytes, std::size_t size, std::error_code& error) {
    std::size_t have = 0;
    while (have < size) {
        const std::size_t more = file.Read(bytes + have, size - have, error);
        if (error || more == 0) break;
        have += more;
    }
    return have;
}

/// Upper-case hexadecimal, 64 bytes of the file to one text. Constant memory, however long the file.
void WritePictureData(Output& output, platform::File& file, PictureKind kind, const std::string& name) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    constexpr std::size_t PerText = 64;
    constexpr std::size_t PlaceableHeader = 22;  // RTF wants a metafile without it
    std::vector<char> block(512 * PerText);
    std::array<char, 2 * PerText> text;
    std::error_code error;
    if (kind == PictureKind::Wmf) ReadFully(file, block.data(), PlaceableHeader, error);
    while (!error) {
        const std::size_t size = ReadFully(file, block.data(), block.size(), error);
        for (std::size_t at = 0; at < size; at += PerText) {
            const std::size_t count = std::min(PerText, size - at);
            for (std::size_t i = 0; i < count; ++i) {
                const auto byte = static_cast<unsigned char>(block[at + i]);
                text[2 * i] = Digits[byte >> 4];
                text[2 * i + 1] = Digits[byte & 15];
            }
            output.WriteText({text.data(), 2 * count});
        }
        if (size < block.size()) break;
    }
    if (error) output.ReadFailed(error, name);
}

}  // namespace

std::optional<PictureKind> PictureTypeFromName(std::string_view fileName) {
    static constexpr std::pair<std::string_view, PictureKind> Endings[] = {
        {".jpg", PictureKind::Jpeg}, {".jpeg", PictureKind::Jpeg}, {".bmp", PictureKind::Bmp},
        {".emf", PictureKind::Emf},  {".wmf", PictureKind::Wmf},   {".gif", PictureKind::Gif},
    };
    for (const auto& [ending, kind] : Endings) {
        if (fileName.ends_with(ending)) return kind;
    }
    return {};
}

OpenPicture::OpenPicture(const platform::Platform& platform, const std::string& fileName)
    : files_(platform.files), name_(fileName) {
    if (!files_->Exists(fileName)) RaiseError(dwErrPictureFileNotFound, {fileName});
    const std::optional<PictureKind> kind = PictureTypeFromName(fileName);
    if (!kind) RaiseError(dwErrUnsupportedFileType, {fileName});
    kind_ = *kind;
    std::error_code error;
    const auto picture = platform.pictures->Load(*files_, fileName, kind_, error);
    if (error == platform::PictureError::Unreadable) RaiseRuntimeError(dwRunInvalidPicture, fileName);
    if (picture == nullptr) RaiseFileError(error, "read", fileName);
    width_ = picture->Width();
    height_ = picture->Height();
    try {
        if (kind_ == PictureKind::Gif || kind_ == PictureKind::Bmp) Convert(platform, *picture);
        file_ = files_->OpenForReading(name_, error);
        if (file_ == nullptr) RaiseFileError(error, "read", name_);
    } catch (...) {
        DeleteTemporary();
        throw;
    }
}

OpenPicture::~OpenPicture() {
    file_.reset();
    DeleteTemporary();
}

void OpenPicture::Convert(const platform::Platform& platform, const platform::Picture& picture) {
    // The folder is the environment's, not the document's.
    UniqueFile claimed = CreateUniqueFile(*files_, platform.environment->TempFolder(), "~DWGC", ".tmp",
                                          platform::Creation::ExclusivePrivate);
    temporary_ = std::move(claimed.name);
    claimed.file.reset();
    name_ = temporary_;
    kind_ = PictureKind::Emf;
    const int twipsPerPixel = platform.pictures->TwipsPerPixel();
    std::error_code error;
    platform.pictures->Record(picture, HimetricToPixels(width_, twipsPerPixel),
                              HimetricToPixels(height_, twipsPerPixel), *files_, name_, error);
    if (error) RaiseFileError(error, "write", name_);
}

void OpenPicture::DeleteTemporary() noexcept {
    if (temporary_.empty()) return;
    std::error_code ignored;
    files_->Delete(temporary_, ignored);
}

std::optional<OpenPicture::Scale> OpenPicture::ScaleTo(std::int32_t width, std::int32_t height) const {
    if (width <= 0 || height <= 0) return {};
    return Scale{Percent(width, width_), Percent(height, height_)};
}

void EmitPicture(WritingContext& context, OpenPicture& picture,
                 const std::optional<OpenPicture::Scale>& scale) {
    Output& output = context.output;
    switch (picture.kind_) {
    case PictureKind::Wmf: output.WriteControlWord("wmetafile8"); break;
    case PictureKind::Emf: output.WriteControlWord("emfblip"); break;
    default: output.WriteControlWord("jpegblip");
    }
    if (scale) {
        output.WriteControlWord("picscalex", scale->x);
        output.WriteControlWord("picscaley", scale->y);
    }
    WritePictureData(output, *picture.file_, picture.kind_, picture.name_);
}

}  // namespace draftwick
