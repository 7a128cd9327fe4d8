#pragma once

#include <draftwick/model/Object.h>

namespace draftwick {

/// The codes of RTF's special characters, for TextItem::AddSpecial. Needs no document.
class DRAFTWICK_API Special final : public detail::Node {
public:
    Special() = default;

    /// The mark of an annotation (RTF \chatn).
    static std::string_view Annotation() { return "\\chatn"; }
    /// A bullet (RTF \bullet).
    static std::string_view Bullet() { return "\\bullet"; }
    /// The text goes on in the next column (RTF \column).
    static std::string_view ColumnBreak() { return "\\column"; }
    /// A column ended here where the document was last laid out (RTF \softcol).
    static std::string_view ColumnBreakSoft() { return "\\softcol"; }
    /// Today, as the reader writes dates (RTF \chdate).
    static std::string_view CurrentDate() { return "\\chdate"; }
    /// Today in full, with the day of the week (RTF \chdpl).
    static std::string_view CurrentDateLong() { return "\\chdpl"; }
    /// Today in short, with the day of the week (RTF \chdpa).
    static std::string_view CurrentDateShort() { return "\\chdpa"; }
    /// The time of day (RTF \chtime).
    static std::string_view CurrentTime() { return "\\chtime"; }
    /// A dash as wide as an m (RTF \emdash).
    static std::string_view EmDash() { return "\\emdash"; }
    /// A dash as wide as an n (RTF \endash).
    static std::string_view EnDash() { return "\\endash"; }
    /// A space as wide as an m, at which no line breaks (RTF \emspace).
    static std::string_view NonBreakingSpaceEm() { return "\\emspace"; }
    /// A space as wide as an n, at which no line breaks (RTF \enspace).
    static std::string_view NonBreakingSpaceEn() { return "\\enspace"; }
    /// The automatic number of a note: once where the text refers to it, once where the note begins. AddSpecial
    /// supplies the backslash.
    static std::string_view Footnote() { return "chftn"; }
    /// The line above a footnote that goes on from the page before (RTF \chftnsepc).
    static std::string_view FootnoteContinue() { return "\\chftnsepc"; }
    /// The line above footnotes (RTF \chftnsep).
    static std::string_view FootnoteSep() { return "\\chftnsep"; }
    /// The double quotation mark that opens (RTF \ldblquote).
    static std::string_view LeftDoubleQuote() { return "\\ldblquote"; }
    /// The single quotation mark that opens (RTF \lquote).
    static std::string_view LeftQuote() { return "\\lquote"; }
    /// The text goes on in the next line of the paragraph (RTF \line).
    static std::string_view LineBreak() { return "\\line"; }
    /// A line ended here where the document was last laid out (RTF \softline).
    static std::string_view LineBreakSoft() { return "\\softline"; }
    /// A hyphen at which no line breaks (RTF: a backslash and an underscore).
    static std::string_view NonBreakingHyphen() { return "\\_"; }
    /// A space at which no line breaks (RTF \~).
    static std::string_view NonBreakingSpace() { return "\\~"; }
    /// A hyphen that is there only where a line breaks at it (RTF \-).
    static std::string_view OptionalHyphen() { return "\\-"; }
    /// The text goes on on the next page (RTF \page).
    static std::string_view PageBreak() { return "\\page"; }
    /// A page ended here where the document was last laid out (RTF \softpage).
    static std::string_view PageBreakSoft() { return "\\softpage"; }
    /// The number of the page (RTF \chpgn).
    static std::string_view PageNumber() { return "\\chpgn"; }
    /// The double quotation mark that closes (RTF \rdblquote).
    static std::string_view RightDoubleQuote() { return "\\rdblquote"; }
    /// The single quotation mark that closes (RTF \rquote).
    static std::string_view RightQuote() { return "\\rquote"; }
    /// The number of the section (RTF \sectnum).
    static std::string_view SectionNumber() { return "\\sectnum"; }
    /// A tabulator (RTF \tab).
    static std::string_view TabChar() { return "\\tab"; }

    /// One byte of the file's code page: \' and upper-case hexadecimal without a leading zero, which AddSpecial
    /// supplies in the standard spelling. Error 6 outside of a byte.
    static std::string ASCII(std::int32_t value);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
