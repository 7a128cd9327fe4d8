#pragma once

#include <draftwick/format/Background.h>
#include <draftwick/format/Border.h>
#include <draftwick/format/FontFormat.h>
#include <draftwick/format/ParagraphFormat.h>
#include <draftwick/format/TabStops.h>
#include <draftwick/model/Collection.h>
#include <draftwick/model/Ref.h>

namespace draftwick {

class ParagraphStyles;
class TextStyles;

/// What both kinds of style have: a name and a number. Their parent is the document. Setters refuse once that is
/// emitted ("Document"), and so do the setters of a style's parts.
class DRAFTWICK_API Style : public detail::Node {
public:
    Style(const detail::Origin& origin, std::string name, std::int32_t index)
        : Node(origin), name_(std::move(name)), index_(index) {}

    /// The name it was added with. In the classic spelling it is written as it is: braces, backslashes and semicolons
    /// break the file.
    const std::string& Name() const noexcept { return name_; }

    /// The position among the styles of its kind, from 0.
    std::int32_t StyleIndex() const noexcept { return index_; }

private:
    std::string name_;
    std::int32_t index_;
};

/// A named look of paragraphs (RTF \s), which take it with Paragraph::SetStyleName.
class DRAFTWICK_API ParagraphStyle final : public Style {
public:
    ParagraphStyle(const detail::Origin& origin, std::string name, std::int32_t index);

    /// The paragraph style that this one starts from; empty (default) for none (RTF \sbasedon). Setting it copies
    /// everything that the other style has now over what was set here; only borders on sides that the other does
    /// not have stay. Later changes to the other are not followed. An empty name copies nothing. dwErrItemNotFound
    /// when there is no such style.
    std::string BasedOn() const;
    void SetBasedOn(std::string_view name);

    /// The paragraph style that an editor gives to the paragraph after one of this style (RTF \snext); empty
    /// (default) for the same. dwErrItemNotFound when there is no such style.
    std::string NextStyle() const;
    void SetNextStyle(std::string_view name);

    /// What paragraphs of the style get: layout, look of the text, lines around, what stands behind.
    std::shared_ptr<ParagraphFormat> Format();
    std::shared_ptr<draftwick::FontFormat> FontFormat();
    std::shared_ptr<ParagraphBorders> Borders();
    std::shared_ptr<draftwick::Background> Background();
    /// Copied to paragraphs with the style. In the classic spelling they are not written in the stylesheet.
    std::shared_ptr<draftwick::TabStops> TabStops();

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    struct Values {
        rule::Ref<ParagraphStyles> basedOn;
        rule::Ref<ParagraphStyles> nextStyle;
    };
    struct Parts {
        ParagraphFormat format;
        draftwick::FontFormat fontFormat;
        ParagraphBorders borders;
        draftwick::Background background;
        draftwick::TabStops tabStops;
    };

    Values values_;
    Parts parts_;
};

/// A named look of runs of text (RTF \cs), which name it with Run::SetStyleName. In the classic spelling they say
/// nothing of its look: the reader applies it.
class DRAFTWICK_API TextStyle final : public Style {
public:
    TextStyle(const detail::Origin& origin, std::string name, std::int32_t index);

    /// As ParagraphStyle::BasedOn, among the text styles.
    std::string BasedOn() const;
    void SetBasedOn(std::string_view name);

    /// What runs of the style look like: the text, the line around it, what stands behind.
    std::shared_ptr<draftwick::FontFormat> FontFormat();
    std::shared_ptr<TextBorder> Border();
    std::shared_ptr<draftwick::Background> Background();

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    struct Values {
        rule::Ref<TextStyles> basedOn;
    };
    struct Parts {
        draftwick::FontFormat fontFormat;
        TextBorder border;
        draftwick::Background background;
    };

    Values values_;
    Parts parts_;
};

/// The paragraph styles of a document.
class DRAFTWICK_API ParagraphStyles final : public detail::NamedCollection<ParagraphStyle> {
public:
    using NamedCollection::NamedCollection;

    /// Adds a style. Refuses once the document is emitted ("Document"); an empty name is dwErrZeroLengthName
    /// ("Paragraph Styles"), a name that is there, in any case of letters, error 457.
    std::shared_ptr<ParagraphStyle> Add(std::string_view name);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

/// The text styles of a document.
class DRAFTWICK_API TextStyles final : public detail::NamedCollection<TextStyle> {
public:
    using NamedCollection::NamedCollection;

    /// As ParagraphStyles::Add, with "Text Styles".
    std::shared_ptr<TextStyle> Add(std::string_view name);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
