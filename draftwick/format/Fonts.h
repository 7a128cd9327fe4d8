#pragma once

#include <draftwick/model/Collection.h>

namespace draftwick {

/// The family that a reader looks in for a substitute of a font it does not have (RTF \fnil and its siblings).
enum dwFontFamily : std::int32_t {
    dwNil = 1,     ///< unknown
    dwRoman = 2,   ///< proportional with serifs
    dwSwiss = 3,   ///< proportional without serifs
    dwModern = 4,  ///< fixed pitch
    dwScript = 5,
    dwDecor = 6,
    dwTech = 7,  ///< symbols
};

/// A font of the document (an entry of RTF \fonttbl). Its parent is the document. Setters refuse once the document
/// is emitted ("Document").
class DRAFTWICK_API Font final : public detail::Node {
public:
    struct Values {
        std::string altName;
        rule::Choice<"Font.Family", dwNil, dwTech> family{dwNil};
    };

    Font(const detail::Origin& origin, std::string name, std::int32_t index)
        : Node(origin), name_(std::move(name)), index_(index) {}

    /// The name it was added with. In the classic spelling it is written as it is: braces, backslashes and semicolons
    /// break the file.
    const std::string& Name() const noexcept { return name_; }

    /// The name of a font to take where there is none of this name (RTF \falt), written as Name is. Default empty: not
    /// written.
    const std::string& AltName() const { return values_.altName; }
    void SetAltName(std::string_view name) { Change(values_.altName, name); }

    /// Default dwNil.
    dwFontFamily Family() const { return values_.family; }
    void SetFamily(dwFontFamily family) { Change(values_.family, family); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

    /// The number of the font in the file, from 0.
    std::int32_t FontIndex() const noexcept { return index_; }

private:
    std::string name_;
    std::int32_t index_;
    friend struct detail::Access;

    Values values_;
};

/// The fonts of a document, in the order in which they were added. A font must be added before its name can be
/// used; none is ever added by itself.
class DRAFTWICK_API Fonts final : public detail::NamedCollection<Font> {
public:
    using NamedCollection::NamedCollection;

    /// Adds a font. Refuses once the document is emitted ("Document"); an empty name is dwErrZeroLengthName
    /// ("Fonts"), a name that is there, in any case of letters, error 457.
    std::shared_ptr<Font> Add(std::string_view name);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
