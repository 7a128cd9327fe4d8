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
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/structure/Bookmark.h>
#include <draftwick/structure/Cell.h>
#include <draftwick/structure/Columns.h>
#include <draftwick/structure/Footnote.h>
#include <draftwick/structure/Header.h>
#include <draftwick/structure/Table.h>
#include <draftwick/viewer/AutomationObject.h>

#include <algorithm>

namespace draftwick {

template <>
inline constexpr EnumerationRange RangeOf<dwErrCode>{.first = dwErrPropertyOutOfRange};
template <>
inline constexpr EnumerationRange RangeOf<dwRuntimeError>{.last = dwRunInvalidPicture};

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

std::span<const Type* const> Enumerations() {
    static const std::vector<const Type*> all = [] {
        std::vector<const Type*> found{detail::TypeOf<dwErrCode>(), detail::TypeOf<dwRuntimeError>(),
                                       detail::TypeOf<dwBuiltInProperty>(),
                                       detail::TypeOf<dwShapeTextWrap>()};
        const auto add = [&](const Type* type) {
            if (type != nullptr && !type->values.empty()) found.push_back(type);
        };
        for (const Class* one : Classes()) {
            for (const ClassProperty& property : one->properties) add(property.type);
            for (const ClassMethod& method : one->methods) {
                add(method.result);
                for (const Argument& argument : method.arguments) add(argument.type);
            }
        }
        std::sort(found.begin(), found.end(), [](auto* a, auto* b) { return a->name < b->name; });
        found.erase(std::unique(found.begin(), found.end()), found.end());
        return found;
    }();
    return all;
}

// Declared with the other descriptions, but what a document is only this floor knows.
std::span<const ClassProperty> CommonProperties() {
    static const ClassProperty common[] = {
        PropertyOf<&Object::Parent>("Parent").OrNothing(),
        PropertyOf<&Object::Document>("Document").OrNothing(),
    };
    return common;
}

}  // namespace draftwick
