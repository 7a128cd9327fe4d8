// What the DLL does as a whole: making objects, streams, threads, its registration.
#include "Server.h"

#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <thread>

#include <shlwapi.h>

namespace draftwick::test {

// Bytes come in as an array and go out into a stream, as the program in C++ has them.
TEST(Server, TakesBytesAndFinishesIntoAStream) {
    const std::string picture = ReadFile(DRAFTWICK_PICTURES_FOLDER "/five-colours.bmp");
    std::ostringstream expected;
    const auto twin = Document::Create();
    const auto fill = twin->AddSection()->AddParagraph()->AddShape(dwSKRectangle)->Fill();
    fill->SetStyle(dwSFSPicStretch);
    fill->SetPictureData(picture);
    twin->FinishTo(expected);

    const TempFolder folder;
    const Server server;
    {
        Pointer<IDispatch> at = server.Make(Document::Describe());
        const Pointer<IDispatch> document((at->AddRef(), at.get()));
        Outcome outcome;
        Invoke(*at, NumberNamed(*at, "TempPath"), DISPATCH_PROPERTYPUT, {Of(folder.Path())}, outcome);
        const auto go = [&](std::string_view member, const Values& values) {
            Invoke(*at, NumberNamed(*at, member), DISPATCH_METHOD | DISPATCH_PROPERTYGET, values, outcome);
            at = outcome.Object();
        };
        go("AddSection", {});
        go("AddParagraph", {});
        go("AddShape", {Whole(dwSKRectangle)});
        go("Fill", {});
        Invoke(*at, NumberNamed(*at, "Style"), DISPATCH_PROPERTYPUT, {Whole(dwSFSPicStretch)}, outcome);
        Invoke(*at, NumberNamed(*at, "PictureData"), DISPATCH_PROPERTYPUT, {Bytes(picture)}, outcome);
        EXPECT_EQ(outcome.Said(), "done");

        // What is no stream and what cannot be written leave the document unfinished.
        const DISPID finishTo = NumberNamed(*document, "FinishTo");
        Invoke(*document, finishTo, DISPATCH_METHOD, {Of(document.get())}, outcome);
        EXPECT_EQ(outcome.Said().substr(0, 16), "13 Type mismatch");
        WriteFile(folder / "read-only", "");
        const auto send = [&](IStream* stream) {
            VARIANT sent = OfType(VT_UNKNOWN);
            sent.punkVal = stream;
            Invoke(*document, finishTo, DISPATCH_METHOD, {sent}, outcome);
        };
        IStream* stream = nullptr;
        ASSERT_EQ(::SHCreateStreamOnFileA((folder / "read-only").c_str(), STGM_READ, &stream), S_OK);
        send(stream);
        EXPECT_EQ(outcome.result, DISP_E_EXCEPTION);
        HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, 0);
        ASSERT_EQ(::CreateStreamOnHGlobal(memory, FALSE, &stream), S_OK);
        send(stream);
        EXPECT_EQ(outcome.Said(), "done");
        const char* written = static_cast<const char*>(::GlobalLock(memory));
        EXPECT_EQ(std::string_view(written, std::min(expected.str().size(), ::GlobalSize(memory))),
                  expected.str());
        ::GlobalUnlock(memory);
        ::GlobalFree(memory);
    }
    EXPECT_TRUE(server.CanUnload());
}

TEST(Server, ServesThreadsWithDocumentsOfTheirOwn) {
    const Server server;
    const TempFolder folder;
    const auto work = [&] {
        const Pointer<IDispatch> document = server.Make(Document::Describe());
        Outcome outcome;
        Invoke(*document, NumberNamed(*document, "TempPath"), DISPATCH_PROPERTYPUT, {Of(folder.Path())},
               outcome);
        Invoke(*document, NumberNamed(*document, "AddSection"), DISPATCH_METHOD, {}, outcome);
        const Pointer<IDispatch> section = outcome.Object();
        for (int i = 0; i < 500; ++i) {
            Invoke(*section, NumberNamed(*section, "AddParagraph"), DISPATCH_METHOD, {}, outcome);
            const Pointer<IDispatch> paragraph = outcome.Object();
            Invoke(*paragraph, NumberNamed(*paragraph, "AddTextItem"), DISPATCH_METHOD, {Of("x")}, outcome);
            EXPECT_EQ(outcome.Said(), "done");
        }
    };
    std::thread one(work), other(work);
    one.join();
    other.join();
    EXPECT_TRUE(server.CanUnload());
}

TEST(Server, MakesWhatHostsMakeAndNothingElse) {
    const Server server;
    for (const Class* one : Classes()) {
        IClassFactory* made = nullptr;
        const HRESULT outcome = server.FindFactory(*one, &made);
        EXPECT_EQ(outcome, one->create != nullptr ? S_OK : CLASS_E_CLASSNOTAVAILABLE) << one->name;
        if (made == nullptr) continue;
        const Pointer<IClassFactory> factory(made);
        void* object = nullptr;
        EXPECT_EQ(factory->CreateInstance(factory.get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStream, &object), E_NOINTERFACE);
        factory->LockServer(TRUE);
        EXPECT_FALSE(server.CanUnload());
        factory->LockServer(FALSE);
    }
    EXPECT_TRUE(server.CanUnload());
}

// Without rights for all users the classes are entered for the current one.
TEST(Server, IsRegisteredForWhomThatIsAllowed) {
    const Server server;
    const auto enter = server.Find<HRESULT(STDAPICALLTYPE*)()>("DllRegisterServer");
    const auto takeOut = server.Find<HRESULT(STDAPICALLTYPE*)()>("DllUnregisterServer");
    const std::wstring folder = L"Software\\DraftwickTest";
    const auto make = [&](const wchar_t* name) {
        HKEY key = nullptr;
        ::RegCreateKeyW(HKEY_CURRENT_USER, (folder + name).c_str(), &key);
        return key;
    };
    const HKEY mine = make(L"\\mine"), all = make(L"\\all"), deleted = make(L"\\deleted");
    ::RegDeleteKeyW(HKEY_CURRENT_USER, (folder + L"\\deleted").c_str());  // nothing can be entered there
    const auto has = [](HKEY root) {
        return ::RegGetValueW(root, L"Software\\Classes\\Draftwick.Document\\CLSID", nullptr, RRF_RT_REG_SZ,
                              nullptr, nullptr, nullptr)
               == ERROR_SUCCESS;
    };
    for (const HKEY machine : {all, deleted}) {
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine);
        ::RegOverridePredefKey(HKEY_CURRENT_USER, mine);
        const HRESULT entered = enter();
        const bool forAll = has(HKEY_LOCAL_MACHINE), forMe = has(HKEY_CURRENT_USER);
        const HRESULT taken = takeOut();
        const bool left = has(HKEY_LOCAL_MACHINE) || has(HKEY_CURRENT_USER);
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        EXPECT_EQ(entered, S_OK);
        EXPECT_EQ(SUCCEEDED(taken), machine == all);
        EXPECT_EQ(forAll, machine == all);
        EXPECT_EQ(forMe, machine == deleted);
        EXPECT_FALSE(left);
    }
    for (const HKEY key : {mine, all, deleted}) ::RegCloseKey(key);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, folder.c_str());
}

}  // namespace draftwick::test
