#include "tests/support/Script.h"

namespace draftwick::test {

Variant GetMember(Object& object, std::string_view name, std::span<const Variant> arguments) {
    return Get(object, name, arguments);
}

void SetMember(Object& object, std::string_view name, const Variant& value) { Set(object, name, value); }

Variant CallMember(Object& object, std::string_view name, std::span<const Variant> arguments) {
    return Call(object, name, arguments);
}

}  // namespace draftwick::test
