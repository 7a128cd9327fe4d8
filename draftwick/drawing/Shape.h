#pragma once

#include <draftwick/content/Container.h>
#include <draftwick/drawing/ShapeFill.h>
#include <draftwick/drawing/ShapeKind.h>
#include <draftwick/drawing/ShapeLine.h>
#include <draftwick/drawing/ShapeShadow.h>
#include <draftwick/drawing/ShapeTextFormat.h>
#include <draftwick/drawing/ShapeThreeD.h>
#include <draftwick/drawing/ShapeWordArt.h>

#include <array>
#include <memory>
#include <vector>

namespace draftwick {

namespace detail {
class OpenPicture;
struct ShapeSettings;
}  // namespace detail

class Paragraph;

/// What Left is counted from.
enum dwShapeReferenceX : std::int32_t { dwSRXPage = 1, dwSRXColumn = 2, dwSRXMargin = 3 };
/// What Top is counted from.
enum dwShapeReferenceY : std::int32_t { dwSRYPage = 1, dwSRYParagraph = 2, dwSRYMargin = 3 };
/// How text goes around a shape (RTF \shpwr).
enum dwShapeWrap : std::int32_t {
    dwSWTopBottom = 1,
    dwSWAround = 2,
    dwSWNone = 3,  ///< the shape stands in front of the text or behind it
    dwSWTightly = 4,
    dwSWThrough = 5,
};
/// On which sides of a shape there is text (RTF \shpwrk).
enum dwShapeWrapSides : std::int32_t { dwSWSBoth = 1, dwSWSLeft = 2, dwSWSRight = 3, dwSWSLargest = 4 };
/// How text goes around a shape; no property takes it.
enum dwShapeTextWrap : std::int32_t {
    dwSTWSquare = 1,
    dwSTWTight = 2,
    dwSTWNone = 3,
    dwSTWTopBottom = 4,
    dwSTWThrough = 5,
};

/// A drawing anchored in a paragraph (RTF \shp): a geometric figure, a text box or a picture. Its settings are
/// written when its first paragraph or row is added or when it is closed; from then on they and those of its parts
/// refuse ("Shape"). Lengths are 16 bits in twips.
///
/// In the classic spelling a shape without text takes the place of the mark between its paragraph and the next, which
/// then goes on in the same line: anchor such shapes in the last paragraph, or before one that has a text box.
///
/// Pictures are looked up, judged and, where they must be, converted when the shape is about to be written. The call
/// that would write it is then refused with dwErrPictureFileNotFound (also for a folder, and for a picture frame
/// without a picture), dwErrUnsupportedFileType, error 481 (a file that is not the
/// picture that its name promises) or std::system_error; nothing is written yet, and the name or the file can
/// still be mended.
class DRAFTWICK_API Shape final : public detail::HeldBy<Paragraph, RowContainer> {
public:
    struct Values {
        dwShapeKind kind = dwSKRectangle;
        std::int32_t nextIndex = 0;
        rule::Choice<"Shape.ReferenceX", dwSRXPage, dwSRXMargin> referenceX{dwSRXMargin};
        rule::Choice<"Shape.ReferenceY", dwSRYPage, dwSRYMargin> referenceY{dwSRYMargin};
        rule::Choice<"Shape.Wrap", dwSWTopBottom, dwSWThrough> wrap{dwSWNone};
        rule::Choice<"Shape.WrapSides", dwSWSBoth, dwSWSLargest> wrapSides{dwSWSBoth};
        bool lockAnchor = false;
        rule::FixedPoint rotation{0};
        bool flipV = false;
        bool flipH = false;
        bool behindText = false;
        bool inLine = false;
        std::array<std::int32_t, 10> adjustValues{};
        rule::Length top{0};
        rule::Length left{0};
        rule::Length width{1440};
        rule::Length height{1440};
        rule::Length wrapTop{0};
        rule::Length wrapLeft{0};
        rule::Length wrapRight{0};
        rule::Length wrapBottom{0};
    };

    Shape(const detail::Origin& origin, dwShapeKind kind);
    ~Shape() override;

    /// The geometry; what the shape was added with until it is changed. Not checked: any number is written.
    void SetKind(dwShapeKind kind) { Change(values_.kind, kind); }
    /// The number of the shape in its document, from 1 in the order in which shapes are added.
    std::int32_t Index() const noexcept { return index_; }
    /// The Index of the shape that the text goes on in when this one is full. Default 0: none.
    std::int32_t NextIndex() const { return values_.nextIndex; }
    void SetNextIndex(std::int32_t index) { Change(values_.nextIndex, index); }

    /// From the references to the shape. Default 0.
    double Top() const { return Read(values_.top); }
    void SetTop(Measure length) { Change(values_.top, length); }
    double Left() const { return Read(values_.left); }
    void SetLeft(Measure length) { Change(values_.left, length); }
    /// How wide and how high it is. Default 1440 twips.
    double Width() const { return Read(values_.width); }
    void SetWidth(Measure length) { Change(values_.width, length); }
    double Height() const { return Read(values_.height); }
    void SetHeight(Measure length) { Change(values_.height, length); }
    /// Default dwSRXMargin.
    dwShapeReferenceX ReferenceX() const { return values_.referenceX; }
    void SetReferenceX(dwShapeReferenceX reference) { Change(values_.referenceX, reference); }
    /// Default dwSRYMargin.
    dwShapeReferenceY ReferenceY() const { return values_.referenceY; }
    void SetReferenceY(dwShapeReferenceY reference) { Change(values_.referenceY, reference); }
    /// The shape stays with its paragraph. Default false.
    bool LockAnchor() const { return values_.lockAnchor; }
    void SetLockAnchor(bool on) { Change(values_.lockAnchor, on); }

    /// Default dwSWNone.
    dwShapeWrap Wrap() const { return values_.wrap; }
    void SetWrap(dwShapeWrap wrap) { Change(values_.wrap, wrap); }
    /// Default dwSWSBoth.
    dwShapeWrapSides WrapSides() const { return values_.wrapSides; }
    void SetWrapSides(dwShapeWrapSides sides) { Change(values_.wrapSides, sides); }
    /// From the shape to the text around it. Default 0.
    double WrapTop() const { return Read(values_.wrapTop); }
    void SetWrapTop(Measure length) { Change(values_.wrapTop, length); }
    double WrapLeft() const { return Read(values_.wrapLeft); }
    void SetWrapLeft(Measure length) { Change(values_.wrapLeft, length); }
    double WrapRight() const { return Read(values_.wrapRight); }
    void SetWrapRight(Measure length) { Change(values_.wrapRight, length); }
    double WrapBottom() const { return Read(values_.wrapBottom); }
    void SetWrapBottom(Measure length) { Change(values_.wrapBottom, length); }
    /// Default false: in front of it.
    bool BehindText() const { return values_.behindText; }
    void SetBehindText(bool on) { Change(values_.behindText, on); }

    /// Degrees clockwise, kept as a whole number of 65536ths. In the classic spelling it is written only when it is
    /// above 0, and 3 percent too small. Default 0. Error 6 beyond 32767.
    double Rotation() const { return values_.rotation; }
    void SetRotation(double degrees) { Change(values_.rotation, degrees); }
    /// Mirrored from left to right. Default false.
    bool FlipH() const { return values_.flipH; }
    void SetFlipH(bool on) { Change(values_.flipH, on); }
    /// Mirrored from top to bottom. Default false.
    bool FlipV() const { return values_.flipV; }
    void SetFlipV(bool on) { Change(values_.flipV, on); }
    /// The numbers, 1 to 10, that change the proportions of a geometry; what each means depends on Kind. Default 0: not
    /// written. dwErrPropertyOutOfRange with "Shape.AdjustValues.Index".
    std::int32_t AdjustValues(std::int32_t index) const;
    void SetAdjustValues(std::int32_t index, std::int32_t value);

    /// If the shape is a picture frame, indicates that it's part of a paragraph. Default false. Such a picture is scaled
    /// to Width and Height; in the classic spelling they are taken as twips whatever ScaleMode says: use dwTwips.
    /// Error 11 when the picture has no size of its own that could be scaled.
    bool InLine() const { return values_.inLine; }
    void SetInLine(bool on) { Change(values_.inLine, on); }

    /// The inside, the outline, the shadow, the text box, the depth and the drawn text of the shape. Each is there from
    /// its first use on and refuses when the shape refuses.
    std::shared_ptr<ShapeFill> Fill();
    std::shared_ptr<ShapeLine> Line();
    std::shared_ptr<ShapeShadow> Shadow();
    std::shared_ptr<ShapeTextFormat> TextFormat();
    std::shared_ptr<ShapeThreeD> ThreeD();
    std::shared_ptr<ShapeWordArt> WordArt();

    /// Takes the shape out of its paragraph as long as it is not written, for example because its picture is refused.
    /// From then on it refuses ("Shape"), as it does when it is written already.
    void Remove();

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteStart() override;
    void WriteEnd() override;
    void WriteParagraphMark() override;
    void WriteRowMark() override;

private:
    friend struct detail::Access;
    friend class Paragraph;

    void ShowInLine(std::shared_ptr<const detail::OpenPicture> picture, std::string_view file,
                    rule::Length width, rule::Length height);
    detail::ShapeSettings Settings() const;

    std::int32_t index_;
    Values values_;
    detail::Lazy<ShapeFill> fill_;
    detail::Lazy<ShapeLine> line_;
    detail::Lazy<ShapeShadow> shadow_;
    detail::Lazy<ShapeTextFormat> textFormat_;
    detail::Lazy<ShapeThreeD> threeD_;
    detail::Lazy<ShapeWordArt> wordArt_;
    std::shared_ptr<const detail::OpenPicture> inlinePicture_;  // from the first half to the second
};

}  // namespace draftwick
