#include <draftwick/content/Paragraph.h>
#include <draftwick/drawing/PictureWriter.h>
#include <draftwick/drawing/Shape.h>
#include <draftwick/drawing/ShapeWriter.h>
#include <draftwick/model/Class.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

Shape::Shape(const Origin& origin, dwShapeKind kind)
    : RowContainer(origin), index_(++Writing().lastShapeIndex) {
    values_.kind = kind;
}

Shape::~Shape() = default;

std::int32_t Shape::AdjustValues(std::int32_t index) const {
    CheckRange(index, 1, 10, "Shape.AdjustValues.Index");
    return values_.adjustValues[static_cast<std::size_t>(index - 1)];
}

void Shape::SetAdjustValues(std::int32_t index, std::int32_t value) {
    OpenForChange();
    CheckRange(index, 1, 10, "Shape.AdjustValues.Index");
    values_.adjustValues[static_cast<std::size_t>(index - 1)] = value;
}

void Shape::OpenText() {
    WritingContext& context = Writing();
    if (!context.layout.ShapeTextPending) return;
    context.output.WriteGroupStart();
    context.output.WriteControlWord("shptxt");
    context.layout.ShapeTextPending = false;
}

void Shape::WriteParagraphMark() {
    OpenText();
    RowContainer::WriteParagraphMark();
}

void Shape::WriteRowMark() {
    OpenText();
    RowContainer::WriteRowMark();
}

void Shape::WriteStart() {
    WritingContext& context = Writing();
    ShapePictures pictures = OpenPictures(context, *this);
    outerLayout_ = context.layout;
    EmitShapeStart(context, *this, pictures);
    if (IsInlinePicture()) inlinePicture_ = std::move(pictures.fill);
}

void Shape::WriteEnd() {
    WritingContext& context = Writing();
    EmitShapeEnd(context, *this, inlinePicture_.get());
    inlinePicture_.reset();
    LayoutState& layout = context.layout;
    layout.ShapeTextPending = outerLayout_.ShapeTextPending;
    layout.InlinePicture = outerLayout_.InlinePicture;
    if (Holder<Paragraph>().StandsInCell()) {
        layout.SuppressNextParagraphMark = outerLayout_.SuppressNextParagraphMark;
        layout.TableEndsSection = outerLayout_.TableEndsSection;
    }
}

const Class& Shape::Describe() {
    using S = Shape;
    using V = Values;
    static const Class description{
        "Shape",
        "{4A069CDE-87CE-44BF-BAA4-F08D890673A6}",
        "{8DB7586C-42B1-4E90-9B93-953AF07272E9}",
        {
            PropertyOf<&S::Emitted>("Emitted"),
            PropertyOf<&S::Finished>("Finished"),
            PropertyOf<&S::CurrentParagraph>("CurrentParagraph"),
            PropertyOf<&S::CurrentTable>("CurrentTable"),
            WriteOnlyPropertyOf<&S::SetKind>("Kind"),
            PropertyOf<&S::Index>("Index"),
            PropertyOf<&S::NextIndex, &S::SetNextIndex, &V::nextIndex>("NextIndex"),
            PropertyOf<&S::Top, &S::SetTop, &V::top>("Top"),
            PropertyOf<&S::Left, &S::SetLeft, &V::left>("Left"),
            PropertyOf<&S::Width, &S::SetWidth, &V::width>("Width"),
            PropertyOf<&S::Height, &S::SetHeight, &V::height>("Height"),
            PropertyOf<&S::ReferenceX, &S::SetReferenceX, &V::referenceX>("ReferenceX"),
            PropertyOf<&S::ReferenceY, &S::SetReferenceY, &V::referenceY>("ReferenceY"),
            PropertyOf<&S::LockAnchor, &S::SetLockAnchor, &V::lockAnchor>("LockAnchor"),
            PropertyOf<&S::Wrap, &S::SetWrap, &V::wrap>("Wrap"),
            PropertyOf<&S::WrapSides, &S::SetWrapSides, &V::wrapSides>("WrapSides"),
            PropertyOf<&S::WrapTop, &S::SetWrapTop, &V::wrapTop>("WrapTop"),
            PropertyOf<&S::WrapLeft, &S::SetWrapLeft, &V::wrapLeft>("WrapLeft"),
            PropertyOf<&S::WrapRight, &S::SetWrapRight, &V::wrapRight>("WrapRight"),
            PropertyOf<&S::WrapBottom, &S::SetWrapBottom, &V::wrapBottom>("WrapBottom"),
            PropertyOf<&S::BehindText, &S::SetBehindText, &V::behindText>("BehindText"),
            PropertyOf<&S::Rotation, &S::SetRotation, &V::rotation>("Rotation"),
            PropertyOf<&S::FlipH, &S::SetFlipH, &V::flipH>("FlipH"),
            PropertyOf<&S::FlipV, &S::SetFlipV, &V::flipV>("FlipV"),
            PropertyOf<&S::InLine, &S::SetInLine, &V::inLine>("InLine"),
            PropertyOf<&S::Fill>("Fill"),
            PropertyOf<&S::Line>("Line"),
            PropertyOf<&S::Shadow>("Shadow"),
            PropertyOf<&S::TextFormat>("TextFormat"),
            PropertyOf<&S::ThreeD>("ThreeD"),
            PropertyOf<&S::WordArt>("WordArt"),
        },
        {
            MethodOf<&S::AdjustValues>("AdjustValues", {{"Index"}}),
            MethodOf<&S::SetAdjustValues>("SetAdjustValues", {{"Index"}, {"Value"}}),
            MethodOf<&S::AddParagraph>("AddParagraph"),
            MethodOf<&S::AddTable>("AddTable"),
        }};
    return description;
}

}  // namespace draftwick
