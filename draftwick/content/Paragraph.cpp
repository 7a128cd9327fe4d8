#include <draftwick/content/Field.h>
#include <draftwick/content/Paragraph.h>
#include <draftwick/content/TextItem.h>
#include <draftwick/content/internal/Writers.h>
#include <draftwick/drawing/Shape.h>
#include <draftwick/drawing/internal/OpenPicture.h>
#include <draftwick/format/Styles.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Bookmark.h>
#include <draftwick/structure/Footnote.h>

namespace draftwick {

std::string Paragraph::StyleName() const { return style_.Name(*Session().collections->paragraphStyles); }

void Paragraph::SetStyleName(std::string_view name) {
    OpenForChange();
    const ParagraphStyles& styles = *Session().collections->paragraphStyles;
    Ref<ParagraphStyles> named;
    named.Set(styles, name);
    if (named) {
        const auto& style = StoredParts(named.In(styles));
        tabStops_.Get(AsOwner()).CopyFrom(style.tabStops);
        borders_.Get(AsOwner()).CopyFrom(style.borders);
        CopyValues(fontFormat_.Get(AsOwner()), style.fontFormat);
        CopyValues(background_.Get(AsOwner()), style.background);
        CopyValues(format_.Get(AsOwner()), style.format);
    }
    style_ = named;
}

std::shared_ptr<ParagraphFormat> Paragraph::Format() { return Share(format_.Get(AsOwner())); }
std::shared_ptr<draftwick::FontFormat> Paragraph::FontFormat() { return Share(fontFormat_.Get(AsOwner())); }
std::shared_ptr<draftwick::Background> Paragraph::Background() { return Share(background_.Get(AsOwner())); }
std::shared_ptr<ParagraphBorders> Paragraph::Borders() { return Share(borders_.Get(AsOwner())); }
std::shared_ptr<draftwick::TabStops> Paragraph::TabStops() { return Share(tabStops_.Get(AsOwner())); }
std::shared_ptr<draftwick::Frame> Paragraph::Frame() { return Share(frame_.Get(AsOwner())); }

std::shared_ptr<Bookmark> Paragraph::AddBookmark(std::string_view name, bool isStart) {
    return Add(currentBookmark_, name, isStart);
}

std::shared_ptr<Footnote> Paragraph::AddFootnote(bool isEndnote) { return Add(currentFootnote_, isEndnote); }

std::shared_ptr<TextItem> Paragraph::AddTextItem(std::string_view text, bool raw) {
    return Add(currentTextItem_, text, raw);
}

void Paragraph::AddText(std::string_view text, std::string_view styleName) {
    detail::Session& session = Session();
    CheckNotFinished();
    const TextStyles& styles = *session.collections->textStyles;
    const TextStyle* style = styleName.empty() ? nullptr : &styles.At(styles.IndexOf(styleName));
    PrepareAdd(TextItem::Describe);
    EmitText(session.writer,
             {.style = style, .fontFormat = nullptr, .paragraphFontFormat = fontFormat_.Find(), .background = nullptr, .border = nullptr},
             text, session.settings);
}

void Paragraph::AddFirstText(std::string_view text) { AddFirst(currentTextItem_, text, false); }

std::shared_ptr<Field> Paragraph::AddField(std::string_view code, std::string_view text) {
    return Add(currentField_, code, text);
}

std::shared_ptr<Shape> Paragraph::AddShape(dwShapeKind kind) {
    CheckCanAddShape();
    return Add(currentShape_, kind);
}

void Paragraph::CheckCanAddShape() const {
    Session();
    CheckNotFinished();
    if (dynamic_cast<Shape*>(&Holder()) != nullptr) {
        RaiseError(
            dwErrShapesCantContainShapes, {},
            "Paragraph.AddShape: the paragraph stands in a text box; add the shape to a paragraph of the "
            "section, or of a cell in the text box");
    }
}

void Paragraph::CheckCanAddPicture() const {
    CheckCanAddShape();
    if (Session().settings.spelling == dwSpellingStandard) return;
    RaiseRuntimeError(
        dwRunInvalidCall, "the classic spelling has no pictures in the line",
        "Paragraph.AddPicture: readers show the data of such a picture as text; set Document.Spelling "
        "to dwSpellingStandard, or use AddShape(dwSKPictureFrame)");
}

std::shared_ptr<Shape> Paragraph::AddPicture(std::string_view file, Measure width, Measure height) {
    CheckCanAddPicture();
    return AddInLine(std::make_shared<const OpenPicture>(Session(), std::string{file}), file, width, height);
}

std::shared_ptr<Shape> Paragraph::AddPictureData(std::string_view bytes, Measure width, Measure height) {
    CheckCanAddPicture();
    return AddInLine(OpenPicture::FromBytes(Session(), bytes), {}, width, height);
}

std::shared_ptr<Shape> Paragraph::AddInLine(std::shared_ptr<const OpenPicture> picture, std::string_view file,
                                            Measure width, Measure height) {
    const dwScaleMode scale = Session().settings.scaleMode;
    const auto [ownWidth, ownHeight] = picture->SizeOr({0, 0});
    Length wide{0}, high{0};
    wide.Set(width, scale);
    high.Set(height, scale);
    const bool hasWidth = wide.Twips() != 0, hasHeight = high.Twips() != 0;
    if (!hasWidth || !hasHeight) {
        if (ownWidth == 0 || ownHeight == 0) {
            RaiseRuntimeError(dwRunDivisionByZero, "the picture has no size that could be scaled",
                              "Paragraph.AddPicture: give a width and a height");
        }
        if (hasWidth) {
            high.Set(wide.Twips() * static_cast<double>(ownHeight) / ownWidth, dwTwips);
        } else if (hasHeight) {
            wide.Set(high.Twips() * static_cast<double>(ownWidth) / ownHeight, dwTwips);
        } else {
            wide.Set(ownWidth, dwTwips);
            high.Set(ownHeight, dwTwips);
        }
    }
    auto shape = Add(currentShape_, dwSKPictureFrame);
    shape->ShowInLine(std::move(picture), file, wide, high);
    return shape;
}

void Paragraph::WriteStart() {
    detail::Session& session = Session();
    if (format_.Find() != nullptr) NoteLists(session.writer.lists, Stored(*format_.Find()));
    Holder().WriteParagraphMark();
    Holder().WriteParagraphPlace(frame_.Find());
    EmitParagraph(session.writer,
                  {.style = style_,
                   .borders = borders_.Find(),
                   .background = background_.Find(),
                   .fontFormat = fontFormat_.Find(),
                   .format = format_.Find(),
                   .tabStops = tabStops_.Find()},
                  session.settings);
}

const Class& Paragraph::Describe() {
    using P = Paragraph;
    static const Class description{
        "Paragraph",
        "{3F3895CF-38AE-4BB8-A68D-6E8A0CAC9FD3}",
        "{20576CD6-514C-4D96-85A8-51F83672EAF9}",
        {
            PropertyOf<&P::CurrentBookmark>("CurrentBookmark").OrNothing(),
            PropertyOf<&P::CurrentField>("CurrentField").OrNothing(),
            PropertyOf<&P::CurrentFootnote>("CurrentFootnote").OrNothing(),
            PropertyOf<&P::CurrentShape>("CurrentShape").OrNothing(),
            PropertyOf<&P::CurrentTextItem>("CurrentTextItem").OrNothing(),
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
            MethodOf<&P::AddPicture>(
                "AddPicture", {{"File", Kind::Path}, {"Width", Variant{0.0}}, {"Height", Variant{0.0}}}),
            MethodOf<&P::AddPictureData>(
                "AddPictureData",
                {{"Bytes", Kind::Bytes}, {"Width", Variant{0.0}}, {"Height", Variant{0.0}}}),
            MethodOf<&P::AddShape>("AddShape", {{"Kind"}}),
            MethodOf<&P::AddText>("AddText", {{"Text"}, {"StyleName", Variant{std::string{}}}}),
            MethodOf<&P::AddTextItem>("AddTextItem", {{"Text"}, {"Raw", Variant{false}}}),
        }};
    return description;
}

}  // namespace draftwick
