#include "Host.h"

#include <algorithm>
#include <cstdio>
#include <new>

namespace draftwick::test {

namespace {

std::wstring Wide(std::string_view text) {
    std::wstring wide(text.size(), L'\0');
    const int size = static_cast<int>(text.size());
    wide.resize(
        static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
    return wide;
}

std::string Narrow(BSTR text) {
    const int size = static_cast<int>(::SysStringLen(text));
    std::string narrow(3 * static_cast<std::size_t>(size), '\0');
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text, size, narrow.data(),
                                             static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(length));
    return narrow;
}

std::string Take(BSTR text) {
    std::string narrow = Narrow(text);
    ::SysFreeString(text);
    return narrow;
}

}  // namespace

std::string Outcome::Said() const {
    if (result == S_OK) return "done";
    char number[16];
    std::snprintf(number, sizeof number, "0x%08lX", static_cast<unsigned long>(result));
    if (result != DISP_E_EXCEPTION) return number;
    const bool isRuntime = (static_cast<std::uint32_t>(code) & 0xFFFF0000u) == 0x800A0000u;
    return std::to_string(isRuntime ? code & 0xFFFF : code) + " " + text;
}

Pointer<IDispatch> Outcome::Object() const {
    if (value.vt != VT_DISPATCH || value.pdispVal == nullptr) return nullptr;
    value.pdispVal->AddRef();
    return Pointer<IDispatch>(value.pdispVal);
}

VARIANT OfType(VARTYPE type) {
    VARIANT value{};
    value.vt = type;
    return value;
}
VARIANT Whole(std::int32_t number) {
    VARIANT value = OfType(VT_I4);
    value.lVal = number;
    return value;
}
VARIANT Real(double number) {
    VARIANT value = OfType(VT_R8);
    value.dblVal = number;
    return value;
}
VARIANT Flag(bool on) {
    VARIANT value = OfType(VT_BOOL);
    value.boolVal = on ? VARIANT_TRUE : VARIANT_FALSE;
    return value;
}
VARIANT Of(std::string_view text) {
    const std::wstring wide = Wide(text);
    VARIANT value = OfType(VT_BSTR);
    value.bstrVal = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    return value;
}
VARIANT OfDate(double days) {
    VARIANT value = OfType(VT_DATE);
    value.date = days;
    return value;
}
VARIANT Of(IDispatch* object) {
    VARIANT value = OfType(VT_DISPATCH);
    value.pdispVal = object;
    if (object != nullptr) object->AddRef();
    return value;
}
VARIANT LeftOut() {
    VARIANT value = OfType(VT_ERROR);
    value.scode = DISP_E_PARAMNOTFOUND;
    return value;
}
VARIANT Array() {
    VARIANT value = OfType(VT_ARRAY | VT_VARIANT);
    value.parray = ::SafeArrayCreateVector(VT_VARIANT, 0, 3);
    return value;
}

VARIANT Bytes(std::string_view bytes) {
    VARIANT value = OfType(VT_ARRAY | VT_UI1);
    value.parray = ::SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    bytes.copy(static_cast<char*>(value.parray->pvData), bytes.size());
    return value;
}

DISPID NumberNamed(IDispatch& object, std::string_view name) {
    std::wstring wide = Wide(name);
    wchar_t* names = wide.data();
    DISPID number = DISPID_UNKNOWN;
    object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_INVARIANT, &number);
    return number;
}

void Invoke(IDispatch& object, DISPID member, WORD how, const Values& values, Outcome& outcome,
            std::vector<DISPID> names) {
    // The last argument comes first, but named ones come before all.
    const auto named = static_cast<std::ptrdiff_t>(names.size());
    std::vector<VARIANT> backwards(values.all.begin(), values.all.begin() + named);
    backwards.insert(backwards.end(), values.all.rbegin(), values.all.rend() - named);
    if ((how & DISPATCH_PROPERTYPUT) != 0) names.insert(names.begin(), DISPID_PROPERTYPUT);
    DISPPARAMS given{backwards.data(), names.data(), static_cast<UINT>(backwards.size()),
                     static_cast<UINT>(names.size())};
    EXCEPINFO info{};
    ::VariantClear(&outcome.value);
    outcome.result =
        object.Invoke(member, IID_NULL, LOCALE_INVARIANT, how, &given, &outcome.value, &info, nullptr);
    outcome.code = info.scode;
    outcome.text = Take(info.bstrDescription);
    outcome.source = Take(info.bstrSource);
    outcome.helpFile = Take(info.bstrHelpFile);
}

}  // namespace draftwick::test
