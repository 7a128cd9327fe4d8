#include <draftwick/platform/windows/Windows.h>

#include <oleauto.h>
#include <utility>
#include <vector>

namespace draftwick::platform {

namespace {

using namespace windows;

[[noreturn]] void Fail(HRESULT result, const std::string& what) {
    throw std::system_error(static_cast<int>(result), std::system_category(), what);
}
void Check(HRESULT result, const std::string& what) {
    if (FAILED(result)) Fail(result, what);
}

/// A variant that frees what it holds.
class Cell {
public:
    Cell() { ::VariantInit(&value_); }
    ~Cell() { ::VariantClear(&value_); }
    Cell(Cell&& other) noexcept : value_(std::exchange(other.value_, VARIANT{})) {}
    Cell& operator=(Cell&&) = delete;
    VARIANT* operator->() { return &value_; }
    VARIANT* Get() { return &value_; }

private:
    VARIANT value_;
};

class Object final : public AutomationObject {
public:
    Object(std::shared_ptr<Apartment> apartment, ComPointer<IDispatch> object)
        : apartment_(std::move(apartment)), object_(std::move(object)) {}

    AutomationValue Get(const std::string& property) override {
        return Invoke(property, DISPATCH_PROPERTYGET, {});
    }
    void Put(const std::string& property, const AutomationValue& value) override {
        Invoke(property, DISPATCH_PROPERTYPUT, {&value, 1});
    }
    AutomationValue Call(const std::string& method, std::span<const AutomationValue> arguments) override {
        // Some members are methods and some are properties that take arguments; callers cannot know.
        return Invoke(method, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
    }

private:
    AutomationValue Invoke(const std::string& name, int how, std::span<const AutomationValue> arguments) {
        std::wstring wide = ToWide(name);
        wchar_t* names = wide.data();
        DISPID member = 0;
        Check(object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member), "'" + name + "'");

        std::vector<Cell> cells;  // the last argument comes first
        for (std::size_t i = arguments.size(); i-- > 0;) cells.push_back(Send(arguments[i]));
        std::vector<VARIANT> values;
        for (Cell& cell : cells) values.push_back(*cell.Get());
        DISPID put = DISPID_PROPERTYPUT;
        DISPPARAMS parameters{values.data(), nullptr, static_cast<UINT>(values.size()), 0};
        if (how == DISPATCH_PROPERTYPUT) {
            parameters.rgdispidNamedArgs = &put;
            parameters.cNamedArgs = 1;
        }
        Cell result;
        EXCEPINFO exception{};
        const HRESULT outcome =
            object_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, static_cast<WORD>(how), &parameters,
                            how == DISPATCH_PROPERTYPUT ? nullptr : result.Get(), &exception, nullptr);
        if (outcome == DISP_E_EXCEPTION) Raise(exception, name);
        Check(outcome, "'" + name + "'");
        return Receive(result);
    }

    /// What the other program says went wrong.
    [[noreturn]] static void Raise(EXCEPINFO& exception, const std::string& name) {
        if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
        std::string what = "'" + name + "'";
        if (exception.bstrDescription != nullptr)
            what += ": " + FromWide({exception.bstrDescription, ::SysStringLen(exception.bstrDescription)});
        const HRESULT code = exception.scode != 0 ? exception.scode : DISP_E_EXCEPTION;
        ::SysFreeString(exception.bstrSource);
        ::SysFreeString(exception.bstrDescription);
        ::SysFreeString(exception.bstrHelpFile);
        Fail(code, what);
    }

    static Cell Send(const AutomationValue& value) {
        Cell cell;
        if (const auto* flag = std::get_if<bool>(&value)) {
            cell->vt = VT_BOOL;
            cell->boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
        } else if (const auto* number = std::get_if<std::int32_t>(&value)) {
            cell->vt = VT_I4;
            cell->lVal = *number;
        } else if (const auto* real = std::get_if<double>(&value)) {
            cell->vt = VT_R8;
            cell->dblVal = *real;
        } else if (const auto* text = std::get_if<std::string>(&value)) {
            const std::wstring wide = ToWide(*text);
            cell->vt = VT_BSTR;
            cell->bstrVal = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
            if (cell->bstrVal == nullptr) throw std::bad_alloc();
        } else if (const auto* other = std::get_if<std::shared_ptr<AutomationObject>>(&value)) {
            const auto object = std::dynamic_pointer_cast<Object>(*other);
            cell->vt = VT_DISPATCH;
            cell->pdispVal = object == nullptr ? nullptr : object->object_.get();
            if (object != nullptr) object->object_->AddRef();
        }
        return cell;
    }

    AutomationValue Receive(Cell& cell) const {
        if (cell->vt == VT_DISPATCH || cell->vt == VT_UNKNOWN) {
            void* object = nullptr;
            if (cell->punkVal == nullptr || FAILED(cell->punkVal->QueryInterface(IID_IDispatch, &object)))
                return {};
            return std::make_shared<Object>(apartment_,
                                            ComPointer<IDispatch>(static_cast<IDispatch*>(object)));
        }
        switch (cell->vt & VT_TYPEMASK) {
        case VT_EMPTY:
        case VT_NULL: return {};
        case VT_BOOL: return ChangeTo(cell, VT_BOOL), cell->boolVal != VARIANT_FALSE;
        case VT_I1:
        case VT_UI1:
        case VT_I2:
        case VT_UI2:
        case VT_I4:
        case VT_INT: return ChangeTo(cell, VT_I4), static_cast<std::int32_t>(cell->lVal);
        case VT_R4:
        case VT_R8:
        case VT_UI4:
        case VT_UINT:
        case VT_CY:
        case VT_DECIMAL: return ChangeTo(cell, VT_R8), cell->dblVal;
        default: ChangeTo(cell, VT_BSTR); return FromWide({cell->bstrVal, ::SysStringLen(cell->bstrVal)});
        }
    }

    static void ChangeTo(Cell& cell, VARTYPE type) {
        Check(::VariantChangeTypeEx(cell.Get(), cell.Get(), LOCALE_INVARIANT, 0, type), "the value");
    }

    std::shared_ptr<Apartment> apartment_;  // outlives the object
    ComPointer<IDispatch> object_;
};

class OleAutomation final : public Automation {
public:
    std::shared_ptr<AutomationObject> Attach(const std::string& className) override {
        return Reach(className, [](const CLSID& id, void** object) {
            IUnknown* running = nullptr;
            const HRESULT result = ::GetActiveObject(id, nullptr, &running);
            if (FAILED(result)) return result;
            return ComPointer<IUnknown>(running)->QueryInterface(IID_IDispatch, object);
        });
    }

    std::shared_ptr<AutomationObject> Create(const std::string& className) override {
        return Reach(className, [](const CLSID& id, void** object) {
            return ::CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IDispatch, object);
        });
    }

private:
    template <class Find>
    static std::shared_ptr<AutomationObject> Reach(const std::string& className, Find find) {
        auto apartment = std::make_shared<Apartment>();
        CLSID id{};
        Check(::CLSIDFromProgID(ToWide(className).c_str(), &id), "'" + className + "'");
        void* object = nullptr;
        Check(find(id, &object), "'" + className + "'");
        ComPointer<IDispatch> owned(static_cast<IDispatch*>(object));
        return std::make_shared<Object>(std::move(apartment), std::move(owned));
    }
};

}  // namespace

std::shared_ptr<Automation> MakeAutomation() { return std::make_shared<OleAutomation>(); }

}  // namespace draftwick::platform
