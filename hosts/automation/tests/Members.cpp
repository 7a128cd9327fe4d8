// Steps of scripts reach members as automation hosts do.
#include "Host.h"

#include "hosts/automation/Dispatch.h"
#include "tests/support/Script.h"

#include <chrono>
#include <stdexcept>

namespace draftwick::test {

namespace {

VARIANT Send(const Variant& value) {
    if (const auto* on = std::get_if<bool>(&value)) return Flag(*on);
    if (const auto* number = std::get_if<std::int32_t>(&value)) return Whole(*number);
    if (const auto* real = std::get_if<double>(&value)) return Real(*real);
    if (const auto* text = std::get_if<std::string>(&value)) return Of(*text);
    if (const auto* date = std::get_if<Date>(&value)) {
        // Days since the end of 1899; before it the time of day counts forwards, too.
        using namespace std::chrono;
        const sys_days day = year{date->year} / date->month / date->day;
        const auto whole = static_cast<double>((day - sys_days{December / 30 / 1899}).count());
        const double time = (date->hour * 3600 + date->minute * 60 + date->second) / 86400.0;
        const double days = whole < 0 ? whole - time : whole + time;
        return OfDate(days);
    }
    if (const auto* object = std::get_if<std::shared_ptr<Object>>(&value)) {
        VARIANT sent = OfType(VT_DISPATCH);
        sent.pdispVal = automation::Wrap(*object);
        return sent;
    }
    return OfType(VT_EMPTY);
}

Variant Receive(const VARIANT& value) {
    switch (value.vt) {
    case VT_BOOL: return value.boolVal != VARIANT_FALSE;
    case VT_I4: return static_cast<std::int32_t>(value.lVal);
    case VT_R8: return value.dblVal;
    case VT_BSTR: return automation::FromWide({value.bstrVal, ::SysStringLen(value.bstrVal)});
    case VT_DISPATCH:
        return value.pdispVal == nullptr ? Variant{} : Variant{automation::ObjectOf(*value.pdispVal)};
    default: return {};
    }
}

Variant Use(Object& object, std::string_view name, WORD how, std::span<const Variant> arguments) {
    const Pointer<IDispatch> wrapped(automation::Wrap(object.Self()));
    DISPID number = NumberNamed(*wrapped, name);
    if (number == DISPID_UNKNOWN && name.starts_with("Set")) {  // of a property with arguments
        number = NumberNamed(*wrapped, name.substr(3));
        how = DISPATCH_PROPERTYPUT;
    }
    if (number == DISPID_UNKNOWN) throw std::invalid_argument("no member " + std::string{name});
    Values values;
    for (const Variant& argument : arguments) values.all.push_back(Send(argument));
    Outcome outcome;
    Invoke(*wrapped, number, how, values, outcome);
    if (outcome.result != S_OK) throw std::runtime_error(outcome.Said());
    return Receive(outcome.value);
}

}  // namespace

Variant GetMember(Object& object, std::string_view name, std::span<const Variant> arguments) {
    return Use(object, name, DISPATCH_PROPERTYGET, arguments);
}

void SetMember(Object& object, std::string_view name, const Variant& value) {
    Use(object, name, DISPATCH_PROPERTYPUT, {&value, 1});
}

Variant CallMember(Object& object, std::string_view name, std::span<const Variant> arguments) {
    return Use(object, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

}  // namespace draftwick::test
