#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>
#include <draftwick/base/internal/Enumeration.h>
#include <draftwick/base/internal/Required.h>
#include <draftwick/drawing/internal/OpenPicture.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/rtf/BlockWriter.h>
#include <draftwick/rtf/FileInMemory.h>
#include <draftwick/rtf/UniqueFile.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace draftwick {

namespace {

using platform::PictureKind;

bool IsStandard(const Session& session) { return session.settings.spelling == dwSpellingStandard; }

std::int32_t PercentOf(std::int32_t twips, std::int32_t himetric) {
    if (himetric == 0) {
        RaiseRuntimeError(
            dwRunDivisionByZero, "the picture has no size that could be scaled",
            "Shape.InLine: the metafile has no size of its own; use one that has, or a shape that is "
            "not in the line");
    }
    return RoundDown(static_cast<double>(TwipsToHimetric(twips)) / himetric * 100);
}

std::int32_t HimetricToTwips(std::int32_t himetric) {
    return static_cast<std::int32_t>(std::min(std::lround(himetric * 1440.0 / 2540), 0x7FFFFFFFL));
}

bool StartsWith(std::string_view head, std::string_view signature, std::size_t at = 0) {
    return head.size() >= at && head.substr(at).starts_with(signature);
}

/// What bytes are according to the first of them; nothing for a metafile without a size, which has no signature.
std::optional<PictureKind> PictureTypeFromHead(std::string_view head) {
    if (StartsWith(head, "\xFF\xD8\xFF")) return PictureKind::Jpeg;
    if (StartsWith(head, "\x89PNG\r\n\x1A\n")) return PictureKind::Png;
    if (StartsWith(head, "GIF8")) return PictureKind::Gif;
    if (StartsWith(head, "BM")) return PictureKind::Bmp;
    if (StartsWith(head, std::string_view{"\x01\0\0\0", 4}) && StartsWith(head, " EMF", 40))
        return PictureKind::Emf;
    if (IsPlaceable({reinterpret_cast<const unsigned char*>(head.data()), head.size()}))
        return PictureKind::Wmf;
    return {};
}

std::optional<PictureKind> PictureTypeFromContent(platform::FileSystem& files, const std::string& fileName) {
    std::error_code error;
    const auto file = files.OpenForReading(fileName, error);
    char bytes[44];
    std::size_t size = 0;
    while (file != nullptr && !error && size < sizeof bytes) {
        const std::size_t more = file->Read(bytes + size, sizeof bytes - size, error);
        if (more == 0) break;
        size += more;
    }
    return PictureTypeFromHead({bytes, error ? 0 : size});
}

/// What bytes without a name are. Metafiles without a size begin with their type, in memory or on disk, and the length
/// of their header.
std::optional<PictureKind> PictureTypeFromBytes(std::string_view bytes, bool standard) {
    for (const char type : {'\1', '\2'}) {
        if (StartsWith(bytes, std::string{type, '\0', '\x09', '\0'})) return PictureKind::Wmf;
    }
    const std::optional<PictureKind> kind = PictureTypeFromHead(bytes);
    return kind == PictureKind::Png && !standard ? std::nullopt : kind;
}

/// What a file holds according to the end of its name; nothing when no picture has such a name. Classic knows small
/// letters alone, and no PNG.
std::optional<PictureKind> PictureTypeFromName(std::string fileName, bool standard) {
    if (standard) {
        std::transform(fileName.begin(), fileName.end(), fileName.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
        if (fileName.ends_with(".png")) return PictureKind::Png;
    }
    static constexpr std::pair<std::string_view, PictureKind> Endings[] = {
        {".jpg", PictureKind::Jpeg}, {".jpeg", PictureKind::Jpeg}, {".bmp", PictureKind::Bmp},
        {".emf", PictureKind::Emf},  {".wmf", PictureKind::Wmf},   {".gif", PictureKind::Gif},
    };
    for (const auto& [ending, kind] : Endings) {
        if (fileName.ends_with(ending)) return kind;
    }
    return {};
}

std::string NameOfKind(PictureKind kind) {
    for (const EnumerationValue& value : ValuesOf<PictureKind>::All) {
        if (value.value == static_cast<std::int32_t>(kind)) return std::string{value.name};
    }
    return {};
}

std::string AdviceOnKind(const std::string& what, bool standard) {
    return what + " is of no kind that can be shown: "
           + (standard ? "JPEG, PNG, GIF, BMP, EMF, WMF"
                       : ".jpg, .jpeg, .gif, .bmp, .emf, .wmf, in lower case; PNG and capitals need "
                         "Document.Spelling = "
                         "dwSpellingStandard");
}

}  // namespace

bool detail::IsPlaceable(std::span<const unsigned char> bytes) {
    static constexpr unsigned char Key[] = {0xD7, 0xCD, 0xC6, 0x9A};
    return bytes.size() >= sizeof Key && std::equal(std::begin(Key), std::end(Key), bytes.begin());
}

OpenPicture::OpenPicture(const Session& session, const std::string& fileName) {
    platform::FileSystem& files = Required(session.platform.files, "files");
    if (!files.Exists(fileName)) {
        RaiseError(dwErrPictureFileNotFound, {fileName},
                   fileName.empty()
                       ? "the picture frame has no picture: set Shape.Fill.Picture, or call "
                         "Shape.Remove"
                       : "there is no file '" + fileName + "': set another name, or call Shape.Remove");
    }
    const bool standard = IsStandard(session);
    std::optional<PictureKind> kind;
    if (standard) kind = PictureTypeFromContent(files, fileName);
    if (!kind) kind = PictureTypeFromName(fileName, standard);
    if (!kind) RaiseError(dwErrUnsupportedFileType, {fileName}, AdviceOnKind("'" + fileName + "'", standard));
    kind_ = *kind;
    Load(session.platform, files, fileName, session.settings.bodyInMemory);
}

std::shared_ptr<const OpenPicture> OpenPicture::FromBytes(const Session& session, std::string_view bytes) {
    const std::string name = "(bytes)";
    const std::optional<PictureKind> kind = PictureTypeFromBytes(bytes, IsStandard(session));
    if (!kind) {
        RaiseError(dwErrUnsupportedFileType, {name},
                   AdviceOnKind("ShapeFill.PictureData", IsStandard(session)));
    }
    const std::shared_ptr<OpenPicture> picture(new OpenPicture);
    picture->kind_ = *kind;
    FileInMemory file{std::string{bytes}};
    picture->Load(session.platform, file, name, true);
    return picture;
}

void OpenPicture::Load(const platform::Platform& platform, platform::FileSystem& files,
                       const std::string& name, bool inMemory) {
    std::error_code error;
    const auto picture = Required(platform.pictures, "pictures").Load(files, name, kind_, error);
    if (error == platform::PictureError::Unreadable) {
        const auto actual = PictureTypeFromContent(files, name);
        const bool other = actual && *actual != kind_;
        RaiseRuntimeError(dwRunInvalidPicture, name,
                          "'" + name + "' is "
                              + (other ? "no " + NameOfKind(kind_) + " but " + NameOfKind(*actual)
                                             + ": give it the extension of what it is"
                                       : "damaged or no " + NameOfKind(kind_)
                                             + ": use another file, or call Shape.Remove"));
    }
    if (picture == nullptr) RaiseFileError(error, "read", name);
    width_ = picture->Width();
    height_ = picture->Height();
    if (kind_ == PictureKind::Gif || kind_ == PictureKind::Bmp) {
        Convert(platform, *picture, inMemory);
    } else {
        Read(files, name);
    }
}

void OpenPicture::Convert(const platform::Platform& platform, const platform::Picture& picture,
                          bool inMemory) {
    if (inMemory) {
        FileInMemory metafile;
        Record(*platform.pictures, picture, metafile, "(memory)");
        return;
    }
    platform::FileSystem& files = *platform.files;
    // The folder is the environment's, not the document's.
    const std::string name =
        CreateUniqueFile(files, Required(platform.environment, "environment").TempFolder(), "~DWGC", ".tmp",
                         platform::Creation::ExclusivePrivate)
            .name;
    std::error_code ignored;
    try {
        Record(*platform.pictures, picture, files, name);
    } catch (...) {
        files.Delete(name, ignored);
        throw;
    }
    files.Delete(name, ignored);
}

void OpenPicture::Record(platform::Pictures& service, const platform::Picture& picture,
                         platform::FileSystem& files, const std::string& name) {
    const double twipsPerPixel = service.TwipsPerPixel();
    std::error_code error;
    service.Record(picture, HimetricToPixels(width_, twipsPerPixel), HimetricToPixels(height_, twipsPerPixel),
                   files, name, error);
    if (error) RaiseFileError(error, "write", name);
    kind_ = PictureKind::Emf;
    Read(files, name);
}

void OpenPicture::Read(platform::FileSystem& files, const std::string& name) {
    constexpr std::size_t BlockSize = std::size_t{32} * 1024;
    std::error_code error;
    const std::uint64_t length = files.Length(name, error);
    if (error) RaiseFileError(error, "read", name);
    bytes_.reserve(static_cast<std::size_t>(length) + BlockSize);
    const auto file = files.OpenForReading(name, error);
    for (std::size_t have = 0; !error;) {
        bytes_.resize(have + BlockSize);
        const std::size_t more = file->Read(reinterpret_cast<char*>(bytes_.data()) + have, BlockSize, error);
        have += more;
        bytes_.resize(have);
        if (more == 0) break;
    }
    if (error) RaiseFileError(error, "read", name);
}

PictureSize OpenPicture::SizeOr(const PictureSize& other) const noexcept {
    if (width_ == 0 || height_ == 0) return other;
    return {HimetricToTwips(width_), HimetricToTwips(height_)};
}

std::optional<OpenPicture::Scale> OpenPicture::ScaleTo(std::int32_t width, std::int32_t height) const {
    if (width <= 0 || height <= 0) return {};
    return Scale{PercentOf(width, width_), PercentOf(height, height_)};
}

}  // namespace draftwick
