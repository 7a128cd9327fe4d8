#include "tests/support/Errors.h"
#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <atomic>
#include <system_error>
#include <windows.h>

#include <oleauto.h>

namespace draftwick::test {

namespace {

// {6C1E1C52-3C0B-4C53-9C0F-3D7A9E1B6A10}
constexpr CLSID StandInId{0x6C1E1C52, 0x3C0B, 0x4C53, {0x9C, 0x0F, 0x3D, 0x7A, 0x9E, 0x1B, 0x6A, 0x10}};
constexpr const wchar_t* StandInIdText = L"{6C1E1C52-3C0B-4C53-9C0F-3D7A9E1B6A10}";

std::string Narrow(BSTR text) {
    std::string narrow;
    for (UINT i = 0; i < ::SysStringLen(text); ++i) narrow += static_cast<char>(text[i]);
    return narrow;
}

/// What all stand-ins of a test share.
struct Script {
    std::string log;
    std::string version = "9.0.2812";
    int failingOpens = 0;
    int created = 0;
    int living = 0;

    void Write(const std::string& entry) { log += (log.empty() ? "" : "; ") + entry; }
    std::string Take() { return std::exchange(log, {}); }
};

/// A word processor that writes down what it is asked to do, and its own collection of documents.
class StandIn final : public IDispatch {
public:
    explicit StandIn(Script& script) : script_(script) { ++script_.living; }
    virtual ~StandIn() { --script_.living; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (id != IID_IUnknown && id != IID_IDispatch) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        const wchar_t* const known[] = {L"Version", L"Visible",  L"Activate", L"Documents",
                                        L"Open",    L"PrintOut", L"Echo"};
        for (DISPID i = 0; i < static_cast<DISPID>(std::size(known)); ++i) {
            if (::lstrcmpiW(names[0], known[i]) == 0) {
                *ids = i + 1;
                return S_OK;
            }
        }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD how, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT*) override {
        const VARIANT* arguments = parameters->rgvarg;
        switch (member) {
        case 1:
            script_.Write("Version");
            result->vt = VT_BSTR;
            result->bstrVal =
                ::SysAllocString(std::wstring(script_.version.begin(), script_.version.end()).c_str());
            return S_OK;
        case 2:
            if (how != DISPATCH_PROPERTYPUT || parameters->cNamedArgs != 1
                || parameters->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT || arguments[0].vt != VT_BOOL)
                return DISP_E_TYPEMISMATCH;
            script_.Write(arguments[0].boolVal == VARIANT_TRUE ? "Visible" : "Hidden");
            return S_OK;
        case 3: script_.Write("Activate"); return S_OK;
        case 4:
            result->vt = VT_DISPATCH;
            return QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&result->pdispVal));
        case 5:
            script_.Write("Open " + Narrow(arguments[0].bstrVal));
            if (script_.failingOpens == 0) return S_OK;
            --script_.failingOpens;
            exception->bstrDescription = ::SysAllocString(L"The file is in use");
            exception->scode = static_cast<SCODE>(0x800A1436);
            return DISP_E_EXCEPTION;
        case 6: script_.Write("PrintOut"); return S_OK;
        case 7:  // gives its last argument back
            if (parameters->cArgs == 0) return S_OK;
            return ::VariantCopy(result, const_cast<VARIANT*>(&arguments[0]));
        default: return DISP_E_MEMBERNOTFOUND;
        }
    }

private:
    Script& script_;
    std::atomic<ULONG> references_{1};
};

/// Makes stand-ins for whoever asks the system for a word processor.
class Factory final : public IClassFactory {
public:
    explicit Factory(Script& script) : script_(script) {}
    virtual ~Factory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = id == IID_IUnknown || id == IID_IClassFactory;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }  // it lives as long as its test
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
        ++script_.created;
        auto* made = new StandIn(script_);
        const HRESULT result = made->QueryInterface(id, object);
        made->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    Script& script_;
};

/// The stand-in as the system's Word.Application. A machine that has a real one is left alone.
class WordApplication : public testing::Test {
protected:
    void SetUp() override {
        // The system knows one Word.Application at a time, whoever registers it.
        ASSERT_EQ(::WaitForSingleObject(turn_, INFINITE) & ~DWORD{WAIT_ABANDONED}, 0U);
        ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
        CLSID id{};
        if (SUCCEEDED(::CLSIDFromProgID(L"Word.Application", &id))) GTEST_SKIP() << "there is a real one";
        registered_ = true;
        ASSERT_EQ(::RegSetValueW(HKEY_CLASSES_ROOT, L"Word.Application\\CLSID", REG_SZ, StandInIdText, 0), 0);
    }
    void TearDown() override {
        document.reset();
        Remove();
        StopRunning();
        if (registered_) ::RegDeleteTreeW(HKEY_CLASSES_ROOT, L"Word.Application");
        EXPECT_EQ(script.living, 0) << "references are left over";
        ::CoUninitialize();
        ::ReleaseMutex(turn_);
        ::CloseHandle(turn_);
    }

    /// It can be started.
    void Install() {
        ASSERT_TRUE(SUCCEEDED(::CoRegisterClassObject(StandInId, &factory_, CLSCTX_INPROC_SERVER,
                                                      REGCLS_MULTIPLEUSE, &class_)));
    }
    void Remove() {
        if (class_ != 0) ::CoRevokeClassObject(std::exchange(class_, 0));
    }
    /// It runs already.
    void Run() {
        auto* running = new StandIn(script);
        EXPECT_TRUE(SUCCEEDED(::RegisterActiveObject(running, StandInId, ACTIVEOBJECT_STRONG, &running_)));
        running->Release();
    }
    void StopRunning() {
        if (running_ != 0) ::RevokeActiveObject(std::exchange(running_, 0), nullptr);
    }

    Script script;
    TempFolder folder;
    std::string file = folder / "A letter.rtf";
    std::shared_ptr<Document> document = [this] {
        auto made = Document::Create();
        made->SetFilename(file);
        return made;
    }();

private:
    Factory factory_{script};
    DWORD class_ = 0;
    DWORD running_ = 0;
    bool registered_ = false;
    HANDLE turn_ = ::CreateMutexW(nullptr, FALSE, L"Draftwick tests, Word.Application");
};

}  // namespace

TEST_F(WordApplication, ThatRunsShowsTheDocument) {
    Run();
    EXPECT_EQ(document->Preview(), dwViewerWord2000);
    EXPECT_EQ(script.Take(), "Version; Visible; Activate; Open " + file + "; Visible; Activate");
    EXPECT_EQ(script.created, 0);
    const auto app = document->ViewerApp();
    ASSERT_NE(app, nullptr);
    EXPECT_EQ(app->GetProperty("version"), Variant{std::string{"9.0.2812"}});
    script.version = "8.0";
    EXPECT_EQ(document->PrintOut(), dwViewerWord97);
    EXPECT_EQ(script.Take(),
              "Version; Version; Version; Visible; Activate; Open " + file + "; Visible; Activate; PrintOut");
}

TEST_F(WordApplication, IsStartedWhenNoneRunsOrTheOneThatRunsFails) {
    EXPECT_EQ(RefusalNumber([&] { document->Preview(dwViewerWord97); }), dwRunCannotCreateObject);
    Install();
    EXPECT_EQ(document->Preview(dwViewerWord2000), dwViewerWord2000);
    EXPECT_EQ(script.created, 1);
    EXPECT_EQ(RefusalNumber([&] { document->Preview(dwViewerWord97); }), dwRunCannotCreateObject);
    EXPECT_EQ(document->ViewerApp(), nullptr);
    script.Take();
    Run();
    script.created = 0;
    script.failingOpens = 1;
    EXPECT_EQ(document->Preview(dwViewerWord2000), dwViewerWord2000);
    EXPECT_EQ(script.Take(),
              "Version; Visible; Activate; Open " + file + "; Version; Open " + file + "; Visible; Activate");
    EXPECT_EQ(script.created, 1);
}

TEST_F(WordApplication, TakesAndGivesEveryKindOfValue) {
    Run();
    document->Preview();
    const auto app = document->ViewerApp();
    for (const Variant& value :
         {Variant{true}, Variant{-7}, Variant{2.5}, Variant{std::string{"K\xC3\xA4se \xF0\x9F\x98\x80"}},
          Variant{std::string{}}}) {
        EXPECT_EQ(app->CallMethod("Echo", 1, value), value);
    }
    EXPECT_EQ(app->CallMethod("Echo"), Variant{});
    const auto documents = app->GetProperty("Documents");
    const auto echoed = std::get<std::shared_ptr<Object>>(app->CallMethod("Echo", documents));
    EXPECT_EQ(std::dynamic_pointer_cast<AutomationObject>(echoed)->GetProperty("Version"),
              Variant{std::string{"9.0.2812"}});
    script.failingOpens = 1;
    try {
        app->CallMethod("Open", std::string{"x"});
        ADD_FAILURE() << "it was opened";
    } catch (const std::system_error& error) {
        EXPECT_EQ(static_cast<std::uint32_t>(error.code().value()), 0x800A1436U);
        EXPECT_NE(std::string{error.what()}.find("'Open': The file is in use"), std::string::npos);
    }
    EXPECT_THROW(app->GetProperty("Shelf"), std::system_error);
    EXPECT_THROW(app->SetProperty("Visible", 1), std::system_error);
}

}  // namespace draftwick::test
