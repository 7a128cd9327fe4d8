#include <draftwick/format/Styles.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

ParagraphStyle::ParagraphStyle(const Origin& origin, std::string name, std::int32_t index)
    : Style(origin, std::move(name), index), parts_{.format = ParagraphFormat(AsOwner()),
                                                    .fontFormat = draftwick::FontFormat(AsOwner()),
                                                    .borders = ParagraphBorders(AsOwner()),
                                                    .background = draftwick::Background(AsOwner()),
                                                    .tabStops = draftwick::TabStops(AsOwner())} {}

std::string ParagraphStyle::BasedOn() const {
    return values_.basedOn.Name(*Session().collections->paragraphStyles);
}

void ParagraphStyle::SetBasedOn(std::string_view name) {
    OpenForChange();
    const ParagraphStyles& styles = *Session().collections->paragraphStyles;
    Ref<ParagraphStyles> basedOn;
    basedOn.Set(styles, name);
    if (basedOn) {
        const Parts& base = basedOn.In(styles).parts_;
        parts_.tabStops.CopyFrom(base.tabStops);
        parts_.borders.CopyFrom(base.borders);
        CopyValues(parts_.background, base.background);
        CopyValues(parts_.fontFormat, base.fontFormat);
        CopyValues(parts_.format, base.format);
    }
    values_.basedOn = basedOn;
}

std::string ParagraphStyle::NextStyle() const {
    return values_.nextStyle.Name(*Session().collections->paragraphStyles);
}

void ParagraphStyle::SetNextStyle(std::string_view name) {
    OpenForChange();
    values_.nextStyle.Set(*Session().collections->paragraphStyles, name);
}

std::shared_ptr<ParagraphFormat> ParagraphStyle::Format() { return Share(parts_.format); }
std::shared_ptr<draftwick::FontFormat> ParagraphStyle::FontFormat() { return Share(parts_.fontFormat); }
std::shared_ptr<ParagraphBorders> ParagraphStyle::Borders() { return Share(parts_.borders); }
std::shared_ptr<draftwick::Background> ParagraphStyle::Background() { return Share(parts_.background); }
std::shared_ptr<draftwick::TabStops> ParagraphStyle::TabStops() { return Share(parts_.tabStops); }

TextStyle::TextStyle(const Origin& origin, std::string name, std::int32_t index)
    : Style(origin, std::move(name), index), parts_{.fontFormat = draftwick::FontFormat(AsOwner()),
                                                    .border = TextBorder(AsOwner()),
                                                    .background = draftwick::Background(AsOwner())} {}

std::shared_ptr<draftwick::FontFormat> TextStyle::FontFormat() { return Share(parts_.fontFormat); }
std::shared_ptr<TextBorder> TextStyle::Border() { return Share(parts_.border); }
std::shared_ptr<draftwick::Background> TextStyle::Background() { return Share(parts_.background); }

std::string TextStyle::BasedOn() const { return values_.basedOn.Name(*Session().collections->textStyles); }

void TextStyle::SetBasedOn(std::string_view name) {
    OpenForChange();
    const TextStyles& styles = *Session().collections->textStyles;
    values_.basedOn.Set(styles, name);
    if (!values_.basedOn) return;
    const Parts& base = values_.basedOn.In(styles).parts_;
    CopyValues(parts_.background, base.background);
    CopyValues(parts_.border, base.border);
    CopyValues(parts_.fontFormat, base.fontFormat);
}

std::shared_ptr<ParagraphStyle> ParagraphStyles::Add(std::string_view name) {
    OpenForChange();
    return AddItem(name, "Paragraph Styles");
}

std::shared_ptr<TextStyle> TextStyles::Add(std::string_view name) {
    OpenForChange();
    return AddItem(name, "Text Styles");
}

const Class& ParagraphStyle::Describe() {
    using S = ParagraphStyle;
    static const Class description{"ParagraphStyle",
                                   "{08CA9723-6086-4D43-A48C-E1ECD692FB82}",
                                   "{859E0F37-EC7D-4926-A612-BE04DA67A57C}",
                                   {
                                       PropertyOf<&S::Name>("Name"),
                                       PropertyOf<&S::BasedOn, &S::SetBasedOn>("BasedOn"),
                                       PropertyOf<&S::NextStyle, &S::SetNextStyle>("NextStyle"),
                                       PropertyOf<&S::Format>("Format"),
                                       PropertyOf<&S::FontFormat>("FontFormat"),
                                       PropertyOf<&S::Borders>("Borders"),
                                       PropertyOf<&S::Background>("Background"),
                                       PropertyOf<&S::TabStops>("TabStops"),
                                   },
                                   {}};
    return description;
}

const Class& TextStyle::Describe() {
    using S = TextStyle;
    static const Class description{"TextStyle",
                                   "{155C0D9C-25A1-4E00-83D1-E27AD0037CF4}",
                                   "{6A4E7142-A2A6-4F69-AF4E-DF7477AAFD27}",
                                   {
                                       PropertyOf<&S::Name>("Name"),
                                       PropertyOf<&S::BasedOn, &S::SetBasedOn>("BasedOn"),
                                       PropertyOf<&S::FontFormat>("FontFormat"),
                                       PropertyOf<&S::Border>("Border"),
                                       PropertyOf<&S::Background>("Background"),
                                   },
                                   {}};
    return description;
}

const Class& ParagraphStyles::Describe() {
    using S = ParagraphStyles;
    static const Class description = CollectionOf({"ParagraphStyles",
                                                   "{13D60D0E-A54E-41B5-8F57-B3BA994EB2CD}",
                                                   "{50A03811-2D31-4110-A7D5-8842966B6EDE}",
                                                   {PropertyOf<&S::Count>("Count")},
                                                   {ItemsByKey<S>(), MethodOf<&S::Add>("Add", {{"Name"}})}});
    return description;
}

const Class& TextStyles::Describe() {
    using S = TextStyles;
    static const Class description = CollectionOf({"TextStyles",
                                                   "{169D7FFE-6558-4EC4-B72A-D131DDD6E2AC}",
                                                   "{542EAE24-3AB2-43C6-9201-67CBE541AF1A}",
                                                   {PropertyOf<&S::Count>("Count")},
                                                   {ItemsByKey<S>(), MethodOf<&S::Add>("Add", {{"Name"}})}});
    return description;
}

}  // namespace draftwick
