#pragma once

#include "hosts/automation/Com.h"
#include "hosts/automation/Values.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What a host does with automation objects.
namespace draftwick::test {

using automation::OwnedVariant;
using automation::Pointer;

/// What came of a call. Moved, not copied.
struct Outcome {
    HRESULT result = S_OK;
    OwnedVariant value{};
    std::int32_t code = 0;  ///< of a refusal
    std::string text{}, source{}, helpFile{};

    Outcome() = default;
    Outcome(Outcome&&) = delete;

    /// "5 Invalid procedure call or argument" of a refusal, "0x80020003" of another failure, "done".
    std::string Said() const;
    /// The object that was given, with a reference for the caller; empty: none.
    Pointer<IDispatch> Object() const;
};

/// The values for a call, in their order.
struct Values {
    std::vector<VARIANT> all{};

    Values() = default;
    Values(std::initializer_list<VARIANT> values) : all(values) {}
    Values(const Values&) = delete;
    ~Values() {
        for (VARIANT& value : all) ::VariantClear(&value);
    }
    Values& operator=(const Values&) = delete;
};

VARIANT Whole(std::int32_t number);
VARIANT Real(double number);
VARIANT Flag(bool on);
VARIANT Of(std::string_view text);
VARIANT OfDate(double days);
VARIANT Of(IDispatch* object);
VARIANT LeftOut();
VARIANT OfType(VARTYPE type);
VARIANT Array();
VARIANT Bytes(std::string_view bytes);

/// The number of a member; DISPID_UNKNOWN when there is none.
DISPID NumberNamed(IDispatch& object, std::string_view name);

/// Gets, sets (with DISPATCH_PROPERTYPUT, the last value is the new one) or calls a member. The numbers are those of
/// the first values, which come by name.
void Invoke(IDispatch& object, DISPID member, WORD how, const Values& values, Outcome& outcome,
            std::vector<DISPID> names = {});

}  // namespace draftwick::test
