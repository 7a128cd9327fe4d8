// Walks all members of all classes of the DLL with what a host can send, and looks that nothing is left.
#include "Server.h"

#include "hosts/automation/Members.h"
#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <thread>

#include <psapi.h>

namespace draftwick::test {

namespace {

using automation::Member;
using automation::Members;

/// The class that the type library names for an object.
const Class& ClassOf(IDispatch& object) {
    ITypeInfo* found = nullptr;
    if (FAILED(object.GetTypeInfo(0, LOCALE_INVARIANT, &found))) throw std::runtime_error("no type");
    const Pointer<ITypeInfo> info(found);
    VARIANT name = OfType(VT_BSTR);
    info->GetDocumentation(MEMBERID_NIL, &name.bstrVal, nullptr, nullptr, nullptr);
    const std::string text = automation::FromWide({name.bstrVal, ::SysStringLen(name.bstrVal)});
    ::VariantClear(&name);
    for (const Class* one : Classes()) {
        if ("I" + std::string{one->name} == text) return *one;
    }
    throw std::runtime_error("no class " + text);
}

/// What ends a document, starts programs or takes away what is walked.
const std::set<std::string_view> Last{"Finish", "Preview", "PrintOut", "Discard", "Remove"};

/// What a host gives where it knows nothing better: 1, or a text where that is of the wrong kind.
void UseWithAnything(IDispatch& object, const Member& member, Outcome& outcome) {
    const WORD how = member.property != nullptr ? DISPATCH_PROPERTYGET : DISPATCH_METHOD;
    for (const bool isText : {false, true}) {
        Values values;
        for (const Argument& argument : member.arguments) {
            const Kind kind = argument.type->kind;
            const bool isLeftOut = argument.initial && (kind == Kind::Boolean || kind == Kind::Object);
            values.all.push_back(isLeftOut ? LeftOut() : isText ? Of("A") : Whole(1));
        }
        Invoke(object, member.number, how, values, outcome);
        if (outcome.result == S_OK) return;
    }
}

class Walk : public testing::Test {
protected:
    void SetUp() override {
        document_ = server_.Make(Document::Describe());
        Outcome outcome;
        const Members& members = Members::Of(Document::Describe());
        Invoke(*document_, members.Find(L"TempPath")->number, DISPATCH_PROPERTYPUT, {Of(folder_.Path())},
               outcome);
        for (const wchar_t* names : {L"Fonts", L"ParagraphStyles", L"TextStyles", L"Lists"}) {
            Invoke(*document_, members.Find(names)->number, DISPATCH_PROPERTYGET, {}, outcome);
            const Pointer<IDispatch> collection = outcome.Object();
            Invoke(*collection, NumberNamed(*collection, "Add"), DISPATCH_METHOD, {Of("A")}, outcome);
        }
        FindAll();
    }

    /// One object of each class, from the document by every member, and one that hosts make.
    void FindAll() {
        document_->AddRef();
        Find(Pointer<IDispatch>(document_.get()));
        for (const Class* one : Classes()) {
            if (one->create != nullptr && !objects_.contains(one)) objects_.emplace(one, server_.Make(*one));
        }
    }

    /// An object and what it leads to, before what is added next writes it.
    void Find(Pointer<IDispatch> object) {
        IDispatch& found = *object;
        const Members& members = Members::Of(ClassOf(found));
        if (!objects_.emplace(&members.Description(), std::move(object)).second) return;
        for (const bool isProperty : {true, false}) {
            for (const Member& member : members.All()) {
                if (Last.contains(member.name) || (member.property != nullptr) != isProperty) continue;
                Outcome outcome;
                UseWithAnything(found, member, outcome);
                if (Pointer<IDispatch> next = outcome.Object(); next != nullptr) Find(std::move(next));
            }
        }
    }

    void ForEach(const std::function<void(IDispatch&, const Member&)>& use) const {
        for (const auto& [one, object] : objects_) {
            SCOPED_TRACE(one->name);
            for (const Member& member : Members::Of(*one).All()) {
                SCOPED_TRACE(member.name);
                use(*object, member);
            }
        }
    }

    void TearDown() override {
        for (auto& [one, object] : objects_) {
            if (one == &Document::Describe()) continue;
            EXPECT_EQ(object.release()->Release(), 0u) << one->name;
        }
        objects_.clear();
        if (document_ != nullptr) {
            EXPECT_EQ(document_.release()->Release(), 0u);
        }
        EXPECT_TRUE(server_.CanUnload());
    }

    const TempFolder folder_;
    const Server server_;
    Pointer<IDispatch> document_;
    std::map<const Class*, Pointer<IDispatch>> objects_;
};

const std::string WrongKind = "13 Type mismatch", Invalid = "5 Invalid procedure call or argument",
                  Gone = "91 The document of this object is gone", NoMember = "0x80020003",
                  WrongThread = "0x8001010E";

std::string Begin(const Outcome& outcome, const std::string& expected) {
    return outcome.Said().substr(0, expected.size());
}

}  // namespace

TEST_F(Walk, FindsEveryClassButThatOfOtherPrograms) {
    for (const Class* one : Classes())
        EXPECT_EQ(objects_.contains(one), one != &AutomationObject::Describe()) << one->name;
}

TEST_F(Walk, FindsMembersByNamesInAnyCaseAsTheTypeLibraryHasThem) {
    ForEach([](IDispatch& object, const Member& member) {
        std::string name{member.name};
        for (char& c : name) c = static_cast<char>(std::toupper(c));
        EXPECT_EQ(NumberNamed(object, name), member.number);
        ITypeInfo* found = nullptr;
        ASSERT_EQ(object.GetTypeInfo(0, LOCALE_INVARIANT, &found), S_OK);
        const Pointer<ITypeInfo> info(found);
        const std::wstring wide(name.begin(), name.end());
        auto* asked = const_cast<wchar_t*>(wide.c_str());
        MEMBERID number = 0;
        EXPECT_EQ(info->GetIDsOfNames(&asked, 1, &number), S_OK);
        EXPECT_EQ(number, member.number);
        for (std::size_t i = 0; i < member.arguments.size(); ++i) {
            const std::wstring argument(member.arguments[i].name.begin(), member.arguments[i].name.end());
            wchar_t* both[]{asked, const_cast<wchar_t*>(argument.c_str())};
            DISPID numbers[2]{};
            EXPECT_EQ(object.GetIDsOfNames(IID_NULL, both, 2, LOCALE_INVARIANT, numbers), S_OK);
            EXPECT_EQ(numbers[1], static_cast<DISPID>(i));
        }
        EXPECT_EQ(NumberNamed(object, name + "x"), DISPID_UNKNOWN);
    });
}

// Whatever is sent: it is done, or the host hears why not.
TEST_F(Walk, AnswersWhateverIsSent) {
    const auto send = [](IDispatch& object, const Member& member, WORD how, const Values& values) {
        Outcome outcome;
        Invoke(object, member.number, how, values, outcome);
        const std::string said = outcome.Said();
        if (outcome.result == DISP_E_EXCEPTION) {
            EXPECT_FALSE(outcome.text.empty() || outcome.source.empty()) << said;
            EXPECT_LT(outcome.code, 0) << said;
            EXPECT_EQ(outcome.helpFile.empty(), said[0] != '-') << said;
        } else {
            EXPECT_TRUE(said == "done" || said == NoMember) << said;
        }
        return said;
    };
    IDispatch& foreign = *document_;
    ForEach([&](IDispatch& object, const Member& member) {
        const bool isProperty = member.property != nullptr;
        if (Last.contains(member.name)) return;
        const WORD get = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
        Values tooMany;
        for (int i = 0; i < 12; ++i) tooMany.all.push_back(Whole(1));
        const std::string said = send(object, member, get, tooMany);
        EXPECT_TRUE(said.starts_with(Invalid) || said == NoMember) << said;
        const VARIANT each[]{OfType(VT_EMPTY),
                             OfType(VT_NULL),
                             Whole(-2147483647 - 1),
                             Real(1e300),
                             Of("\xF0\x9F\x98\x80"),
                             OfDate(1e9),
                             Of(&foreign),
                             Of(static_cast<IDispatch*>(nullptr)),
                             Flag(true),
                             OfType(VT_RECORD),
                             Array(),
                             LeftOut()};
        for (const VARIANT& value : each) {
            Values values;
            const std::size_t count = member.arguments.size() + (isProperty ? 1 : 0);
            for (std::size_t i = 0; i < count; ++i) {
                values.all.emplace_back(OfType(VT_EMPTY));
                if (value.vt == VT_RECORD)
                    values.all.back().vt = VT_RECORD;
                else
                    ::VariantCopy(&values.all.back(), const_cast<VARIANT*>(&value));
            }
            const bool canSet = isProperty && member.property->set != nullptr;
            if (isProperty) {
                const std::string answer = send(object, member, DISPATCH_PROPERTYPUT, values);
                const bool isWrong = value.vt == (VT_ARRAY | VT_VARIANT) || value.vt == VT_RECORD;
                const std::string_view expected = !canSet ? Invalid : isWrong ? WrongKind : "";
                EXPECT_EQ(answer.substr(0, expected.size()), expected);
            } else {
                send(object, member, get, values);
                EXPECT_EQ(send(object, member, DISPATCH_PROPERTYPUT, values), NoMember);
            }
            for (VARIANT& given : values.all) {
                if (given.vt == VT_RECORD) given.vt = VT_EMPTY;
            }
        }
        for (VARIANT value : each) {
            if (value.vt != VT_RECORD) ::VariantClear(&value);
        }
    });
}

TEST_F(Walk, KnowsArgumentsByNameOrByPositionButNotByBoth) {
    ForEach([](IDispatch& object, const Member& member) {
        if (member.property != nullptr || member.arguments.empty() || member.isFinishTo) return;
        Outcome outcome;
        Invoke(object, member.number, DISPATCH_METHOD, {OfType(VT_EMPTY)}, outcome, {99});
        EXPECT_EQ(outcome.result, DISP_E_PARAMNOTFOUND);
        Invoke(object, member.number, DISPATCH_METHOD, {OfType(VT_EMPTY), OfType(VT_EMPTY)}, outcome, {0});
        EXPECT_EQ(outcome.result, DISP_E_BADPARAMCOUNT);
    });
}

TEST_F(Walk, RefusesSettingsOnceTheDocumentIsGone) {
    objects_.erase(&Document::Describe());
    document_.reset();
    ForEach([](IDispatch& object, const Member& member) {
        if (member.property == nullptr || member.property->set == nullptr) return;
        const Kind kind = member.property->type->kind;
        Values values;
        for (std::size_t i = 0; i < member.arguments.size(); ++i) values.all.push_back(Whole(1));
        values.all.push_back(kind == Kind::Boolean ? Flag(true)
                             : kind == Kind::Bytes ? Bytes("BM")
                                                   : Whole(1));
        Outcome outcome;
        Invoke(object, member.number, DISPATCH_PROPERTYPUT, values, outcome);
        EXPECT_EQ(Begin(outcome, Gone), Gone);
    });
}

TEST_F(Walk, RefusesOtherThreads) {
    std::thread([this] {
        ForEach([](IDispatch& object, const Member& member) {
            Outcome outcome;
            Invoke(object, member.number, DISPATCH_PROPERTYGET, {}, outcome);
            EXPECT_EQ(outcome.Said(), WrongThread);
        });
        objects_.erase(&Special::Describe());  // released here
    }).join();
}

TEST_F(Walk, EnumeratesCollections) {
    int collections = 0;
    for (const auto& [one, object] : objects_) {
        SCOPED_TRACE(one->name);
        Outcome outcome;
        const DISPID number = NumberNamed(*object, "_NewEnum");
        EXPECT_EQ(number, one->items != nullptr ? DISPID_NEWENUM : DISPID_UNKNOWN);
        Invoke(*object, DISPID_NEWENUM, DISPATCH_PROPERTYGET, {}, outcome);
        if (one->items == nullptr) {
            EXPECT_EQ(outcome.Said(), NoMember);
            continue;
        }
        ++collections;
        void* asked = nullptr;
        ASSERT_EQ(outcome.value.punkVal->QueryInterface(IID_IEnumVARIANT, &asked), S_OK);
        const Pointer<IEnumVARIANT> items(static_cast<IEnumVARIANT*>(asked));
        Outcome count;
        Invoke(*object, NumberNamed(*object, "Count"), DISPATCH_PROPERTYGET, {}, count);
        ASSERT_GT(count.value.lVal, 0);
        for (std::int32_t i = 1; i <= count.value.lVal; ++i) {
            OwnedVariant item;
            ULONG fetched = 0;
            ASSERT_EQ(items->Next(1, &item, &fetched), S_OK);
            EXPECT_EQ(fetched, 1u);
            Outcome same;
            Invoke(*object, DISPID_VALUE, DISPATCH_PROPERTYGET, {Whole(i)}, same);
            EXPECT_EQ(item.pdispVal, same.value.pdispVal);
        }
        OwnedVariant none;
        EXPECT_EQ(items->Next(1, &none, nullptr), S_FALSE);
        IEnumVARIANT* cloned = nullptr;
        ASSERT_EQ(items->Clone(&cloned), S_OK);
        const Pointer<IEnumVARIANT> clone(cloned);
        EXPECT_EQ(clone->Skip(1), S_FALSE);
        clone->Reset();
        EXPECT_EQ(clone->Skip(1), S_OK);
        EXPECT_EQ(items->Next(1, &none, nullptr), S_FALSE);
    }
    EXPECT_GT(collections, 5);
}

// The library's own refusals, those of the run-time and of the system, in both ways in which hosts ask for them.
TEST_F(Walk, TellsWhyInBothWays) {
    const Pointer<IDispatch> document = server_.Make(Document::Describe());
    Outcome outcome;
    Invoke(*document, NumberNamed(*document, "Filename"), DISPATCH_PROPERTYPUT,
           {Of("C:\\no such folder\\a.rtf")}, outcome);
    Invoke(*document, NumberNamed(*document, "Finish"), DISPATCH_METHOD, {}, outcome);
    EXPECT_EQ(outcome.Said().substr(0, 3), "76 ") << outcome.Said();
    EXPECT_EQ(outcome.source, "Draftwick");

    DISPPARAMS none{};
    ::SetErrorInfo(0, nullptr);
    EXPECT_EQ(document->Invoke(NumberNamed(*document, "Finish"), IID_NULL, LOCALE_INVARIANT, DISPATCH_METHOD,
                               &none, nullptr, nullptr, nullptr),
              static_cast<HRESULT>(0x800A004C));
    IErrorInfo* told = nullptr;
    ASSERT_EQ(::GetErrorInfo(0, &told), S_OK);
    const Pointer<IErrorInfo> error(told);
    VARIANT text = OfType(VT_BSTR);
    error->GetDescription(&text.bstrVal);
    EXPECT_EQ(automation::FromWide({text.bstrVal, ::SysStringLen(text.bstrVal)}), outcome.text);
    ::VariantClear(&text);
    void* supports = nullptr;
    ASSERT_EQ(document->QueryInterface(IID_ISupportErrorInfo, &supports), S_OK);
    const Pointer<ISupportErrorInfo> support(static_cast<ISupportErrorInfo*>(supports));
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IDispatch), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IEnumVARIANT), S_FALSE);
}

TEST_F(Walk, LeaksNothing) {
    const auto used = [] {
        PROCESS_MEMORY_COUNTERS counters{};
        counters.cb = sizeof counters;
        ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
        return counters.PagefileUsage;
    };
    const auto round = [&] {
        ForEach([](IDispatch& object, const Member& member) {
            if (member.property == nullptr) return;
            Outcome outcome;
            Invoke(object, member.number, DISPATCH_PROPERTYGET, {Of("missing"), Array()}, outcome);
            Invoke(object, member.number, DISPATCH_PROPERTYGET, {}, outcome);
            Invoke(object, member.number, DISPATCH_PROPERTYPUT, {Of("missing")}, outcome);
        });
    };
    for (int i = 0; i < 20; ++i) round();
    const auto before = used();
    for (int i = 0; i < 60; ++i) round();  // about 100,000 calls
    EXPECT_LT(used(), before + 1000000);
}

}  // namespace draftwick::test
