#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/Access.h>

namespace draftwick {

namespace {

/// The words of a run's own look are what differs from a reference, and this is where that is chosen: the run's style
/// if it has one, else its paragraph's format, else the default. A run without a look of its own takes the
/// reference's: nothing differs.
FontFormat::Values ReferenceOf(const RunSettings& run, const DocumentSettings& document) {
    if (run.style != nullptr) return Stored(StoredParts(*run.style).fontFormat);
    return run.paragraphFontFormat != nullptr ? Stored(*run.paragraphFontFormat)
                                              : DefaultFontFormat(document);
}

}  // namespace

void EmitRunFormat(RtfWriter& writer, const RunSettings& run, const DocumentSettings& document) {
    if (run.style != nullptr) writer.Word("cs", TextStyleNumber(writer, run.style->StyleIndex()));
    if (run.fontFormat != nullptr)
        EmitFontFormatChanges(writer, Stored(*run.fontFormat), ReferenceOf(run, document));
    if (run.background != nullptr) EmitCharacterBackground(writer, Stored(*run.background));
    if (run.border != nullptr) EmitTextBorder(writer, Stored(*run.border));
}

void EmitTextItem(RtfWriter& writer, const RunSettings& run, std::string_view text,
                  const DocumentSettings& document) {
    writer.Group([&] {
        EmitRunFormat(writer, run, document);
        writer.Raw(text);
    });
}

}  // namespace draftwick
