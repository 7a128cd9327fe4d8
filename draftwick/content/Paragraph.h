#pragma once

#include <draftwick/content/Container.h>
#include <draftwick/drawing/ShapeKind.h>
#include <draftwick/format/Background.h>
#include <draftwick/format/Border.h>
#include <draftwick/format/FontFormat.h>
#include <draftwick/format/Frame.h>
#include <draftwick/format/ParagraphFormat.h>
#include <draftwick/format/TabStops.h>

#include <string>
#include <string_view>

namespace draftwick {

namespace detail {
class OpenPicture;
}

class Bookmark;
class Field;
class Footnote;
class ParagraphStyles;
class Run;
class Shape;
class TextItem;

/// A paragraph (RTF \par). Its settings are written when its first child is added or when it is closed; from then
/// on they and those of its parts refuse ("Paragraph"). It is closed when its container gets another child or is
/// closed itself; then it takes no more children.
class DRAFTWICK_API Paragraph final : public detail::HeldBy<Container> {
public:
    using HeldBy::HeldBy;

    /// The name of a paragraph style; empty (default) for none. Setting it looks the style up (dwErrItemNotFound),
    /// takes its spelling and copies everything that the style has into the paragraph, over what was set before;
    /// only borders on sides that the style does not have stay. What is set afterwards counts. An empty name copies
    /// nothing.
    std::string StyleName() const;
    void SetStyleName(std::string_view name);

    /// Alignment, indents, spacing, page breaks, outline level and list.
    std::shared_ptr<ParagraphFormat> Format();
    /// The look of the paragraph's runs unless they say otherwise. Reading it once makes it the paragraph's own.
    std::shared_ptr<draftwick::FontFormat> FontFormat();
    std::shared_ptr<draftwick::Background> Background();
    std::shared_ptr<ParagraphBorders> Borders();
    std::shared_ptr<draftwick::TabStops> TabStops();
    /// Styles have none.
    std::shared_ptr<draftwick::Frame> Frame();

    /// Adds a run of text: text that is escaped, or with `raw` RTF that is written as it is.
    std::shared_ptr<TextItem> AddTextItem(std::string_view text, bool raw = false);

    /// Adds a run of text at once: what AddTextItem with this text and StyleName would write when the next child comes.
    /// There is no object to change afterwards, which saves most of what a run costs, and CurrentTextItem stays what it
    /// was. dwErrItemNotFound when there is no such text style.
    void AddText(std::string_view text, std::string_view styleName = {});

    /// Adds the start, or the end, of a bookmark at this place of the text.
    std::shared_ptr<Bookmark> AddBookmark(std::string_view name, bool isStart = true);
    /// Adds a field: an instruction and the text that is shown until a reader carries it out.
    std::shared_ptr<Field> AddField(std::string_view code = {}, std::string_view text = {});
    /// Adds a footnote, or an endnote, to this place of the text.
    std::shared_ptr<Footnote> AddFootnote(bool isEndnote = false);
    /// Adds a shape that is anchored in the paragraph. dwErrShapesCantContainShapes in the text box of a shape; in the
    /// cells and notes of a text box there can be shapes.
    std::shared_ptr<Shape> AddShape(dwShapeKind kind);

    /// Adds a picture to the text, in the line (RTF \pict): a picture frame whose InLine is set, with the picture of a
    /// file or of bytes, as ShapeFill::SetPicture and SetPictureData take them. Without a width and a height it has its
    /// own size; with one of them it keeps its proportion. A picture that is not found, of no known kind or damaged is
    /// refused at once, as is one without a size of its own (error 11) unless both are given. Error 5 in the classic
    /// spelling, whose in-line pictures readers show as text.
    std::shared_ptr<Shape> AddPicture(std::string_view file, Measure width = 0, Measure height = 0);
    std::shared_ptr<Shape> AddPictureData(std::string_view bytes, Measure width = 0, Measure height = 0);

    /// The children that were added last, by kind; empty before the first.
    std::shared_ptr<Bookmark> CurrentBookmark() const { return currentBookmark_; }
    std::shared_ptr<Field> CurrentField() const { return currentField_; }
    std::shared_ptr<Footnote> CurrentFootnote() const { return currentFootnote_; }
    std::shared_ptr<Shape> CurrentShape() const { return currentShape_; }
    std::shared_ptr<TextItem> CurrentTextItem() const { return currentTextItem_; }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteStart() override;

private:
    friend class Container;
    friend class Footnote;
    friend class Run;
    friend class Shape;

    void AddFirstText(std::string_view text);
    void CheckCanAddShape() const;
    void CheckCanAddPicture() const;
    std::shared_ptr<Shape> AddInLine(std::shared_ptr<const detail::OpenPicture> picture,
                                     std::string_view file, Measure width, Measure height);
    bool StandsInCell() const { return Holder().StandsInCell(); }

    rule::Ref<ParagraphStyles> style_;
    detail::Lazy<ParagraphFormat> format_;
    detail::Lazy<draftwick::FontFormat> fontFormat_;
    detail::Lazy<draftwick::Background> background_;
    detail::Lazy<ParagraphBorders> borders_;
    detail::Lazy<draftwick::TabStops> tabStops_;
    detail::Lazy<draftwick::Frame> frame_;
    std::shared_ptr<Bookmark> currentBookmark_;
    std::shared_ptr<Field> currentField_;
    std::shared_ptr<Footnote> currentFootnote_;
    std::shared_ptr<Shape> currentShape_;
    std::shared_ptr<TextItem> currentTextItem_;
};

}  // namespace draftwick
