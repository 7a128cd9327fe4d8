#include <draftwick/base/WritingContext.h>
#include <draftwick/content/Paragraph.h>
#include <draftwick/content/Run.h>
#include <draftwick/format/BackgroundWriter.h>
#include <draftwick/format/BorderWriter.h>
#include <draftwick/format/FontFormatWriter.h>
#include <draftwick/format/Styles.h>

namespace draftwick {

namespace {

/// The words of a run's look are the difference between two formats; this is where the two are chosen. A run
/// without a style differs from its paragraph, or from the default where the paragraph has no format; a run with
/// one differs from the style.
void EmitRunFormat(WritingContext& context, const FontFormat* own, const FontFormat* ofParagraph,
                   const TextStyle* style) {
    if (own == nullptr) return;  // the paragraph's or the style's format: nothing differs
    if (style != nullptr) {
        EmitFontFormatChanges(context, own->Stored(), style->StoredFontFormat().Stored());
    } else if (ofParagraph != nullptr) {
        EmitFontFormatChanges(context, own->Stored(), ofParagraph->Stored());
    } else {
        EmitFontFormatChanges(context, own->Stored(), DefaultFontFormat(context));
    }
}

}  // namespace

std::shared_ptr<draftwick::FontFormat> Run::FontFormat() {
    if (fontFormat_.Find() == nullptr) {
        const std::shared_ptr<Object> parent = Parent();
        const auto* paragraph = static_cast<const Paragraph*>(parent.get());
        const draftwick::FontFormat* format = paragraph == nullptr ? nullptr : paragraph->OwnFontFormat();
        if (format != nullptr) return Share(fontFormat_.Get(*this, format->Stored()));
    }
    return Share(fontFormat_.Get(*this));
}

void Run::WriteRunStart() {
    WritingContext& context = Writing();
    const std::shared_ptr<Object> parent = RequireParent();
    const TextStyle* style =
        styleName_.empty() ? nullptr : &context.textStyles->At(context.textStyles->IndexOf(styleName_));
    context.output.WriteGroupStart();
    if (style != nullptr) {
        context.output.WriteControlWord("cs", TextStyleNumber(context, style->StyleIndex()));
    }
    EmitRunFormat(context, fontFormat_.Find(), static_cast<const Paragraph&>(*parent).OwnFontFormat(), style);
    if (const draftwick::Background* background = background_.Find()) {
        EmitCharacterBackground(context, background->Stored());
    }
    if (const TextBorder* border = border_.Find()) EmitTextBorder(context, border->Stored());
}

}  // namespace draftwick
