#include <draftwick/platform/Platform.h>

#include <gtest/gtest.h>

#include <string>
#include <system_error>
#include <windows.h>

#include <oleauto.h>

namespace draftwick::test {

namespace {

using platform::AutomationValue;

// {6C1E1C52-3C0B-4C53-9C0F-3D7A9E1B6A10}
constexpr CLSID StandInId{0x6C1E1C52, 0x3C0B, 0x4C53, {0x9C, 0x0F, 0x3D, 0x7A, 0x9E, 0x1B, 0x6A, 0x10}};
constexpr const wchar_t* StandInIdText = L"{6C1E1C52-3C0B-4C53-9C0F-3D7A9E1B6A10}";

/// Another program's object, and what makes it: each new one is the same.
class StandIn final : public IDispatch, public IClassFactory {
public:
    ULONG references = 0;
    int created = 0;
    bool visible = false;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = nullptr;
        if (id == IID_IUnknown || id == IID_IDispatch) *object = static_cast<IDispatch*>(this);
        if (id == IID_IClassFactory) *object = static_cast<IClassFactory*>(this);
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
        ++created;
        return QueryInterface(id, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        const wchar_t* const known[] = {L"Visible", L"Self", L"Echo", L"Fail"};
        for (DISPID i = 0; i < 4; ++i) {
            if (::lstrcmpiW(names[0], known[i]) == 0) return *ids = i + 1, S_OK;
        }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD how, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT*) override {
        const VARIANT* arguments = parameters->rgvarg;
        switch (member) {
        case 1:
            if (how != DISPATCH_PROPERTYPUT || parameters->cNamedArgs != 1
                || parameters->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT || arguments[0].vt != VT_BOOL)
                return DISP_E_TYPEMISMATCH;
            visible = arguments[0].boolVal == VARIANT_TRUE;
            return S_OK;
        case 2:
            if (how != DISPATCH_PROPERTYGET) return DISP_E_MEMBERNOTFOUND;
            result->vt = VT_DISPATCH;
            return QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&result->pdispVal));
        case 3:  // gives its last argument back, which comes first
            return parameters->cArgs == 0 ? S_OK : ::VariantCopy(result, const_cast<VARIANT*>(&arguments[0]));
        default:
            exception->bstrDescription = ::SysAllocString(L"The file is in use");
            exception->scode = static_cast<SCODE>(0x800A1436);
            return DISP_E_EXCEPTION;
        }
    }
};

}  // namespace

TEST(Automation, ReachesRunningAndNewObjectsOfOtherPrograms) {
    const char* const name = "Draftwick.StandIn";
    const auto automation = platform::SystemPlatform().automation;
    ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    EXPECT_THROW(automation->Create(name), std::system_error);
    ASSERT_EQ(::RegSetValueW(HKEY_CLASSES_ROOT, L"Draftwick.StandIn\\CLSID", REG_SZ, StandInIdText, 0), 0);
    EXPECT_THROW(automation->Attach(name), std::system_error);
    StandIn program;
    DWORD made = 0, running = 0;
    ASSERT_TRUE(SUCCEEDED(
        ::RegisterActiveObject(static_cast<IDispatch*>(&program), StandInId, ACTIVEOBJECT_STRONG, &running)));
    auto object = automation->Attach(name);
    EXPECT_EQ(program.created, 0);
    object->Put("visible", true);
    EXPECT_TRUE(program.visible);
    ASSERT_TRUE(SUCCEEDED(::CoRegisterClassObject(StandInId, static_cast<IClassFactory*>(&program),
                                                  CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &made)));
    object = automation->Create(name);
    EXPECT_EQ(program.created, 1);

    for (const AutomationValue& value :
         {AutomationValue{true}, AutomationValue{-7}, AutomationValue{2.5}, AutomationValue{},
          AutomationValue{"K\xC3\xA4se \xF0\x9F\x98\x80"}, AutomationValue{std::string{}}}) {
        const AutomationValue arguments[] = {1, value};
        EXPECT_EQ(object->Call("Echo", arguments), value);
    }
    EXPECT_EQ(object->Call("Echo", {}), AutomationValue{});
    {
        const AutomationValue self = object->Get("Self");
        const AutomationValue echoed = object->Call("Echo", {&self, 1});
        std::get<std::shared_ptr<platform::AutomationObject>>(echoed)->Put("Visible", false);
        EXPECT_FALSE(program.visible);
    }
    EXPECT_THROW(object->Get("Shelf"), std::system_error);
    EXPECT_THROW(object->Put("Visible", 1), std::system_error);
    try {
        object->Call("Fail", {});
        ADD_FAILURE() << "it did not";
    } catch (const std::system_error& error) {
        EXPECT_EQ(static_cast<std::uint32_t>(error.code().value()), 0x800A1436U);
        EXPECT_NE(std::string{error.what()}.find("'Fail': The file is in use"), std::string::npos);
    }
    ::CoRevokeClassObject(made);
    ::RevokeActiveObject(running, nullptr);
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, L"Draftwick.StandIn");
    object.reset();
    ::CoUninitialize();
    EXPECT_EQ(program.references, 0U) << "references are left over";
}

}  // namespace draftwick::test
