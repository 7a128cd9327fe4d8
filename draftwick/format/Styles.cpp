#include <draftwick/format/Styles.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

ParagraphStyle::ParagraphStyle(const Origin& origin, std::string name, std::int32_t index)
    : Style(origin, std::move(name), index), format_(*this), fontFormat_(*this), borders_(*this),
      background_(*this), tabStops_(*this) {}

std::string ParagraphStyle::NameOf(std::int32_t style) const {
    return style == NoStyle ? std::string{} : Writing().paragraphStyles->At(style).Name();
}

void ParagraphStyle::SetBasedOn(std::string_view name) {
    OpenForChange();
    if (name.empty()) {
        basedOn_ = NoStyle;
        return;
    }
    const ParagraphStyles& styles = *Writing().paragraphStyles;
    const std::int32_t index = styles.IndexOf(name);
    const ParagraphStyle& base = styles.At(index);
    tabStops_.CopyFrom(base.tabStops_);
    borders_.CopyFrom(base.borders_);
    background_.CopyFrom(base.background_);
    fontFormat_.CopyFrom(base.fontFormat_);
    format_.CopyFrom(base.format_);
    basedOn_ = index;
}

void ParagraphStyle::SetNextStyle(std::string_view name) {
    OpenForChange();
    nextStyle_ = name.empty() ? NoStyle : Writing().paragraphStyles->IndexOf(name);
}

TextStyle::TextStyle(const Origin& origin, std::string name, std::int32_t index)
    : Style(origin, std::move(name), index), fontFormat_(*this), border_(*this), background_(*this) {}

std::string TextStyle::BasedOn() const {
    return basedOn_ == NoStyle ? std::string{} : Writing().textStyles->At(basedOn_).Name();
}

void TextStyle::SetBasedOn(std::string_view name) {
    OpenForChange();
    if (name.empty()) {
        basedOn_ = NoStyle;
        return;
    }
    const TextStyles& styles = *Writing().textStyles;
    const std::int32_t index = styles.IndexOf(name);
    const TextStyle& base = styles.At(index);
    background_.CopyFrom(base.background_);
    border_.CopyFrom(base.border_);
    fontFormat_.CopyFrom(base.fontFormat_);
    basedOn_ = index;
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
    static const Class description{"ParagraphStyles",
                                   "{13D60D0E-A54E-41B5-8F57-B3BA994EB2CD}",
                                   "{50A03811-2D31-4110-A7D5-8842966B6EDE}",
                                   {PropertyOf<&S::Count>("Count")},
                                   {ItemsMethod<S>(), MethodOf<&S::Add>("Add", {{"Name"}})}};
    return description;
}

const Class& TextStyles::Describe() {
    using S = TextStyles;
    static const Class description{"TextStyles",
                                   "{169D7FFE-6558-4EC4-B72A-D131DDD6E2AC}",
                                   "{542EAE24-3AB2-43C6-9201-67CBE541AF1A}",
                                   {PropertyOf<&S::Count>("Count")},
                                   {ItemsMethod<S>(), MethodOf<&S::Add>("Add", {{"Name"}})}};
    return description;
}

}  // namespace draftwick
