#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/Access.h>

namespace draftwick {

namespace {

using V = FontFormat::Values;

/// Whether the run has nothing of its own and its paragraph no look of its own.
bool IsPlain(const RunSettings& run) {
    return run.fontFormat == nullptr && run.background == nullptr && run.border == nullptr
           && run.paragraphFontFormat == nullptr;
}

/// What the run's own look is told from: its style in the classic spelling, else its paragraph's format, else the
/// default, for which there is null.
const V* ReferenceOf(const RunSettings& run, bool standard) {
    if (!standard && run.style != nullptr) return &Stored(StoredParts(*run.style).fontFormat);
    return run.paragraphFontFormat != nullptr ? &Stored(*run.paragraphFontFormat) : nullptr;
}

/// A run without a look of its own takes the reference's: nothing differs.
void EmitClassicFormat(RtfWriter& writer, const RunSettings& run, const DocumentSettings& document) {
    if (run.fontFormat != nullptr)
        EmitFontFormatChanges(writer, Stored(*run.fontFormat), ReferenceOf(run, false), document);
    if (run.background != nullptr) EmitCharacterBackground(writer, Stored(*run.background));
    if (run.border != nullptr) EmitTextBorder(writer, Stored(*run.border));
}

/// The run's own look, or its style's: what differs from the paragraph, for readers that do not apply styles, and what
/// differs from the style, for those that do.
void EmitStandardFormat(RtfWriter& writer, const RunSettings& run, const DocumentSettings& document) {
    const auto* style = run.style != nullptr ? &StoredParts(*run.style) : nullptr;
    if (run.fontFormat != nullptr || style != nullptr) {
        EmitFontFormatChanges(writer, Stored(run.fontFormat != nullptr ? *run.fontFormat : style->fontFormat),
                              ReferenceOf(run, true), document,
                              style != nullptr ? &Stored(style->fontFormat) : nullptr);
    }
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
}

void EmitLook(RtfWriter& writer, const RunSettings& run, const DocumentSettings& document) {
    if (run.style != nullptr) writer.Word("cs", TextStyleNumber(writer, run.style->StyleIndex()));
    if (writer.Standard()) {
        EmitStandardFormat(writer, run, document);
    } else {
        EmitClassicFormat(writer, run, document);
    }
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
    if (!IsPlain(run)) {
        EmitLook(writer, run, document);
    } else if (run.style != nullptr) {
        // All runs with nothing but this style have the same words.
        const auto style = static_cast<std::size_t>(run.style->StyleIndex());
        writer.RepeatWords(writer.styledRuns, style, [&] { EmitLook(writer, run, document); });
    }
    if (!scripts.Any()) return;
    const V* const reference = ReferenceOf(run, true);
    EmitScripts(writer, scripts,
                run.fontFormat != nullptr ? Stored(*run.fontFormat)
                : run.style != nullptr    ? Stored(StoredParts(*run.style).fontFormat)
                : reference != nullptr    ? *reference
                                          : DefaultFontFormat(document));
}

void EmitTextItem(RtfWriter& writer, const RunSettings& run, std::string_view text, Letters letters,
                  const DocumentSettings& document) {
    const Scripts scripts = writer.Standard() ? ScriptsOf(text, letters) : Scripts{};
    EmitDirection(writer, scripts);
    writer.Group([&] {
        if (!IsPlain(run) || run.style != nullptr || scripts.Any())
            EmitRunFormat(writer, run, scripts, document);
        writer.output.WriteText(text, letters);
    });
}

void EmitText(RtfWriter& writer, const RunSettings& run, std::string_view text,
              const DocumentSettings& document) {
    writer.WithEscaped(text, [&](std::string_view escaped, Letters letters) {
        EmitTextItem(writer, run, escaped, letters, document);
    });
}

}  // namespace draftwick
