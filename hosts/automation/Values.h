#pragma once

#include "Com.h"

#include <draftwick/model/Class.h>

#include <string>
#include <string_view>
#include <utility>

namespace draftwick::automation {

/// A text of automation, freed with this.
class Text {
public:
    /// Of UTF-8; what is none becomes U+FFFD.
    explicit Text(std::string_view text);
    ~Text() { ::SysFreeString(text_); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    BSTR Get() const { return text_; }
    /// For a host, who frees it then.
    BSTR Detach() { return std::exchange(text_, nullptr); }

private:
    BSTR text_;
};

/// As UTF-8. A half of a surrogate pair becomes U+FFFD.
std::string FromWide(std::wstring_view text);

/// An identifier that a class's description has in braces.
GUID IdOf(std::string_view text);
/// Whether it is this one.
bool IsId(std::string_view text, REFGUID id);

/// A variant that frees what it holds.
struct OwnedVariant : VARIANT {
    OwnedVariant() { ::VariantInit(this); }
    ~OwnedVariant() { ::VariantClear(this); }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
};

/// A host's value as what is wanted, converted as hosts expect it: numbers, dates and Booleans do as texts, texts as
/// numbers, an empty variable as 0, False or an empty text, Null as an empty text; another program's object as its
/// default value. Error 13 when there is no way, and for an array.
Variant Take(const VARIANT& given, Kind wanted, LCID locale);

/// A value for a host. Nothing is the object Nothing where an object was expected, else Empty.
void Give(Variant&& value, bool objectExpected, VARIANT& to);

}  // namespace draftwick::automation
