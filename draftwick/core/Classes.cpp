#include <draftwick/content/Field.h>
#include <draftwick/content/Paragraph.h>
#include <draftwick/content/Section.h>
#include <draftwick/content/Special.h>
#include <draftwick/content/TextItem.h>
#include <draftwick/core/Classes.h>
#include <draftwick/core/Document.h>
#include <draftwick/core/Properties.h>
#include <draftwick/drawing/Shape.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/format/Lists.h>
#include <draftwick/format/Styles.h>
#include <draftwick/structure/Bookmark.h>
#include <draftwick/structure/Cell.h>
#include <draftwick/structure/Columns.h>
#include <draftwick/structure/Footnote.h>
#include <draftwick/structure/Header.h>
#include <draftwick/structure/Table.h>
#include <draftwick/viewer/AutomationObject.h>

namespace draftwick {

// A list that is written down, not one that classes register in: a static library would lose those that nobody
// refers to.
std::span<const Class* const> Classes() {
    static const Class* const all[] = {
        &AutomationObject::Describe(),
        &Background::Describe(),
        &Bookmark::Describe(),
        &Cell::Describe(),
        &CellBorder::Describe(),
        &CellBorders::Describe(),
        &Column::Describe(),
        &Columns::Describe(),
        &Document::Describe(),
        &Field::Describe(),
        &Font::Describe(),
        &FontFormat::Describe(),
        &Fonts::Describe(),
        &Footnote::Describe(),
        &Frame::Describe(),
        &Header::Describe(),
        &List::Describe(),
        &ListLevel::Describe(),
        &Lists::Describe(),
        &PageBorder::Describe(),
        &PageBorders::Describe(),
        &Paragraph::Describe(),
        &ParagraphBorder::Describe(),
        &ParagraphBorders::Describe(),
        &ParagraphFormat::Describe(),
        &ParagraphStyle::Describe(),
        &ParagraphStyles::Describe(),
        &Properties::Describe(),
        &Property::Describe(),
        &Section::Describe(),
        &Shape::Describe(),
        &ShapeFill::Describe(),
        &ShapeLine::Describe(),
        &ShapeShadow::Describe(),
        &ShapeTextFormat::Describe(),
        &ShapeThreeD::Describe(),
        &ShapeWordArt::Describe(),
        &Special::Describe(),
        &TabStop::Describe(),
        &TabStops::Describe(),
        &Table::Describe(),
        &TableBorder::Describe(),
        &TableBorders::Describe(),
        &TextBorder::Describe(),
        &TextItem::Describe(),
        &TextStyle::Describe(),
        &TextStyles::Describe(),
    };
    return all;
}

}  // namespace draftwick
