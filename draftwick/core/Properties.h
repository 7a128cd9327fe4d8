#pragma once

#include <draftwick/model/Collection.h>

namespace draftwick {

/// What a document property holds.
enum dwPropertyType : std::int32_t {
    dwPTInteger = 1,
    dwPTReal = 2,
    dwPTDate = 3,
    dwPTBoolean = 4,
    dwPTText = 5,
};

/// The properties that every document has; the value is also the position in Properties, and the name is the part
/// after the prefix.
enum dwBuiltInProperty : std::int32_t {
    dwBIPTitle = 1,
    dwBIPSubject = 2,
    dwBIPAuthor = 3,
    dwBIPManager = 4,
    dwBIPCompany = 5,
    dwBIPOperator = 6,  ///< who changed the document last
    dwBIPCategory = 7,
    dwBIPKeywords = 8,
    dwBIPComment = 9,  ///< for readers that show one comment and know no other
    dwBIPDocComment = 10,
    dwBIPHyperlinkBase = 11,  ///< what relative hyperlinks start from
    dwBIPCreationTime = 12,
    dwBIPRevisionTime = 13,
    dwBIPPrintTime = 14,
    dwBIPBackupTime = 15,
    dwBIPVersion = 16,
    dwBIPEditingMinutes = 17,
    dwBIPPages = 18,
    dwBIPWords = 19,
    dwBIPCharacters = 20,
};

/// One property of a document, built-in or custom. Setters refuse once the document is emitted ("Document").
class DRAFTWICK_API Property final : public detail::Node {
public:
    Property(const detail::Origin& origin, std::string name, std::int32_t index);

    /// "Title" and the like, or the name it was added with.
    const std::string& Name() const noexcept { return name_; }
    /// Whether it is one of dwBuiltInProperty, which cannot be removed.
    bool BuiltIn() const noexcept { return builtIn_; }

    /// Of a built-in property fixed: text up to dwBIPHyperlinkBase, date up to dwBIPBackupTime, then integer. Of a
    /// custom one that of its value; while it has none the last one, at first dwPTText.
    dwPropertyType Type() const noexcept { return type_; }

    /// Nothing, a text, a whole number, a real number, a Boolean or a date of the years 1 to 9999. A property without
    /// a value is not written; an empty text is a value. Default nothing. Error 13 for another kind, of a built-in
    /// property also for a value that is not of its type; 5 for a date that is in no calendar; 6 for a real number
    /// that is not finite.
    const Variant& Value() const noexcept { return value_; }
    void SetValue(const Variant& value);

    /// The name of a bookmark whose text is the value; an editor keeps the value up to date. Default empty. Error 5
    /// for a built-in property.
    const std::string& LinkTo() const noexcept { return linkTo_; }
    void SetLinkTo(std::string_view bookmark);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    std::string name_;
    bool builtIn_;
    dwPropertyType type_;
    Variant value_;
    std::string linkTo_;
};

/// The properties of a document: the twenty of dwBuiltInProperty, then those that you added. A reader shows them
/// as information about the file; nothing is filled in that your program did not set.
class DRAFTWICK_API Properties final : public detail::NamedCollection<Property> {
public:
    explicit Properties(const detail::Origin& origin);

    /// Adds a custom property. Refuses once the document is emitted ("Document"); an empty name is
    /// dwErrZeroLengthName ("Properties"), a name that is there, in any case of letters, dwErrDuplicateName; and what
    /// Property.Value refuses.
    std::shared_ptr<Property> Add(std::string_view name, const Variant& value, std::string_view linkTo = {});

    /// Removes a custom property, by position from 1 or by name. It can still be read and set, but is written
    /// nowhere. Refuses once the document is emitted ("Document"); dwErrItemNotFound when there is none;
    /// dwErrCantDeleteBuiltInProperty with the name of a built-in one.
    void Remove(std::int32_t index);
    void Remove(std::string_view name);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
