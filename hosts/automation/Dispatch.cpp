#include "Dispatch.h"

#include "Errors.h"
#include "Members.h"
#include "Numbers.h"
#include "Streams.h"
#include "TypeLibrary.h"
#include "Values.h"

#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace draftwick::automation {

namespace {

class Dispatch;

/// The automation objects that hosts hold.
struct {
    std::mutex mutex{};
    std::unordered_map<const Object*, Dispatch*> all{};
} held;

/// Only the objects of this loaded server know it: they are asked for with it.
const IID& OwnIdentifier() {
    static const IID own = [] {
        IID made{};
        ::CoCreateGuid(&made);
        return made;
    }();
    return own;
}

bool IsLeftOut(const VARIANT& value) { return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND; }

class Dispatch final : public Counted<IDispatch>, public ISupportErrorInfo {
public:
    explicit Dispatch(std::shared_ptr<Object> object)
        : object_(std::move(object)), members_(Members::Of(object_->Description())) {}

    const std::shared_ptr<Object>& Held() const { return object_; }
    /// Not when the last reference was just released.
    bool TryAddRef() {
        long now = references_;
        while (now != 0 && !references_.compare_exchange_weak(now, now + 1)) {
        }
        return now != 0;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
        if (result == nullptr) return E_POINTER;
        if (id == IID_ISupportErrorInfo) {
            *result = static_cast<ISupportErrorInfo*>(this);
        } else if (id == IID_IUnknown || id == IID_IDispatch || id == OwnIdentifier() || IsOwnInterface(id)) {
            *result = static_cast<IDispatch*>(this);
        } else {
            *result = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return Counted::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override {
        const long left = --references_;
        if (left == 0) {
            {
                const std::lock_guard lock(held.mutex);
                const auto found = held.all.find(object_.get());
                if (found != held.all.end() && found->second == this) held.all.erase(found);
            }
            delete this;
        }
        return static_cast<ULONG>(left);
    }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override {
        return id == IID_IDispatch || IsOwnInterface(id) ? S_OK : S_FALSE;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count == nullptr) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT which, LCID, ITypeInfo** info) override {
        if (info == nullptr) return E_POINTER;
        *info = nullptr;
        return which != 0 ? DISP_E_BADINDEX : FindTypeInfo(members_.Description().interfaceId, info);
    }

    /// The name of a member, then those of arguments, whose numbers are their positions.
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* numbers) override {
        if (names == nullptr || numbers == nullptr || count == 0) return E_INVALIDARG;
        std::fill_n(numbers, count, DISPID_UNKNOWN);
        const Member* member = members_.Find(std::wstring_view{names[0]});
        if (member != nullptr) {
            numbers[0] = member->number;
        } else if (IsCollection() && IsNamed("_NewEnum", names[0])) {
            numbers[0] = EnumeratorNumber;
        } else {
            return DISP_E_UNKNOWNNAME;
        }
        bool all = true;
        for (UINT i = 1; i < count; ++i) {
            if (member != nullptr) numbers[i] = FindArgument(member->arguments, names[i]);
            all = all && numbers[i] != DISPID_UNKNOWN;
        }
        return all ? S_OK : DISP_E_UNKNOWNNAME;
    }

    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID reserved, LCID locale, WORD how, DISPPARAMS* given,
                                     VARIANT* result, EXCEPINFO* info, UINT*) override {
        if (result != nullptr) ::VariantInit(result);
        if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
        if (given == nullptr) return E_INVALIDARG;
        if (::GetCurrentThreadId() != thread_) return RPC_E_WRONG_THREAD;
        const bool sets = (how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        return Guarded(info, [&]() -> HRESULT {
            if (number == EnumeratorNumber && IsCollection() && !sets) return Enumerate(result);
            const Member* member = members_.Find(number);
            if (member == nullptr || (sets && member->property == nullptr)) return DISP_E_MEMBERNOTFOUND;
            if (member->isFinishTo) return CallFinishTo(*given);
            if (sets) return Set(*member->property, *given, locale);
            if (member->property != nullptr && member->arguments.empty() && given->cArgs > 0)
                return PassOn(*member, how, *given, locale, result, info);
            std::vector<Variant> arguments;
            const HRESULT outcome = Collect(member->arguments, *given, 0, locale, arguments);
            if (FAILED(outcome)) return outcome;
            Variant value = member->property != nullptr ? Get(*object_, member->name, arguments)
                                                        : Call(*object_, member->name, arguments);
            if (result != nullptr) Give(std::move(value), member->optional, *result);
            return S_OK;
        });
    }

private:
    bool IsCollection() const { return members_.Description().items != nullptr; }

    bool IsOwnInterface(REFIID id) const { return IsId(members_.Description().interfaceId, id); }

    static DISPID FindArgument(std::span<const Argument> arguments, std::wstring_view name) {
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            if (IsNamed(arguments[i].name, name)) return static_cast<DISPID>(i);
        }
        return DISPID_UNKNOWN;
    }

    /// The arguments in their order, without those that are left out at the end. `given` has them backwards: first
    /// `values`, which are no arguments, then those that have names, then the others with the last one first.
    static HRESULT Collect(std::span<const Argument> arguments, const DISPPARAMS& given, UINT values,
                           LCID locale, std::vector<Variant>& all) {
        const UINT named = given.cNamedArgs > values ? given.cNamedArgs - values : 0;
        if (given.cArgs < values + named) return DISP_E_BADPARAMCOUNT;
        const UINT plain = given.cArgs - values - named;
        if (plain > arguments.size()) {  // the library refuses them
            all.resize(plain);
            return S_OK;
        }
        std::vector<const VARIANT*> places(arguments.size(), nullptr);
        for (UINT i = 0; i < plain; ++i) places[i] = &given.rgvarg[given.cArgs - 1 - i];
        for (UINT i = values; i < values + named; ++i) {
            const auto at = static_cast<std::size_t>(given.rgdispidNamedArgs[i]);
            if (at >= arguments.size()) return DISP_E_PARAMNOTFOUND;
            if (at < plain) return DISP_E_BADPARAMCOUNT;
            places[at] = &given.rgvarg[i];
        }
        while (!places.empty() && (places.back() == nullptr || IsLeftOut(*places.back()))) places.pop_back();
        all.reserve(places.size() + 1);
        for (std::size_t i = 0; i < places.size(); ++i) {
            const Argument& argument = arguments[i];
            if (places[i] != nullptr && !IsLeftOut(*places[i])) {
                all.push_back(Take(*places[i], argument.type->kind, locale));
            } else if (argument.initial) {
                all.push_back(*argument.initial);
            } else {
                Refuse(dwRunInvalidCall, "the argument " + std::string{argument.name} + " is missing");
            }
        }
        return S_OK;
    }

    HRESULT Set(const ClassProperty& property, const DISPPARAMS& given, LCID locale) {
        if (given.cArgs == 0) return DISP_E_BADPARAMCOUNT;
        std::vector<Variant> arguments;
        const HRESULT outcome = Collect(property.arguments, given, 1, locale, arguments);
        if (FAILED(outcome)) return outcome;
        // What can only be read is refused whatever the value is.
        Variant value =
            property.set == nullptr ? Variant{} : Take(given.rgvarg[0], property.type->kind, locale);
        draftwick::Set(*object_, property.name, value, arguments);
        return S_OK;
    }

    /// document.Fonts("Arial"): the arguments are for the default member of what the property gives.
    HRESULT PassOn(const Member& member, WORD how, DISPPARAMS& given, LCID locale, VARIANT* result,
                   EXCEPINFO* info) {
        Variant value = Get(*object_, member.name);
        auto* object = std::get_if<std::shared_ptr<Object>>(&value);
        if (object == nullptr) Refuse(dwRunInvalidCall, "too many arguments");
        const Pointer<IDispatch> part(Wrap(std::move(*object)));
        return part->Invoke(DISPID_VALUE, IID_NULL, locale, how, &given, result, info, nullptr);
    }

    HRESULT CallFinishTo(const DISPPARAMS& given) {
        if (given.cArgs != 1) Refuse(dwRunInvalidCall, "one argument is wanted, a stream");
        FinishTo(*object_, given.rgvarg[0]);
        return S_OK;
    }

    HRESULT Enumerate(VARIANT* result) {
        if (result == nullptr) return S_OK;
        result->punkVal = MakeEnumerator(object_);
        result->vt = VT_UNKNOWN;
        return S_OK;
    }

    const DWORD thread_ = ::GetCurrentThreadId();
    const std::shared_ptr<Object> object_;
    const Members& members_;
};

}  // namespace

IDispatch* Wrap(std::shared_ptr<Object> object) {
    const std::lock_guard lock(held.mutex);
    Dispatch*& place = held.all[object.get()];
    if (place == nullptr || !place->TryAddRef()) place = new Dispatch(std::move(object));
    return place;
}

std::shared_ptr<Object> ObjectOf(IUnknown& unknown) {
    void* own = nullptr;
    if (FAILED(unknown.QueryInterface(OwnIdentifier(), &own))) return nullptr;
    const Pointer<IDispatch> dispatch(static_cast<IDispatch*>(own));
    return static_cast<Dispatch*>(dispatch.get())->Held();
}

}  // namespace draftwick::automation
