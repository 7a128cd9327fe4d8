#include <draftwick/content/Paragraph.h>
#include <draftwick/content/Run.h>
#include <draftwick/format/BackgroundWriter.h>
#include <draftwick/format/BorderWriter.h>
#include <draftwick/format/FontFormatWriter.h>
#include <draftwick/format/Styles.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

namespace {

/// The words of a run's own look are what differs from a reference, and this is where that is chosen: the run's style
/// if it has one, else its paragraph's format, else the default. A run without a look of its own takes the
/// reference's: nothing differs.
void EmitRunFormat(WritingContext& context, const FontFormat& own, const Paragraph& paragraph,
                   const TextStyle* style) {
    const FontFormat* reference = style != nullptr ? &style->StoredFontFormat() : paragraph.OwnFontFormat();
    EmitFontFormatChanges(context, own.Stored(),
                          reference != nullptr ? reference->Stored() : DefaultFontFormat(context));
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
    const TextStyle* style =
        styleName_.empty() ? nullptr : &context.textStyles->At(context.textStyles->IndexOf(styleName_));
    context.output.WriteGroupStart();
    if (style != nullptr) {
        context.output.WriteControlWord("cs", TextStyleNumber(context, style->StyleIndex()));
    }
    if (const draftwick::FontFormat* own = fontFormat_.Find())
        EmitRunFormat(context, *own, Holder<Paragraph>(), style);
    if (const draftwick::Background* background = background_.Find()) {
        EmitCharacterBackground(context, background->Stored());
    }
    if (const TextBorder* border = border_.Find()) EmitTextBorder(context, border->Stored());
}

}  // namespace draftwick
