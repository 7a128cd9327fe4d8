#pragma once

#include <draftwick/content/Run.h>

namespace draftwick {

/// How a field shows a number (the switch \* with a word in the instruction).
enum dwFieldNumberFormat : std::int32_t {
    dwFNFNone = 1,  ///< as the field likes
    dwFNFArabic = 2,
    dwFNFLetterLower = 3,
    dwFNFLetterUpper = 4,
    dwFNFRomanLower = 5,
    dwFNFRomanUpper = 6,
    dwFNFOrdinal = 7,   ///< 1st
    dwFNFCardText = 8,  ///< one
    dwFNFOrdText = 9,   ///< first
    dwFNFHex = 10,
    dwFNFDollarText = 11,  ///< one and 00/100
};
/// How a field changes the letters of its text (the switch \* with a word in the instruction).
enum dwFieldTextFormat : std::int32_t {
    dwFTFNone = 1,
    dwFTFCaps = 2,      ///< the first letter of each word is a capital
    dwFTFFirstCap = 3,  ///< the first letter is a capital
    dwFTFLower = 4,
    dwFTFUpper = 5,
};

/// Text that the reader computes: page numbers, dates, references, a table of contents (RTF \field). It has an
/// instruction and the result that readers show until they update it, or always if they do not know the
/// instruction. It can be changed until it is written, which is when its paragraph gets the next child or is closed;
/// then it refuses ("Field").
class DRAFTWICK_API Field final : public Run {
public:
    struct Values {
        std::string code;
        std::string text;
        rule::Choice<"Field.NumberFormat", dwFNFNone, dwFNFDollarText> numberFormat{dwFNFNone};
        rule::Choice<"Field.TextFormat", dwFTFNone, dwFTFUpper> textFormat{dwFTFNone};
        std::string numberPicture;
        std::string datePicture;
        bool mergeFormat = false;
        bool charFormat = false;
        bool dirty = false;
        bool edited = false;
        bool locked = false;
        bool isPrivate = false;
    };

    Field(const detail::Origin& origin, std::string_view code, std::string_view text);

    /// The instruction without the switches below: "PAGE", "REF prices", "TOC \\o". Characters that mean something
    /// in RTF are escaped. Default: as added.
    const std::string& Code() const { return values_.code; }
    void SetCode(std::string_view code) { Change(values_.code, code); }

    /// The result that readers show until they update the field. Characters, tabs and line breaks as in
    /// TextItem::AddText. Default: as added.
    const std::string& Text() const { return values_.text; }
    void SetText(std::string_view text) { Change(values_.text, text); }

    /// Default dwFNFNone: no switch.
    dwFieldNumberFormat NumberFormat() const { return values_.numberFormat; }
    void SetNumberFormat(dwFieldNumberFormat format) { Change(values_.numberFormat, format); }

    /// Default dwFTFNone: no switch.
    dwFieldTextFormat TextFormat() const { return values_.textFormat; }
    void SetTextFormat(dwFieldTextFormat format) { Change(values_.textFormat, format); }

    /// The picture of a number, "#,##0.00" (switch \#). It is put between quotation marks and must have none itself.
    /// Default empty: no switch.
    const std::string& NumberPicture() const { return values_.numberPicture; }
    void SetNumberPicture(std::string_view picture) { Change(values_.numberPicture, picture); }

    /// The picture of a date or time, "d MMMM yyyy" (switch \@). As NumberPicture.
    const std::string& DatePicture() const { return values_.datePicture; }
    void SetDatePicture(std::string_view picture) { Change(values_.datePicture, picture); }

    /// An updated result keeps the look of the one before. Default false.
    bool MergeFormat() const { return values_.mergeFormat; }
    void SetMergeFormat(bool on) { Change(values_.mergeFormat, on); }

    /// An updated result looks like the first letter of the instruction. Default false.
    bool CharFormat() const { return values_.charFormat; }
    void SetCharFormat(bool on) { Change(values_.charFormat, on); }

    /// The look of the result was changed since the field was last updated (RTF \flddirty). Default false.
    bool Dirty() const { return values_.dirty; }
    void SetDirty(bool on) { Change(values_.dirty, on); }

    /// The text of the result was changed since the field was last updated (RTF \fldedit). Default false.
    bool Edited() const { return values_.edited; }
    void SetEdited(bool on) { Change(values_.edited, on); }

    /// The result stays as it is: readers do not update the field (RTF \fldlock). Default false.
    bool Locked() const { return values_.locked; }
    void SetLocked(bool on) { Change(values_.locked, on); }

    /// The result is not fit to be shown: it is data for the field (RTF \fldpriv). Default false.
    bool Private() const { return values_.isPrivate; }
    void SetPrivate(bool on) { Change(values_.isPrivate, on); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteStart() override;

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
