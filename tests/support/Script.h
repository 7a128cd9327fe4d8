#pragma once

#include <draftwick/draftwick.h>

#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace draftwick::test {

/// How steps reach members of objects. In the library's own tests it is Get, Set and Call; the tests of another way to
/// the library put that in their place.
Variant GetMember(Object& object, std::string_view name, std::span<const Variant> arguments);
void SetMember(Object& object, std::string_view name, const Variant& value);
Variant CallMember(Object& object, std::string_view name, std::span<const Variant> arguments);

/// Builds a document by the names of classes' members, in the language of tests/words/README.md.
class Script {
public:
    /// The steps know the document as "document", and the codes of special characters as "special".
    explicit Script(const std::shared_ptr<Document>& document) : Script(document, document) {}
    /// The first step may speak of this object without a path.
    Script(const std::shared_ptr<Document>& document, std::shared_ptr<Object> object);

    /// One step: [NAME:] [PATH] [ARGUMENT]... [PROPERTY=VALUE]... std::invalid_argument for what is none; what an
    /// object refuses is its own error.
    void Run(std::string_view step);

    /// The object that the last step was about.
    const std::shared_ptr<Object>& Last() const { return last_; }

private:
    struct Place {
        std::shared_ptr<Object> object;
        Variant value;  // of the last member
    };

    Place Follow(std::shared_ptr<Object> from, std::string_view path,
                 std::span<const Variant> arguments) const;
    Place Find(std::string_view path, std::span<const Variant> arguments = {}) const;
    Variant ValueOf(std::string_view word) const;
    void Set(std::string_view setting) const;

    std::map<std::string, std::shared_ptr<Object>, std::less<>> objects_;
    std::shared_ptr<Object> last_;
};

/// Sets properties of an object: "Wrap=dwSWNone LockAnchor=true Left=-10.0".
void Apply(std::string_view settings, Object& object);

/// The value of an enumeration's constant: 3 for "dwAlignCenter". std::invalid_argument when there is none.
std::int32_t ConstantNamed(std::string_view name);

}  // namespace draftwick::test
