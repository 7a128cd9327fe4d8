#include "tests/support/Documents.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/Script.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <regex>
#include <set>

/// Walks every property of every class by the classes' own descriptions.
namespace draftwick::test {

namespace {

using ObjectPointer = std::shared_ptr<Object>;

/// Calls a method with the number where it takes numbers, else with the text "A"; flags, texts and objects that can be
/// left out are.
Variant CallWithAnything(Object& object, const ClassMethod& method, std::int32_t number = 1) {
    const auto call = [&](const Variant& anything) {
        std::vector<Variant> values;
        for (const Argument& argument : method.arguments) {
            const bool isNumber = argument.initial && std::holds_alternative<std::int32_t>(*argument.initial);
            values.push_back(argument.initial && !isNumber ? *argument.initial : anything);
        }
        return Call(object, method.name, values);
    };
    try {
        return call(number);
    } catch (const Error& error) {
        if (error.Number() != dwRunTypeMismatch) throw;
    }
    return call(std::string{"A"});
}

/// The number for each argument that a property has.
std::vector<Variant> IndicesOf(const ClassProperty& property, std::int32_t number = 1) {
    return std::vector<Variant>(property.arguments.size(), number);
}

/// A way from a new document to an object: the members that lead there.
using Way = std::vector<std::string_view>;

/// An object in a document of its own, whose lengths are in twips. There is something of the name "B" of all that is
/// referred to by name, and a picture.
struct Subject {
    TestDocument document{dwTwips};
    std::vector<ObjectPointer> way{document.document};

    explicit Subject(const Way& members, std::int32_t number = 1, bool changed = false) {
        if (changed) ChangeSettings();
        for (const char* names : {"Fonts", "ParagraphStyles", "TextStyles", "Lists"}) {
            Call(*std::get<ObjectPointer>(Get(*document.document, names)), "Add", {std::string{"B"}});
        }
        document.files->Put("a.jpg", MakeJpeg(8, 8, 1, 96, 96));
        for (const std::string_view member : members) Go(member, number);
    }

    /// Takes the document's settings from their defaults, as far as the ways can still be gone.
    void ChangeSettings() const;

    ObjectPointer Object() const { return way.back(); }
    const Class& Description() const { return Object()->Description(); }

    /// Whether the member gives an object, which is the subject then.
    bool Go(std::string_view member, std::int32_t number = 1) {
        const ClassProperty* property = Description().FindProperty(member);
        const Variant next = property != nullptr
                                 ? Get(*Object(), member, IndicesOf(*property, number))
                                 : CallWithAnything(*Object(), *Description().FindMethod(member), number);
        const auto* object = std::get_if<ObjectPointer>(&next);
        if (object != nullptr) way.push_back(*object);
        return object != nullptr;
    }

    /// What refuses for it once it is written: the nearest around it that is written where it was added.
    ObjectPointer Owner() const {
        ObjectPointer owner = Object();
        while (owner->Description().FindProperty("Emitted") == nullptr) owner = owner->Parent();
        return owner;
    }

    /// Makes the library write the owner: by an addition to it, or behind it.
    void Write() const {
        const ObjectPointer owner = Owner();
        for (ObjectPointer at = owner; at != nullptr; at = at->Parent()) {
            for (const ClassMethod& method : at->Description().methods) {
                if (Get(*owner, "Emitted") == Variant{true}) return;
                if (method.name.starts_with("Add")) CallWithAnything(*at, method);
            }
        }
    }

    std::string Finish() const { return document.Finish(); }
};

/// The ways to all objects that a document can be made to give: from one object of each class by every member.
const std::vector<Way>& Ways() {
    static const std::set<std::string_view> Last{"Finish", "Preview", "PrintOut"};
    static const auto ways = [] {
        std::vector<Way> found{{}};
        std::set<std::string_view> known;
        for (std::size_t i = 0; i < found.size(); ++i) {
            const Way way = found[i];
            const Class& description = Subject(way).Description();
            if (!known.insert(description.name).second) continue;
            const auto tryMember = [&](std::string_view member) {
                Way longer = way;
                longer.push_back(member);
                try {
                    if (Last.contains(member) || !Subject(way).Go(member)) return;
                    found.push_back(longer);
                } catch (const Error&) {  // nothing there
                }
            };
            for (const ClassProperty& property : description.properties) {
                if (property.get != nullptr) tryMember(property.name);
            }
            for (const ClassMethod& method : description.methods) tryMember(method.name);
        }
        return found;
    }();
    return ways;
}

std::string NameOf(const Way& way) {
    std::string name = "Document";
    for (const std::string_view member : way) (name += '_') += member;
    return name;
}

/// What is not refused when the document is written: lists never are, neither is the unit.
bool IsRefused(const Way& way, std::string_view property) {
    return (way.empty() || way[0] != "Lists") && property != "ScaleMode" && property != "DiscardOnRelease";
}

/// Values that a property takes and gives back, and values that it refuses, with the refusal.
struct Trials {
    std::vector<Variant> taken;
    std::vector<std::pair<Variant, std::string>> refused;
};

Trials TrialsOf(const ClassProperty& property) {
    const Rule& rule = property.rule;
    const std::string overflow = "6 Overflow";
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    switch (property.type->kind) {
    case Kind::Boolean: return {{true, false}, {{1, "13"}}};
    case Kind::Length:
        return {{-32768.0, 32767.0, 12.0},
                {{32768.0, overflow},
                 {-32769.0, overflow},
                 {Infinity, overflow},
                 {std::nan(""), overflow},
                 {1e300, overflow}}};
    case Kind::Real:
        if (rule.bits == 16) {
            return {{-32768.0, 32767.0},
                    {{32767.5, overflow}, {-32769.0, overflow}, {std::nan(""), overflow}}};
        }
        return {{2.5, -0.75},
                {{0x1p30, overflow},
                 {Infinity, overflow},
                 {-Infinity, overflow},
                 {std::nan(""), overflow},
                 {1e300, overflow}}};
    case Kind::Color:
    case Kind::Number: {
        if (rule.limited) {
            const std::string range =
                "X101 Property " + std::string{rule.rangeName} + " set to out of range value.";
            Trials trials{{rule.low, rule.high}, {{rule.high + 1, range}}};
            trials.refused.emplace_back(rule.low - 1, rule.bits == 8 && rule.low == 0 ? overflow : range);
            if (rule.bits == 8) trials.refused.emplace_back(256, overflow);
            return trials;
        }
        if (rule.bits == 16) return {{-32768, 32767}, {{32768, overflow}, {-32769, overflow}}};
        return {{std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()},
                {{std::string{"1"}, "13"}}};
    }
    case Kind::Bytes: return {{MakeJpeg(8, 8, 1, 96, 96)}, {}};
    case Kind::Path:
    case Kind::Text: return {{std::string{"Grün {b}"}, std::string{}}, {{true, "13"}}};
    default: return {};
    }
}

void Subject::ChangeSettings() const {
    static const std::set<std::string_view> Kept{"ScaleMode", "FacingPage"};
    for (const ClassProperty& property : document.document->Description().properties) {
        if (property.set == nullptr || !property.rule.complete || Kept.contains(property.name)) continue;
        for (const Variant& value : TrialsOf(property).taken) {
            if (value != property.rule.initial) Set(*document.document, property.name, value);
        }
    }
}

/// Calls `check` with every way, until an assertion fails in it.
void ForEachWay(const std::function<void(const Way&)>& check) {
    for (const Way& way : Ways()) {
        if (testing::Test::HasFatalFailure()) return;
        SCOPED_TRACE(NameOf(way));
        check(way);
    }
}

/// Calls `check` with every property that can be set, each time on a new object.
void ForEachSetter(const std::function<void(const Way&, const ClassProperty&, Subject)>& check) {
    ForEachWay([&](const Way& way) {
        for (const ClassProperty& property : Subject(way).Description().properties) {
            if (property.set == nullptr || testing::Test::HasFatalFailure()) continue;
            SCOPED_TRACE(property.name);
            check(way, property, Subject(way));
        }
    });
}

/// What can be set again; 1 of what can only be written.
Variant Read(const Subject& subject, const ClassProperty& property) {
    if (property.get == nullptr && property.type->kind == Kind::Bytes) return std::string{};
    return property.get == nullptr ? Variant{1} : Get(*subject.Object(), property.name, IndicesOf(property));
}

}  // namespace

// All sides of borders, all levels of lists, in a document whose settings are others.
TEST(EveryWay, LeadsToDefaultsThatHoldForAllThatItLeadsTo) {
    ForEachWay([](const Way& way) {
        for (std::int32_t number = 1; number <= 9; ++number) {
            std::optional<Subject> subject;
            const bool changed = !way.empty() && number % 2 == 0;
            if (Refusal([&] { subject.emplace(way, number, changed); }) != "accepted") continue;
            for (const ClassProperty& property : subject->Description().properties) {
                if (std::holds_alternative<std::monostate>(property.rule.initial)) continue;
                if (property.name == "ScaleMode") continue;  // which subjects set
                EXPECT_EQ(Read(*subject, property), property.rule.initial)
                    << property.name << " of number " << number;
            }
        }
    });
}

TEST(EveryWay, LeadsToAnObjectInItsPlace) {
    ForEachWay([](const Way& way) {
        const Subject subject(way);
        const std::string member{way.empty() ? "" : way.back()};
        const ObjectPointer object = subject.Object(),
                            from = subject.way[subject.way.size() - !member.empty() - 1];
        if (member.empty()) return;
        const bool fromCollection = from->Description().FindMethod("Items") != nullptr;
        EXPECT_EQ(object->Parent(), fromCollection ? from->Parent() : from);
        EXPECT_EQ(object->Document(), subject.document.document);
        const std::string current = "Current" + member.substr(std::min<std::size_t>(3, member.size()));
        if (member.starts_with("Add") && from->Description().FindProperty(current) != nullptr) {
            EXPECT_EQ(Get(*from, current), Variant{object});
        }
        if (member != "Items") return;
        const std::int32_t count = std::get<std::int32_t>(Get(*from, "Count"));
        EXPECT_EQ(Call(*from, "Items", {1}), Variant{object});
        EXPECT_NE(Call(*from, "Items", {count}), Variant{});
        for (const std::int32_t none : {0, count + 1}) {
            const auto refusal = RefusalNumber([&] { Call(*from, "Items", {none}); });
            EXPECT_TRUE(refusal == dwRunSubscriptOutOfRange || refusal == dwErrItemNotFound) << refusal;
        }
    });
}

TEST(EveryWay, LeadsToSettingsThatTakeWhatTheirRulesAllow) {
    ForEachSetter([](const Way&, const ClassProperty& property, const Subject& subject) {
        if (property.get == nullptr || !property.rule.complete) return;
        const Trials trials = TrialsOf(property);
        for (const Variant& value : trials.taken) {
            Set(*subject.Object(), property.name, value);
            EXPECT_EQ(Read(subject, property), value);
        }
        const Variant before = Read(subject, property);
        for (const auto& [value, refusal] : trials.refused) {
            const std::string actual =
                Refusal([&, &wrong = value] { Set(*subject.Object(), property.name, wrong); });
            const std::string advice =
                Advice([&, &wrong = value] { Set(*subject.Object(), property.name, wrong); });
            EXPECT_TRUE(advice.starts_with(std::string{subject.Description().name} + "."
                                           + std::string{property.name}))
                << advice;
            EXPECT_EQ(actual.substr(0, refusal.size()), refusal);
            EXPECT_EQ(Read(subject, property), before);
        }
    });
}

TEST(EveryWay, LeadsToNamesThatTheDocumentHas) {
    static const std::set<std::string_view> Others{"ShadeArray", "LinkTo"};
    ForEachSetter([](const Way&, const ClassProperty& property, const Subject& subject) {
        // A run's style is looked up when it is written.
        const bool ofRun =
            property.name == "StyleName" && subject.Description().FindProperty("Text") != nullptr;
        if (property.type->kind != Kind::Text || Others.contains(property.name) || ofRun) return;
        if (property.rule.complete) return;
        Set(*subject.Object(), property.name, std::string{"b"});
        for (const char* missing : {"Missing", "BB"}) {
            EXPECT_EQ(Refusal([&] { Set(*subject.Object(), property.name, std::string{missing}); }),
                      "X112 Item not found '" + std::string{missing} + "'.");
        }
        EXPECT_EQ(Read(subject, property), Variant{std::string{"B"}});
        Set(*subject.Object(), property.name, std::string{});
        EXPECT_EQ(Read(subject, property), Variant{std::string{}});
    });
}

TEST(EveryWay, LeadsToSettingsThatAreRefusedOnceWritten) {
    ForEachSetter([](const Way& way, const ClassProperty& property, const Subject& subject) {
        const Variant before = Read(subject, property);
        subject.Write();
        EXPECT_EQ(Refusal([&] { Set(*subject.Object(), property.name, before, IndicesOf(property)); }),
                  IsRefused(way, property.name) ? Emitted(std::string{subject.Owner()->Description().name})
                                                : "accepted");
        EXPECT_EQ(Read(subject, property), before);
    });
}

// Columns.Add, Paragraph.AddTextItem, Properties.Remove, ...
TEST(EveryWay, LeadsToMethodsThatAreRefusedOnceFinished) {
    static const std::set<std::string_view> Harmless{"Items",   "ASCIIChar", "Discard",
                                                     "Preview", "PrintOut",  "Finish"};
    ForEachWay([](const Way& way) {
        const Subject subject(way);
        subject.Finish();
        for (const ClassMethod& method : subject.Description().methods) {
            if (Harmless.contains(method.name) || !IsRefused(way, method.name)) continue;
            EXPECT_EQ(Refusal([&] { CallWithAnything(*subject.Object(), method); }),
                      Emitted(std::string{subject.Owner()->Description().name}))
                << method.name;
        }
    });
}

TEST(EveryWay, LeadsToSettingsThatAreRefusedOnceTheDocumentIsGone) {
    ForEachSetter([](const Way& way, const ClassProperty& property, Subject subject) {
        if (way.empty()) return;
        const Variant before = Read(subject, property);
        subject.way.erase(subject.way.begin());
        subject.document.document.reset();
        // Whoever does not refuse reads what is gone: the next one would crash.
        ASSERT_EQ(RefusalNumber([&] { Set(*subject.Object(), property.name, before, IndicesOf(property)); }),
                  dwRunObjectGone);
        EXPECT_EQ(subject.Object()->Document(), nullptr);
    });
}

// A setting that a writer forgets is found here. Some are written only when others are set, too.
TEST(EveryWay, LeadsToSettingsThatChangeTheFile) {
    static const std::map<std::string, std::string> Switches{
        {"Background", "Texture=dwTextureDiagonalUp"},
        {"Background.Shading", "Texture=dwTextureShaded"},
        {"CellBorder", "Style=dwBSSingle"},
        {"Column.Spacing", "CurrentSection.Columns.Add 1.0 1.0"},
        {"Columns.LineBetween", "CurrentSection.Columns.Add 1.0 1.0"},
        {"Document.ZoomKind", "ViewKind=dwViewNormal"},
        {"Document.ZoomScale", "ViewKind=dwViewNormal"},
        {"FontFormat.SubscriptPosition", "Subscript=true"},
        {"FontFormat.SuperscriptPosition", "Superscript=true"},
        {"Frame.DropCapInMargin", "DropCapLines=1"},
        {"Frame.HeightExactly", "Height=12.0"},
        {"PageBorder", "Style=dwBSSingle"},
        {"PageBorders", "dwPgBorderTop.Style=dwBSSingle"},
        {"ParagraphBorder", "Style=dwBSSingle"},
        {"ParagraphFormat.LineSpacingDistance", "LineSpacingStyle=dwSpacingAtLeast"},
        {"ParagraphFormat.ListFormatName", "ListName='B'"},
        {"ParagraphFormat.ListLevel", "ListName='B'"},
        {"Section", "LineNumberingVisible=true"},
        {"Shape.InLine", "Kind=dwSKPictureFrame Fill.Picture='a.jpg'"},
        {"ShapeFill", "Style=dwSFSShade"},
        {"ShapeFill.Picture", "Style=dwSFSPicTile"},
        {"ShapeFill.PictureData", "Style=dwSFSPicTile"},
        {"ShapeLine", "StartArrow=dwSLAOpen EndArrow=dwSLAOpen"},
        {"ShapeLine.Picture", "Texture=dwSLTPicture"},
        {"ShapeShadow", "Style=dwSSSDouble"},
        {"ShapeThreeD", "Visible=true"},
        {"ShapeThreeD.Color", "UseColor=true"},
        {"ShapeWordArt", "Text='x'"},
        {"Table.HeightExactly", "Height=12.0"},
        {"TableBorder", "Style=dwBSSingle"},
        {"TextBorder", "Style=dwBSSingle"},
    };
    static const std::set<std::string> NotWritten{"Document.Filename",  "Document.TempPath",
                                                  "Document.ScaleMode", "Document.BodyInMemory",
                                                  "Columns.Spacing",    "Document.DiscardOnRelease",
                                                  "Document.Durable"};
    // A row's frame stands in its paragraphs; what every document has is linked to nothing.
    static const std::set<std::string> Others{"Document_AddSection_AddTable_Frame",
                                              "Document_Properties_Items"};
    ForEachSetter([](const Way& way, const ClassProperty& property, const Subject& plain) {
        const std::string owner{plain.Description().name}, name = owner + "." + std::string{property.name};
        if (NotWritten.contains(name) || Others.contains(NameOf(way))) return;
        const auto written = [&](const Variant* value) {
            const Subject subject(way);
            for (const auto& of : {owner, name}) {
                if (Switches.contains(of))
                    Script(subject.document.document, subject.Object()).Run(Switches.at(of));
            }
            if (value != nullptr) Set(*subject.Object(), property.name, *value, IndicesOf(property));
            return subject.Finish();
        };
        std::vector<Variant> values = TrialsOf(property).taken;
        for (const char* text : {"B", "a.jpg", "1,2"}) values.emplace_back(std::string{text});
        values.emplace_back(2);
        const std::string before = written(nullptr);
        EXPECT_TRUE(std::any_of(values.begin(), values.end(),
                                [&](const Variant& value) {
                                    try {
                                        return written(&value) != before;
                                    } catch (const Error&) {
                                        return false;
                                    }
                                }))
            << name << " changes nothing";
    });
}

TEST(Classes, AreAllReachedFromADocument) {
    std::set<std::string_view> reached{"AutomationObject", "Special"},  // other programs' and the host's
        described;
    for (const Way& way : Ways()) reached.insert(Subject(way).Description().name);
    for (const Class* one : Classes()) described.insert(one->name);
    EXPECT_EQ(described, reached);
}

TEST(Classes, AreOrderedAndHaveIdentifiersOfTheirOwn) {
    std::set<std::string_view> identifiers;
    std::string_view last;
    for (const Class* description : Classes()) {
        EXPECT_LT(last, description->name);
        last = description->name;
        EXPECT_EQ(description->classId.size(), 38U) << last;
        EXPECT_TRUE(identifiers.insert(description->classId).second) << last;
        EXPECT_TRUE(identifiers.insert(description->interfaceId).second) << last;
    }
}

TEST(Types, AreCalledWhatTheirClassesAre) {
    const auto check = [](const Type* type) {
        if (type == nullptr) return;
        EXPECT_EQ(type->description != nullptr || type->name == "Object", type->kind == Kind::Object)
            << type->name;
        if (type->description != nullptr) {
            EXPECT_EQ(type->name, type->description().name);
        }
        EXPECT_EQ(!type->values.empty(), type->name.starts_with("dw")) << type->name;
    };
    for (const Class* one : Classes()) {
        for (const ClassProperty& property : one->properties) check(property.type);
        for (const ClassMethod& method : one->methods) check(method.result);
    }
    check(CommonProperties()[0].type);
    check(CommonProperties()[1].type);
}

/// "dwScaleMode dwInches 1" for each value of each enumeration that the headers declare.
std::set<std::string> ValuesInHeaders() {
    std::set<std::string> values;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(DRAFTWICK_SOURCE_FOLDER)) {
        if (entry.path().extension() != ".h") continue;
        const std::string header =
            std::regex_replace(ReadFile(entry.path().string()), std::regex{"//.*"}, "");
        const std::regex enumeration{R"(\benum (dw\w+) : std::int32_t \{([^}]*)\})"},
            value{R"((dw\w+) = (-?\d+))"};
        for (std::sregex_iterator one{header.begin(), header.end(), enumeration}, end; one != end; ++one) {
            const std::string body = (*one)[2];
            for (std::sregex_iterator each{body.begin(), body.end(), value}; each != end; ++each)
                values.insert((*one)[1].str() + " " + (*each)[1].str() + " " + (*each)[2].str());
        }
    }
    return values;
}

TEST(Enumerations, AreThoseOfTheHeaders) {
    std::set<std::string> described;
    std::string_view last;
    for (const Type* type : Enumerations()) {
        EXPECT_LT(last, type->name);
        last = type->name;
        for (const EnumerationValue& value : type->values) {
            described.insert(std::string{last} + " " + std::string{value.name} + " "
                             + std::to_string(value.value));
        }
    }
    EXPECT_EQ(described, ValuesInHeaders());
}

TEST(Collections, GiveTheirItems) {
    for (const Class* one : Classes()) {
        const ClassMethod* items = one->FindMethod("Items");
        EXPECT_EQ(one->items != nullptr, items != nullptr) << one->name;
        if (items == nullptr) continue;
        EXPECT_EQ(one->items, items->result) << one->name;
        EXPECT_NE(one->FindProperty("Count"), nullptr) << one->name;
    }
}

TEST(Hosts, CreateDocumentsAndSpecials) {
    std::set<std::string_view> created;
    for (const Class* one : Classes()) {
        if (one->create == nullptr) continue;
        created.insert(one->name);
        EXPECT_EQ(&one->create()->Description(), one);
    }
    EXPECT_EQ(created, (std::set<std::string_view>{"Document", "Special"}));
}

TEST(Names, ReachEverything) {
    const TestDocument document;
    const auto section = std::get<ObjectPointer>(Call(*document.document, "AddSection"));
    const auto paragraph = std::get<ObjectPointer>(Call(*section, "AddParagraph"));
    const auto item = std::get<ObjectPointer>(Call(*paragraph, "AddTextItem", {std::string{"a{b"}}));
    EXPECT_EQ(Get(*item, "Text"), Variant{std::string{"a\\{b"}});
    EXPECT_EQ(Refusal([&] { Get(*item, "Size"); }), "X112 Item not found 'TextItem.Size'.");
    EXPECT_EQ(RefusalNumber([&] { Set(*item, "Text", std::string{}); }), dwRunInvalidCall);
    EXPECT_EQ(RefusalNumber([&] { Call(*paragraph, "AddTextItem"); }), dwRunInvalidCall);
    EXPECT_EQ(RefusalNumber([&] { Call(*section, "AddTable", {1}); }), dwRunInvalidCall);
}

TEST(Names, ReachAPropertyWithArgumentsAsThatAndAsMethods) {
    const TestDocument document;
    const auto shape = document.AddParagraph()->AddShape(dwSKStar);
    Set(*shape, "AdjustValues", 7, {2});
    EXPECT_EQ(shape->AdjustValues(2), 7);
    Call(*shape, "SetAdjustValues", {2, 8});
    EXPECT_EQ(Get(*shape, "AdjustValues", {2}), Variant{8});
    EXPECT_EQ(Call(*shape, "AdjustValues", {2}), Variant{8});
    const std::string missing = "5 Invalid procedure call or argument: the argument ";
    EXPECT_EQ(Refusal([&] { Get(*shape, "AdjustValues"); }), missing + "Index is missing");
    EXPECT_EQ(Refusal([&] { Set(*shape, "AdjustValues", 1); }), missing + "Index is missing");
    EXPECT_EQ(Refusal([&] { Call(*shape, "SetAdjustValues", {1}); }), missing + "Value is missing");
    EXPECT_EQ(RefusalNumber([&] { Get(*shape, "Width", {1}); }), dwRunInvalidCall);
    EXPECT_EQ(RefusalNumber([&] { Set(*shape, "Width", 1, {1}); }), dwRunInvalidCall);
    EXPECT_EQ(RefusalNumber([&] { Call(*shape, "Width"); }), dwErrItemNotFound);
    EXPECT_EQ(RefusalNumber([&] { Call(*shape, "SetWidth", {1}); }), dwErrItemNotFound);
}

}  // namespace draftwick::test
