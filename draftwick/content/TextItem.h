#pragma once

#include <draftwick/content/Run.h>

namespace draftwick {

/// A run of text with one look. Text can be added until the run is written.
class DRAFTWICK_API TextItem final : public Run {
public:
    TextItem(const detail::Origin& origin, std::string_view text, bool raw);

    /// Adds text; characters that mean something in RTF are escaped, tabs and CR LF become \tab and \line. In the standard
    /// spelling a lone CR or LF is a line break, too.
    void AddText(std::string_view text);
    /// Adds RTF as it is: it must be valid.
    void AddRawText(std::string_view text);
    /// Adds the code of a special character, one of those in Special or any other: ASCII letters are made lower
    /// case, a backslash is put in front if there is none, and a space behind. In the standard spelling what is no
    /// control word or symbol of RTF is added as text.
    void AddSpecial(std::string_view special);

    /// All that was added, in RTF form and UTF-8.
    const std::string& Text() const { return text_; }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteStart() override;

private:
    std::string Escape(std::string_view text);
    void Append(std::string_view text);

    unsigned char letters_ = 0;  // what characters it has at most: a number of Letters
    std::string text_;
};

}  // namespace draftwick
