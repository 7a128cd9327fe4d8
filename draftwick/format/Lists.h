#pragma once

#include <draftwick/format/FontFormat.h>
#include <draftwick/model/Collection.h>

#include <array>

namespace draftwick {

/// How the number of a list level is written (RTF \levelnfc).
enum dwListNumberStyle : std::int32_t {
    dwLNSCardinal = 1,  ///< one, two, three
    dwLNSDecimal = 2,
    dwLNSLetterUpper = 3,
    dwLNSLetterLower = 4,
    dwLNSRomanUpper = 5,
    dwLNSRomanLower = 6,
    dwLNSOrdinal = 7,      ///< 1st, 2nd, 3rd
    dwLNSOrdinalText = 8,  ///< first, second, third
    dwLNSDecimalLeadingZero = 9,
    dwLNSBullet = 10,  ///< no number: the level's Format is the bullet
};
/// How the number stands at its place (RTF \leveljc).
enum dwListNumberAlign : std::int32_t { dwLNALeft = 1, dwLNARight = 2, dwLNACenter = 3 };
/// What stands between the number and the text (RTF \levelfollow).
enum dwListNumberFollow : std::int32_t { dwLNFNothing = 1, dwLNFSpace = 2, dwLNFTab = 3 };

/// How the numbers of one level of a list look (RTF \listlevel). It never refuses for being written: what holds at
/// Document::Finish counts, also for paragraphs that were added before.
class DRAFTWICK_API ListLevel final : public detail::Part {
public:
    struct Values {
        rule::Choice<"ListLevel.Style", dwLNSCardinal, dwLNSBullet> style{dwLNSDecimal};
        rule::Choice<"ListLevel.Align", dwLNALeft, dwLNACenter> align{dwLNALeft};
        rule::Choice<"ListLevel.Follow", dwLNFNothing, dwLNFTab> follow{dwLNFTab};
        std::string format = "\\L1.";
        bool legal = false;
        bool noLevelRestart = false;
        rule::Short startAt{1};
        rule::Length tabPosition{360};
    };

    ListLevel(detail::Owner list, std::int32_t number);

    /// Default dwLNSDecimal.
    dwListNumberStyle Style() const { return values_.style; }
    void SetStyle(dwListNumberStyle style) { Change(values_.style, style); }

    /// Default dwLNALeft.
    dwListNumberAlign Align() const { return values_.align; }
    void SetAlign(dwListNumberAlign align) { Change(values_.align, align); }

    /// Default dwLNFTab.
    dwListNumberFollow Follow() const { return values_.follow; }
    void SetFollow(dwListNumberFollow follow) { Change(values_.follow, follow); }

    /// The text of the number, in which \L1 to \L9 stand for the current numbers of the levels 1 to 9. Default: the
    /// level's own number and a full stop. In the classic spelling it is written as it is: braces and other backslashes
    /// break the file, and readers cut a text of ten characters or more.
    const std::string& Format() const { return values_.format; }
    void SetFormat(std::string_view format) { Change(values_.format, format); }

    /// The numbers of higher levels are shown in decimal here, whatever their style (RTF \levellegal). Default
    /// false.
    bool Legal() const { return values_.legal; }
    void SetLegal(bool on) { Change(values_.legal, on); }

    /// The numbers go on after a paragraph of a higher level (RTF \levelnorestart). Default false: they start again.
    bool NoLevelRestart() const { return values_.noLevelRestart; }
    void SetNoLevelRestart(bool on) { Change(values_.noLevelRestart, on); }

    /// The first number, 16 bits (RTF \levelstartat). Default 1.
    std::int32_t StartAt() const { return values_.startAt; }
    void SetStartAt(std::int32_t number) { Change(values_.startAt, number); }

    /// Where the text begins after dwLNFTab (RTF \jclisttab\tx). Length of 16 bits in twips, default 360 twips. The
    /// indents are those of the paragraph.
    double TabPosition() const { return Read(values_.tabPosition); }
    void SetTabPosition(Measure length) { Change(values_.tabPosition, length); }

    /// The look of the number.
    std::shared_ptr<draftwick::FontFormat> FontFormat();

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    struct Parts {
        draftwick::FontFormat fontFormat;
    };

    Values values_;
    Parts parts_;
};

/// A numbered or bulleted list of nine levels (RTF \list). Paragraphs join it by its name, with
/// ParagraphFormat::SetListName. While no paragraph uses a level below the first, that level alone is written. It
/// never refuses for being written.
class DRAFTWICK_API List final : public detail::Node {
public:
    List(const detail::Origin& origin, std::string name, std::int32_t index);

    /// The name it was added with. In the classic spelling it is written as it is.
    const std::string& Name() const noexcept { return name_; }

    /// Level 1 to 9. Error 9 for any other.
    std::shared_ptr<ListLevel> Levels(std::int32_t level);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    struct Parts {
        std::array<ListLevel, 9> levels;
    };

    void CheckNotEmitted() const override {}

    std::string name_;
    Parts parts_;
};

/// The lists of a document, in the order in which they were added.
class DRAFTWICK_API Lists final : public detail::NamedCollection<List> {
public:
    using NamedCollection::NamedCollection;

    /// Adds a list, also after the first section; one that is added after Document::Finish is not written. An empty
    /// name is dwErrZeroLengthName ("Lists"), a name that is there, in any case of letters, error 457.
    std::shared_ptr<List> Add(std::string_view name);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
