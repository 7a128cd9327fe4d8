#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/Access.h>

namespace draftwick {

namespace {

/// What holds for the text of a paragraph whose runs say nothing.
FontFormat::Values InParagraph(const RunSettings& run, const DocumentSettings& document) {
    return run.paragraphFontFormat != nullptr ? Stored(*run.paragraphFontFormat)
                                              : DefaultFontFormat(document);
}

/// The words of a run's own look are what differs from a reference, and this is where that is chosen: the run's style
/// if it has one, else its paragraph's format, else the default. A run without a look of its own takes the
/// reference's: nothing differs.
void EmitClassicFormat(RtfWriter& writer, const RunSettings& run, const DocumentSettings& document) {
    if (run.fontFormat != nullptr) {
        const FontFormat::Values reference =
            run.style != nullptr ? Stored(StoredParts(*run.style).fontFormat) : InParagraph(run, document);
        EmitFontFormatChanges(writer, Stored(*run.fontFormat), reference);
    }
    if (run.background != nullptr) EmitCharacterBackground(writer, Stored(*run.background));
    if (run.border != nullptr) EmitTextBorder(writer, Stored(*run.border));
}

/// The run's own look, or its style's: what differs from the paragraph, for readers that do not apply styles, and what
/// differs from the style, for those that do.
void EmitStandardFormat(RtfWriter& writer, const RunSettings& run, const Scripts& scripts,
                        const DocumentSettings& document) {
    const auto* style = run.style != nullptr ? &StoredParts(*run.style) : nullptr;
    const FontFormat::Values reference = InParagraph(run, document);
    const FontFormat::Values* styleFont = style != nullptr ? &Stored(style->fontFormat) : nullptr;
    const FontFormat::Values& format = run.fontFormat != nullptr ? Stored(*run.fontFormat)
                                       : styleFont != nullptr    ? *styleFont
                                                                 : reference;
    EmitFontFormatChanges(writer, format, reference, styleFont);
    const auto background = [&](const Background& part) {
        EmitCharacterBackground(writer, Stored(part), style ? &Stored(style->background) : nullptr);
    };
    const auto border = [&](const TextBorder& part) {
        EmitTextBorder(writer, Stored(part), style ? &Stored(style->border) : nullptr);
    };
    if (run.background != nullptr) {
        background(*run.background);
    } else if (style != nullptr) {
        background(style->background);
    }
    if (run.border != nullptr) {
        border(*run.border);
    } else if (style != nullptr) {
        border(style->border);
    }
    EmitScripts(writer, scripts, format);
}

}  // namespace

void EmitDirection(RtfWriter& writer, const Scripts& scripts) {
    Direction& direction = writer.layout.direction;
    if (direction != Direction::None || scripts.direction == Direction::None) return;
    direction = scripts.direction;
    if (direction != Direction::RightToLeft) return;
    writer.Word("rtlpar");
    if (writer.layout.AlignsLeft) writer.Word("qr");  // its lines begin on the right
}

void EmitRunFormat(RtfWriter& writer, const RunSettings& run, const Scripts& scripts,
                   const DocumentSettings& document) {
    if (run.style != nullptr) writer.Word("cs", TextStyleNumber(writer, run.style->StyleIndex()));
    if (writer.Standard()) {
        EmitStandardFormat(writer, run, scripts, document);
    } else {
        EmitClassicFormat(writer, run, document);
    }
}

void EmitTextItem(RtfWriter& writer, const RunSettings& run, std::string_view text, const Scripts& scripts,
                  const DocumentSettings& document) {
    EmitDirection(writer, scripts);
    writer.Group([&] {
        EmitRunFormat(writer, run, scripts, document);
        writer.Raw(text);
    });
}

}  // namespace draftwick
