#pragma once

#include <draftwick/model/Object.h>

namespace draftwick {

/// The codes of RTF's special characters, for TextItem::AddSpecial. Needs no document.
class DRAFTWICK_API Special final : public detail::Node {
public:
    Special() = default;

    /// The codes of breaks, of characters that the file's code page may not have, and of what the reader works out:
    /// dates, times, numbers of pages, sections and notes.
    static std::string_view Annotation() { return "\\chatn"; }
    static std::string_view Bullet() { return "\\bullet"; }
    static std::string_view ColumnBreak() { return "\\column"; }
    static std::string_view ColumnBreakSoft() { return "\\softcol"; }
    static std::string_view CurrentDate() { return "\\chdate"; }
    static std::string_view CurrentDateLong() { return "\\chdpl"; }
    static std::string_view CurrentDateShort() { return "\\chdpa"; }
    static std::string_view CurrentTime() { return "\\chtime"; }
    static std::string_view EmDash() { return "\\emdash"; }
    static std::string_view EnDash() { return "\\endash"; }
    static std::string_view NonBreakingSpaceEm() { return "\\emspace"; }
    static std::string_view NonBreakingSpaceEn() { return "\\enspace"; }
    /// The automatic number of a note: once where the text refers to it, once where the note begins. AddSpecial
    /// supplies the backslash.
    static std::string_view Footnote() { return "chftn"; }
    static std::string_view FootnoteContinue() { return "\\chftnsepc"; }
    static std::string_view FootnoteSep() { return "\\chftnsep"; }
    static std::string_view LeftDoubleQuote() { return "\\ldblquote"; }
    static std::string_view LeftQuote() { return "\\lquote"; }
    static std::string_view LineBreak() { return "\\line"; }
    static std::string_view LineBreakSoft() { return "\\softline"; }
    static std::string_view NonBreakingHyphen() { return "\\_"; }
    static std::string_view NonBreakingSpace() { return "\\~"; }
    static std::string_view OptionalHyphen() { return "\\-"; }
    static std::string_view PageBreak() { return "\\page"; }
    static std::string_view PageBreakSoft() { return "\\softpage"; }
    static std::string_view PageNumber() { return "\\chpgn"; }
    static std::string_view RightDoubleQuote() { return "\\rdblquote"; }
    static std::string_view RightQuote() { return "\\rquote"; }
    static std::string_view SectionNumber() { return "\\sectnum"; }
    static std::string_view TabChar() { return "\\tab"; }

    /// One byte of the file's code page: \' and upper-case hexadecimal without a leading zero. Error 6 outside of a
    /// byte.
    static std::string ASCII(std::int32_t value);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
