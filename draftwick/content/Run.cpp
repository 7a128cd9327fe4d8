#include <draftwick/content/Paragraph.h>
#include <draftwick/content/Run.h>
#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

std::shared_ptr<draftwick::FontFormat> Run::FontFormat() {
    if (fontFormat_.Find() == nullptr) {
        // A run that is written, or whose document is gone, has no holder that can be relied on.
        const bool held = !Finished() && SharedSession()->document != nullptr;
        const std::shared_ptr<Object> parent = held ? nullptr : Parent();
        const auto* paragraph = held ? &Holder() : static_cast<const Paragraph*>(parent.get());
        const draftwick::FontFormat* format = paragraph == nullptr ? nullptr : paragraph->fontFormat_.Find();
        if (format != nullptr) return Share(fontFormat_.Get(AsOwner(), Stored(*format)));
    }
    return Share(fontFormat_.Get(AsOwner()));
}

std::shared_ptr<draftwick::Background> Run::Background() { return Share(background_.Get(AsOwner())); }
std::shared_ptr<TextBorder> Run::Border() { return Share(border_.Get(AsOwner())); }

RunSettings Run::Settings() const {
    const TextStyle* style = nullptr;
    if (!styleName_.empty()) {
        const TextStyles& styles = *Session().collections->textStyles;
        style = &styles.At(styles.IndexOf(styleName_));
    }
    return {.style = style,
            .fontFormat = fontFormat_.Find(),
            .paragraphFontFormat = Holder().fontFormat_.Find(),
            .background = background_.Find(),
            .border = border_.Find()};
}

}  // namespace draftwick
