#include <draftwick/content/Field.h>
#include <draftwick/content/Paragraph.h>
#include <draftwick/content/TextItem.h>
#include <draftwick/drawing/Shape.h>
#include <draftwick/format/BackgroundWriter.h>
#include <draftwick/format/BorderWriter.h>
#include <draftwick/format/FontFormatWriter.h>
#include <draftwick/format/Styles.h>
#include <draftwick/model/Class.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/structure/Bookmark.h>
#include <draftwick/structure/Footnote.h>

namespace draftwick {

std::string Paragraph::StyleName() const {
    return style_ == Style::NoStyle ? std::string{} : Writing().paragraphStyles->At(style_).Name();
}

void Paragraph::SetStyleName(std::string_view name) {
    OpenForChange();
    if (name.empty()) {
        style_ = Style::NoStyle;
        return;
    }
    const ParagraphStyles& styles = *Writing().paragraphStyles;
    const std::int32_t index = styles.IndexOf(name);
    const ParagraphStyle& style = styles.At(index);
    tabStops_.Get(*this).CopyFrom(style.StoredTabStops());
    borders_.Get(*this).CopyFrom(style.StoredBorders());
    fontFormat_.Get(*this).CopyFrom(style.StoredFontFormat());
    background_.Get(*this).CopyFrom(style.StoredBackground());
    format_.CopyFrom(style.StoredFormat());
    style_ = index;
}

std::shared_ptr<Bookmark> Paragraph::AddBookmark(std::string_view name, bool isStart) {
    return Add(currentBookmark_, name, isStart);
}

std::shared_ptr<Footnote> Paragraph::AddFootnote(bool isEndnote) { return Add(currentFootnote_, isEndnote); }

std::shared_ptr<TextItem> Paragraph::AddTextItem(std::string_view text, bool raw) {
    return Add(currentTextItem_, text, raw);
}

std::shared_ptr<Field> Paragraph::AddField(std::string_view code, std::string_view text) {
    return Add(currentField_, code, text);
}

std::shared_ptr<Shape> Paragraph::AddShape(dwShapeKind kind) {
    Writing();
    CheckNotFinished();
    if (dynamic_cast<Shape*>(&Holder<Container>()) != nullptr) {
        RaiseError(dwErrShapesCantContainShapes);
    }
    return Add(currentShape_, kind);
}

bool Paragraph::StandsInCell() const {
    const std::shared_ptr<Object> container = Parent();
    return container != nullptr && static_cast<const Container&>(*container).StandsInCell();
}

/// \par\pard\phcol...\s0\brdrt...\shading...\plain\fs24\cf0\sb0\sa0\sl240\slmult1\tx720
void Paragraph::WriteStart() {
    WritingContext& context = Writing();
    auto& container = Holder<Container>();
    container.WriteParagraphMark();
    context.output.WriteControlWord("pard");
    container.WriteParagraphPlace(frame_.Find());
    if (style_ != Style::NoStyle) context.output.WriteControlWord("s", style_);
    if (const ParagraphBorders* borders = borders_.Find()) EmitParagraphBorders(context, *borders);
    if (const draftwick::Background* background = background_.Find())
        EmitBackground(context, background->Stored());
    const draftwick::FontFormat* font = fontFormat_.Find();
    EmitFontFormat(context, font != nullptr ? font->Stored() : DefaultFontFormat(context), true);
    EmitParagraphFormat(context, format_.Stored());
    if (const draftwick::TabStops* tabStops = tabStops_.Find()) EmitTabStops(context, *tabStops);
}

const Class& Paragraph::Describe() {
    using P = Paragraph;
    static const Class description{
        "Paragraph",
        "{3F3895CF-38AE-4BB8-A68D-6E8A0CAC9FD3}",
        "{20576CD6-514C-4D96-85A8-51F83672EAF9}",
        {
            PropertyOf<&P::CurrentBookmark>("CurrentBookmark"),
            PropertyOf<&P::CurrentField>("CurrentField"),
            PropertyOf<&P::CurrentFootnote>("CurrentFootnote"),
            PropertyOf<&P::CurrentShape>("CurrentShape"),
            PropertyOf<&P::CurrentTextItem>("CurrentTextItem"),
            PropertyOf<&P::Emitted>("Emitted"),
            PropertyOf<&P::Finished>("Finished"),
            PropertyOf<&P::Background>("Background"),
            PropertyOf<&P::Borders>("Borders"),
            PropertyOf<&P::FontFormat>("FontFormat"),
            PropertyOf<&P::Format>("Format"),
            PropertyOf<&P::Frame>("Frame"),
            PropertyOf<&P::TabStops>("TabStops"),
            PropertyOf<&P::StyleName, &P::SetStyleName>("StyleName"),
        },
        {
            MethodOf<&P::AddBookmark>("AddBookmark", {{"Name"}, {"IsStart", Variant{true}}}),
            MethodOf<&P::AddField>("AddField",
                                   {{"Code", Variant{std::string{}}}, {"Text", Variant{std::string{}}}}),
            MethodOf<&P::AddFootnote>("AddFootnote", {{"IsEndnote", Variant{false}}}),
            MethodOf<&P::AddShape>("AddShape", {{"Kind"}}),
            MethodOf<&P::AddTextItem>("AddTextItem", {{"Text"}, {"Raw", Variant{false}}}),
        }};
    return description;
}

}  // namespace draftwick
