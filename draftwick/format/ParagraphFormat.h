#pragma once

#include <draftwick/model/Object.h>
#include <draftwick/model/Ref.h>

namespace draftwick {

class Lists;

/// How the lines of a paragraph stand between its indents (RTF \qr, \qc, \qj).
enum dwParagraphAlign : std::int32_t {
    dwAlignLeft = 1,
    dwAlignRight = 2,
    dwAlignCenter = 3,
    dwAlignJustify = 4,
};

/// How the distance between lines is given (RTF \sl and \slmult).
enum dwLineSpacingStyle : std::int32_t {
    dwSpacingMultiple = 1,  ///< in lines, by LineSpacingMultiple
    dwSpacingAtLeast = 2,   ///< at least LineSpacingDistance
    dwSpacingExactly = 3,   ///< exactly LineSpacingDistance
};

/// The layout of a paragraph or paragraph style. Indents are lengths in the document's ScaleMode, spacing is in
/// points. What is on or off is off by default, except WidowOrphanControl. Refuses when what it belongs to refuses.
class DRAFTWICK_API ParagraphFormat final : public detail::Part {
public:
    struct Values {
        rule::Choice<"ParagraphFormat.Align", dwAlignLeft, dwAlignJustify> align{dwAlignLeft};
        rule::Length indentFirst{0};
        rule::Length indentLeft{0};
        rule::Length indentRight{0};
        rule::Points spaceBefore{0};
        rule::Points spaceAfter{0};
        rule::Choice<"ParagraphFormat.LineSpacingStyle", dwSpacingMultiple, dwSpacingExactly>
            lineSpacingStyle{dwSpacingMultiple};
        rule::Lines lineSpacingMultiple{1};
        rule::SignedPoints lineSpacingDistance{0};
        bool keepIntact = false;
        bool keepWithNext = false;
        bool pageBreakBefore = false;
        bool noLineNumbering = false;
        bool suppressHyphen = false;
        bool widowOrphanControl = true;
        rule::Byte<"ParagraphFormat.OutlineLevel", 0, 9> outlineLevel{0};
        rule::Byte<"ParagraphList.Level", 1, 9> listLevel{1};
        rule::Ref<Lists> list{};
        rule::Ref<Lists> listFormat{};
    };

    /// Starts from the defaults and the document's WidowOrphanControl.
    explicit ParagraphFormat(detail::Owner owner);

    /// Default dwAlignLeft. In the standard spelling text whose first letter is Hebrew or Arabic runs from right to
    /// left, and dwAlignLeft is where its lines begin: on the right.
    dwParagraphAlign Align() const { return values_.align; }
    void SetAlign(dwParagraphAlign align) { Change(values_.align, align); }

    /// Of the first line, from IndentLeft; negative to the left (RTF \fi). Length of 16 bits in twips, default 0.
    double IndentFirst() const { return Read(values_.indentFirst); }
    void SetIndentFirst(Measure length) { Change(values_.indentFirst, length); }

    /// From the left margin (RTF \li). Length of 16 bits in twips, default 0.
    double IndentLeft() const { return Read(values_.indentLeft); }
    void SetIndentLeft(Measure length) { Change(values_.indentLeft, length); }

    /// From the right margin (RTF \ri). Length of 16 bits in twips, default 0.
    double IndentRight() const { return Read(values_.indentRight); }
    void SetIndentRight(Measure length) { Change(values_.indentRight, length); }

    /// Points; written in twips, rounded down (RTF \sb). Default 0. Error 6 when these do not fit 32 bits.
    double SpaceBefore() const { return values_.spaceBefore; }
    void SetSpaceBefore(double points) { Change(values_.spaceBefore, points); }

    /// As SpaceBefore (RTF \sa).
    double SpaceAfter() const { return values_.spaceAfter; }
    void SetSpaceAfter(double points) { Change(values_.spaceAfter, points); }

    /// Default dwSpacingMultiple.
    dwLineSpacingStyle LineSpacingStyle() const { return values_.lineSpacingStyle; }
    void SetLineSpacingStyle(dwLineSpacingStyle style) { Change(values_.lineSpacingStyle, style); }

    /// Lines, for dwSpacingMultiple; written in 1/240 of a line, ties to even. Default 1. Error 6 when these do not
    /// fit 32 bits.
    double LineSpacingMultiple() const { return values_.lineSpacingMultiple; }
    void SetLineSpacingMultiple(double lines) { Change(values_.lineSpacingMultiple, lines); }

    /// Points, for the other two styles; written in twips, ties to even. Default 0. Error 6 when these do not fit
    /// 32 bits.
    double LineSpacingDistance() const { return values_.lineSpacingDistance; }
    void SetLineSpacingDistance(double points) { Change(values_.lineSpacingDistance, points); }

    /// No page break within the paragraph (RTF \keep).
    bool KeepIntact() const { return values_.keepIntact; }
    void SetKeepIntact(bool on) { Change(values_.keepIntact, on); }

    /// No page break before the next paragraph (RTF \keepn).
    bool KeepWithNext() const { return values_.keepWithNext; }
    void SetKeepWithNext(bool on) { Change(values_.keepWithNext, on); }

    /// The paragraph begins a page (RTF \pagebb).
    bool PageBreakBefore() const { return values_.pageBreakBefore; }
    void SetPageBreakBefore(bool on) { Change(values_.pageBreakBefore, on); }

    /// The paragraph's lines do not count where lines are numbered (RTF \noline).
    bool NoLineNumbering() const { return values_.noLineNumbering; }
    void SetNoLineNumbering(bool on) { Change(values_.noLineNumbering, on); }

    /// No automatic hyphens in the paragraph (RTF \hyphpar0).
    bool SuppressHyphen() const { return values_.suppressHyphen; }
    void SetSuppressHyphen(bool on) { Change(values_.suppressHyphen, on); }

    /// No single first or last line on a page (RTF \widctlpar, \nowidctlpar). Default: the document's
    /// WidowOrphanControl when the object was created; written where it differs from the document's, in the standard
    /// spelling also where it is on.
    bool WidowOrphanControl() const { return values_.widowOrphanControl; }
    void SetWidowOrphanControl(bool on) { Change(values_.widowOrphanControl, on); }

    /// 1..9 in the document's outline (RTF \outlinelevel), 0 (default) for body text. Error 6 outside of a byte.
    std::int32_t OutlineLevel() const { return values_.outlineLevel; }
    void SetOutlineLevel(std::int32_t level) { Change(values_.outlineLevel, level); }

    /// The list that the paragraph belongs to, in any case of letters; empty (default) for none (RTF \ls). It takes
    /// the list's spelling; dwErrItemNotFound when the document has no such list.
    std::string ListName() const { return NameOfList(values_.list); }
    void SetListName(std::string_view name) { SetList(values_.list, name); }

    /// The list whose look the number takes while it counts on in ListName; empty (default) for its own look. As
    /// ListName.
    std::string ListFormatName() const { return NameOfList(values_.listFormat); }
    void SetListFormatName(std::string_view name) { SetList(values_.listFormat, name); }

    /// 1..9, default 1 (RTF \ilvl). The name in the range error is "ParagraphList.Level". Error 6 outside of a byte.
    std::int32_t ListLevel() const { return values_.listLevel; }
    void SetListLevel(std::int32_t level) { Change(values_.listLevel, level); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    std::string NameOfList(rule::Ref<Lists> list) const;
    void SetList(rule::Ref<Lists>& list, std::string_view name);

    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
