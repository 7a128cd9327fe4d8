#include "Values.h"

#include "Dispatch.h"
#include "Errors.h"

#include <charconv>
#include <limits>
#include <new>

namespace draftwick::automation {

Text::Text(std::string_view text) : text_(nullptr) {
    const auto size = static_cast<int>(text.size());
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
    text_ = ::SysAllocStringLen(nullptr, static_cast<UINT>(length));
    if (text_ == nullptr) throw std::bad_alloc();
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, text_, length);
}

std::string FromWide(std::wstring_view text) {
    if (text.size() > std::numeric_limits<int>::max() / 3) throw std::bad_alloc();
    std::string bytes(3 * text.size(), '\0');  // no more than three for each half of a character
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                             bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

GUID IdOf(std::string_view text) {
    GUID id{};
    ::CLSIDFromString(Text(text).Get(), &id);
    return id;
}

bool IsId(std::string_view text, REFGUID id) {
    unsigned long first = 0;  // hosts ask for many others, and often
    std::from_chars(text.data() + 1, text.data() + 9, first, 16);
    return first == id.Data1 && IdOf(text) == id;
}

namespace {

[[noreturn]] void RefuseKind(const char* what) { Refuse(dwRunTypeMismatch, what); }

/// What another program's object stands for: the field of a database for what it holds.
void ReadDefault(IUnknown& object, LCID locale, VARIANT& value) {
    void* found = nullptr;
    if (FAILED(object.QueryInterface(IID_IDispatch, &found))) RefuseKind("an object has no place here");
    const Pointer<IDispatch> dispatch(static_cast<IDispatch*>(found));
    DISPPARAMS none{};
    const HRESULT outcome = dispatch->Invoke(DISPID_VALUE, IID_NULL, locale, DISPATCH_PROPERTYGET, &none,
                                             &value, nullptr, nullptr);
    if (FAILED(outcome) || value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN)
        RefuseKind("this object has no place here");
}

bool IsSmall(VARTYPE type) {
    return type == VT_I4 || type == VT_I2 || type == VT_UI1 || type == VT_I1 || type == VT_UI2
           || type == VT_INT;
}

bool IsNumber(VARTYPE type) {
    return IsSmall(type) || type == VT_R8 || type == VT_R4 || type == VT_CY || type == VT_DECIMAL
           || type == VT_UI4 || type == VT_UINT || type == VT_I8 || type == VT_UI8;
}

/// As what a value is read. Whether a number fits is the library's to judge.
VARTYPE TypeFor(Kind wanted, VARTYPE given) {
    switch (wanted) {
    case Kind::Boolean: return VT_BOOL;
    case Kind::Text:
    case Kind::Path: return VT_BSTR;
    case Kind::Number:
    case Kind::Color:
    case Kind::Real:
    case Kind::Length: return IsSmall(given) ? VT_I4 : VT_R8;
    case Kind::Object: return VT_DISPATCH;
    default: return IsSmall(given) ? VARTYPE{VT_I4} : IsNumber(given) ? VARTYPE{VT_R8} : given;
    }
}

Date ReadDate(double days) {
    SYSTEMTIME time{};
    if (::VariantTimeToSystemTime(days, &time) == 0) Refuse(dwRunInvalidCall, "no date between 100 and 9999");
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

double WriteDate(const Date& date) {
    const auto word = [](std::int32_t number) { return static_cast<WORD>(number); };
    SYSTEMTIME time{word(date.year),   word(date.month),  0, word(date.day), word(date.hour),
                    word(date.minute), word(date.second), 0};  // the third: of the week
    double days = 0;
    // Automation takes a year below 100 for one of this or the last century.
    if (date.year < 100 || ::SystemTimeToVariantTime(&time, &days) == 0)
        Refuse(dwRunInvalidCall, "no date between 100 and 9999");
    return days;
}

Variant Read(const VARIANT& value) {
    switch (value.vt) {
    case VT_EMPTY:
    case VT_NULL: return {};
    case VT_BOOL: return value.boolVal != VARIANT_FALSE;
    case VT_I4: return static_cast<std::int32_t>(value.lVal);
    case VT_R8: return value.dblVal;
    case VT_BSTR: return FromWide({value.bstrVal, ::SysStringLen(value.bstrVal)});
    case VT_DATE: return ReadDate(value.date);
    default: RefuseKind("a value of this type has no place here");
    }
}

/// Of an array of bytes, as a script has the content of a file.
std::string ReadBytes(const VARIANT& value) {
    SAFEARRAY* array = (value.vt & VT_BYREF) != 0 ? *value.pparray : value.parray;
    if ((value.vt & ~VT_BYREF) != (VT_ARRAY | VT_UI1) || ::SafeArrayGetDim(array) != 1)
        RefuseKind("an array of bytes is wanted");
    void* bytes = nullptr;
    if (FAILED(::SafeArrayAccessData(array, &bytes))) RefuseKind("the array cannot be read");
    std::string copy(static_cast<const char*>(bytes), array->rgsabound[0].cElements);
    ::SafeArrayUnaccessData(array);
    return copy;
}

}  // namespace

Variant Take(const VARIANT& given, Kind wanted, LCID locale) {
    const VARIANT* value = given.vt == (VT_BYREF | VT_VARIANT) ? given.pvarVal : &given;
    if (wanted == Kind::Bytes) return ReadBytes(*value);
    if ((value->vt & VT_ARRAY) != 0) RefuseKind("an array cannot be taken, only its elements one by one");
    OwnedVariant direct, inner, converted;
    if ((value->vt & VT_BYREF) != 0) {
        if (FAILED(::VariantCopyInd(&direct, const_cast<VARIANT*>(value))))
            RefuseKind("the value cannot be read");
        value = &direct;
    }
    if (value->vt == VT_DISPATCH || value->vt == VT_UNKNOWN) {
        if (value->punkVal == nullptr) return {};
        if (auto object = ObjectOf(*value->punkVal)) return object;
        if (wanted == Kind::Object) RefuseKind("this object is none of a document");
        ReadDefault(*value->punkVal, locale, inner);
        value = &inner;
    }
    const VARTYPE type = TypeFor(wanted, value->vt);
    if (type == value->vt || type == VT_DISPATCH) return Read(*value);
    if (value->vt == VT_NULL && type == VT_BSTR) return std::string{};
    const HRESULT outcome =
        ::VariantChangeTypeEx(&converted, const_cast<VARIANT*>(value), locale, VARIANT_ALPHABOOL, type);
    if (outcome == DISP_E_OVERFLOW) Refuse(dwRunOverflow, "the value does not fit");
    if (FAILED(outcome)) RefuseKind("the value is of another kind");
    return Read(converted);
}

void Give(Variant&& value, bool objectExpected, VARIANT& to) {
    ::VariantInit(&to);
    if (const auto* on = std::get_if<bool>(&value)) {
        to.vt = VT_BOOL;
        to.boolVal = *on ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (const auto* number = std::get_if<std::int32_t>(&value)) {
        to.vt = VT_I4;
        to.lVal = *number;
    } else if (const auto* real = std::get_if<double>(&value)) {
        to.vt = VT_R8;
        to.dblVal = *real;
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        to.bstrVal = Text(*text).Detach();
        to.vt = VT_BSTR;
    } else if (const auto* date = std::get_if<Date>(&value)) {
        to.date = WriteDate(*date);
        to.vt = VT_DATE;
    } else if (auto* object = std::get_if<std::shared_ptr<Object>>(&value)) {
        to.pdispVal = Wrap(std::move(*object));
        to.vt = VT_DISPATCH;
    } else if (objectExpected) {
        to.pdispVal = nullptr;
        to.vt = VT_DISPATCH;
    }
}

}  // namespace draftwick::automation
