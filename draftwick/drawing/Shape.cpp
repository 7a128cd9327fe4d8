#include <draftwick/content/Paragraph.h>
#include <draftwick/content/internal/Members.h>
#include <draftwick/drawing/Shape.h>
#include <draftwick/drawing/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

namespace {

template <class Part>
const typename Part::Values& OwnOrDefault(const Lazy<Part>& part) {
    static const typename Part::Values defaults{};
    return part.Find() != nullptr ? Stored(*part.Find()) : defaults;
}

}  // namespace

Shape::Shape(const Origin& origin, dwShapeKind kind) : HeldBy(origin), index_(++Session().lastShapeIndex) {
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

std::shared_ptr<ShapeFill> Shape::Fill() { return Share(fill_.Get(AsOwner())); }
std::shared_ptr<ShapeLine> Shape::Line() { return Share(line_.Get(AsOwner())); }
std::shared_ptr<ShapeShadow> Shape::Shadow() { return Share(shadow_.Get(AsOwner())); }
std::shared_ptr<ShapeTextFormat> Shape::TextFormat() { return Share(textFormat_.Get(AsOwner())); }
std::shared_ptr<ShapeThreeD> Shape::ThreeD() { return Share(threeD_.Get(AsOwner())); }
std::shared_ptr<ShapeWordArt> Shape::WordArt() { return Share(wordArt_.Get(AsOwner())); }

void Shape::Remove() {
    OpenForChange();
    Withdraw();
    const auto self = Self();
    Holder().currentShape_.reset();
}

void Shape::ShowInLine(std::shared_ptr<const OpenPicture> picture, std::string_view file, Length width,
                       Length height) {
    ShapeFill& fill = fill_.Get(AsOwner());
    fill.values_.picture = file;
    fill.values_.pictureData = std::move(picture);
    values_.inLine = true;
    values_.width = width;
    values_.height = height;
}

ShapeSettings Shape::Settings() const {
    return {.index = index_,
            .shape = values_,
            .fill = OwnOrDefault(fill_),
            .line = OwnOrDefault(line_),
            .shadow = OwnOrDefault(shadow_),
            .textFormat = OwnOrDefault(textFormat_),
            .threeD = OwnOrDefault(threeD_),
            .wordArt = OwnOrDefault(wordArt_),
            .width = Width(),
            .height = Height()};
}

void Shape::WriteParagraphMark() {
    EmitShapeTextStart(Writer());
    RowContainer::WriteParagraphMark();
}

void Shape::WriteRowMark() {
    EmitShapeTextStart(Writer());
    RowContainer::WriteRowMark();
}

void Shape::WriteStart() {
    const ShapeSettings settings = Settings();
    ShapePictures pictures = OpenPictures(Session(), settings);
    Writer().EnterStory();
    EmitShapeStart(Writer(), settings, pictures);
    if (settings.IsInlinePicture()) inlinePicture_ = std::move(pictures.fill);
}

void Shape::WriteEnd() {
    EmitShapeEnd(Writer(), Settings(), inlinePicture_.get());
    inlinePicture_.reset();
    const LayoutState outer = Writer().LeaveStory();
    if (Writer().Standard()) return;
    LayoutState& layout = Writer().layout;
    layout.ShapeTextPending = outer.ShapeTextPending;
    layout.InlinePicture = outer.InlinePicture;
    if (Holder().StandsInCell()) {
        layout.SuppressNextParagraphMark = outer.SuppressNextParagraphMark;
        layout.TableEndsSection = outer.TableEndsSection;
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
            PropertyOf<&S::CurrentParagraph>("CurrentParagraph").OrNothing(),
            PropertyOf<&S::CurrentTable>("CurrentTable").OrNothing(),
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
            IndexedPropertyOf<&S::AdjustValues, &S::SetAdjustValues>("AdjustValues", {{"Index"}}),
            PropertyOf<&S::InLine, &S::SetInLine, &V::inLine>("InLine"),
            PropertyOf<&S::Fill>("Fill"),
            PropertyOf<&S::Line>("Line"),
            PropertyOf<&S::Shadow>("Shadow"),
            PropertyOf<&S::TextFormat>("TextFormat"),
            PropertyOf<&S::ThreeD>("ThreeD"),
            PropertyOf<&S::WordArt>("WordArt"),
        },
        {
            AddParagraphOf<S>(),
            MethodOf<&S::AddTable>("AddTable"),
            MethodOf<&S::Remove>("Remove"),
        }};
    return description;
}

}  // namespace draftwick
