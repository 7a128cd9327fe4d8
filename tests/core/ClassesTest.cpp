#include "tests/support/Documents.h"
#include "tests/support/FakeDesktop.h"

#include <cmath>
#include <limits>
#include <map>
#include <set>

/// Walks every property of every class by the classes' own descriptions.
namespace draftwick::test {

namespace {

using ObjectPointer = std::shared_ptr<Object>;

/// A method or a property by name, with arguments.
struct Step {
    const char* name;
    std::vector<Variant> arguments{};
};
using Steps = std::vector<Step>;

ObjectPointer Follow(Object& object, const Step& step) {
    const bool isMethod = object.Description().FindMethod(step.name) != nullptr;
    return std::get<ObjectPointer>(isMethod ? Call(object, step.name, step.arguments)
                                            : Get(object, step.name));
}

/// A content object: the way to it from the document, the call that makes the library write it, made on it or
/// on its parent, and the name that it refuses changes with after that.
struct Owner {
    Steps way;
    Step write;
    bool onParent;
    std::string refusedAs;
};

const Step AddSection{"AddSection"}, AddParagraph{"AddParagraph"}, AddTable{"AddTable"};
const Step AddText{"AddTextItem", {"x"}};
const Owner OfDocument{{}, AddSection, false, "Document"};
const Owner OfLists{{}, AddSection, false, ""};  // lists never refuse
const Owner OfSection{{AddSection}, AddParagraph, false, "Section"};
const Owner OfParagraph{{AddSection, AddParagraph}, AddText, false, "Paragraph"};
const Owner OfText{{AddSection, AddParagraph, AddText}, AddText, true, "TextItem"};
const Owner OfField{{AddSection, AddParagraph, {"AddField"}}, AddText, true, "Field"};
const Owner OfBookmark{{AddSection, AddParagraph, {"AddBookmark", {""}}}, AddText, true, "Bookmark"};
const Owner OfShape{{AddSection, AddParagraph, {"AddShape", {1}}}, AddParagraph, false, "Shape"};
const Owner OfTable{{AddSection, AddTable}, {"AddCell"}, false, "Table"};
const Owner OfCell{{AddSection, AddTable, {"AddCell"}}, AddParagraph, false, "Cell"};

/// How an object of each class is made: its owner and the way to it from there.
const std::map<std::string_view, std::pair<const Owner*, Steps>>& Makers() {
    const Step borders{"Borders"}, first{"Items", {1}}, addA{"Add", {"A"}};
    static const std::map<std::string_view, std::pair<const Owner*, Steps>> makers{
        {"AutomationObject", {nullptr, {}}},
        {"Background", {&OfParagraph, {{"Background"}}}},
        {"Bookmark", {&OfBookmark, {}}},
        {"Cell", {&OfCell, {}}},
        {"CellBorder", {&OfCell, {borders, first}}},
        {"CellBorders", {&OfCell, {borders}}},
        {"Column", {&OfSection, {{"Columns"}, {"Add", {0.0, 0.0}}}}},
        {"Columns", {&OfSection, {{"Columns"}}}},
        {"Document", {&OfDocument, {}}},
        {"Field", {&OfField, {}}},
        {"Font", {&OfDocument, {{"Fonts"}, addA}}},
        {"FontFormat", {&OfText, {{"FontFormat"}}}},
        {"Fonts", {&OfDocument, {{"Fonts"}}}},
        {"Footnote", {&OfParagraph, {{"AddFootnote"}}}},
        {"Frame", {&OfParagraph, {{"Frame"}}}},
        {"Header", {&OfSection, {{"AddHeader", {dwHeader}}}}},
        {"List", {&OfLists, {{"Lists"}, addA}}},
        {"ListLevel", {&OfLists, {{"Lists"}, addA, {"Levels", {1}}}}},
        {"Lists", {&OfLists, {{"Lists"}}}},
        {"PageBorder", {&OfSection, {{"PageBorders"}, first}}},
        {"PageBorders", {&OfSection, {{"PageBorders"}}}},
        {"Paragraph", {&OfParagraph, {}}},
        {"ParagraphBorder", {&OfParagraph, {borders, first}}},
        {"ParagraphBorders", {&OfParagraph, {borders}}},
        {"ParagraphFormat", {&OfParagraph, {{"Format"}}}},
        {"ParagraphStyle", {&OfDocument, {{"ParagraphStyles"}, addA}}},
        {"ParagraphStyles", {&OfDocument, {{"ParagraphStyles"}}}},
        {"Properties", {&OfDocument, {{"Properties"}}}},
        {"Property", {&OfDocument, {{"Properties"}, {"Add", {"A", 1}}}}},
        {"Section", {&OfSection, {}}},
        {"Shape", {&OfShape, {}}},
        {"ShapeFill", {&OfShape, {{"Fill"}}}},
        {"ShapeLine", {&OfShape, {{"Line"}}}},
        {"ShapeShadow", {&OfShape, {{"Shadow"}}}},
        {"ShapeTextFormat", {&OfShape, {{"TextFormat"}}}},
        {"ShapeThreeD", {&OfShape, {{"ThreeD"}}}},
        {"ShapeWordArt", {&OfShape, {{"WordArt"}}}},
        {"Special", {nullptr, {}}},
        {"TabStop", {&OfParagraph, {{"TabStops"}, {"Add", {1.0, dwTabLeft, dwTabLeaderNone}}}}},
        {"TabStops", {&OfParagraph, {{"TabStops"}}}},
        {"Table", {&OfTable, {}}},
        {"TableBorder", {&OfTable, {borders, first}}},
        {"TableBorders", {&OfTable, {borders}}},
        {"TextBorder", {&OfText, {{"Border"}}}},
        {"TextItem", {&OfText, {}}},
        {"TextStyle", {&OfDocument, {{"TextStyles"}, addA}}},
        {"TextStyles", {&OfDocument, {{"TextStyles"}}}},
    };
    return makers;
}

/// An object of a class, in a document of its own.
struct Subject {
    std::shared_ptr<Document> document;
    std::vector<ObjectPointer> held{};  // what the object is part of
    ObjectPointer object;
    std::function<void()> write = [] {};
    std::string refusedAs{};

    explicit Subject(std::string_view name)
        : document(Document::Create(MakeFakePlatform(std::make_shared<MemoryFiles>()))), object(document) {
        document->SetScaleMode(dwTwips);
        const auto& [owner, way] = Makers().at(name);
        if (owner == nullptr) {
            // What needs no document, and what other programs give.
            if (name == "Special") object = std::make_shared<Special>();
            if (name == "AutomationObject") {
                const auto desktop = std::make_shared<FakeDesktop>();
                desktop->runningVersion = "9.0";
                document = Document::Create(MakeFakePlatform(std::make_shared<MemoryFiles>(), desktop));
                document->Preview();
                object = document->ViewerApp();
            }
            return;
        }
        const auto follow = [this](const Step& step) {
            object = Follow(*object, step);
            held.push_back(object);
        };
        for (const Step& step : owner->way) follow(step);
        Object& written = owner->onParent ? *object->Parent() : *object;
        write = [&written, owner = owner] { Follow(written, owner->write); };
        refusedAs = owner->refusedAs;
        for (const Step& step : way) follow(step);
    }
};

/// Setters that are never refused although their class refuses.
const std::set<std::string> NeverRefused{"Document.ScaleMode"};

/// Values that a property takes and gives back, and values that it refuses, with the refusal.
struct Trials {
    std::vector<Variant> taken;
    std::vector<std::pair<Variant, std::string>> refused;
};

Trials TrialsOf(const Rule& rule) {
    const std::string overflow = "6 Overflow";
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    switch (rule.kind) {
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
                {{Infinity, overflow}, {-Infinity, overflow}, {std::nan(""), overflow}, {1e300, overflow}}};
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
    case Kind::Text: return {{std::string{"Grün {b}"}, std::string{}}, {{true, "13"}}};
    default: return {};
    }
}

class EveryClass : public testing::TestWithParam<const Class*> {
protected:
    void SetUp() override {
        ASSERT_TRUE(Makers().contains(GetParam()->name)) << "no way to make one is known";
    }
    Subject Make() const { return Subject(GetParam()->name); }
    /// Calls `check` with every property that can be set, each time on a new object.
    void ForEachSetter(const std::function<void(const ClassProperty&, Subject)>& check) const {
        for (const ClassProperty& property : GetParam()->properties) {
            if (property.set == nullptr || property.get == nullptr) continue;
            SCOPED_TRACE(std::string{GetParam()->name} + "." + std::string{property.name});
            check(property, Make());
        }
    }
};

}  // namespace

TEST_P(EveryClass, StartsWithItsDefaults) {
    const Subject subject = Make();
    EXPECT_EQ(subject.object->Description().name, GetParam()->name);
    for (const ClassProperty& property : GetParam()->properties) {
        if (property.get == nullptr || std::holds_alternative<std::monostate>(property.rule.initial))
            continue;
        if (property.name == "ScaleMode") continue;  // subjects are made to use twips
        EXPECT_EQ(Get(*subject.object, property.name), property.rule.initial) << property.name;
    }
}

TEST_P(EveryClass, TakesWhatItsRulesAllowAndRefusesTheRest) {
    ForEachSetter([](const ClassProperty& property, const Subject& subject) {
        if (std::holds_alternative<std::monostate>(property.rule.initial)) return;
        const Trials trials = TrialsOf(property.rule);
        for (const Variant& value : trials.taken) {
            Set(*subject.object, property.name, value);
            EXPECT_EQ(Get(*subject.object, property.name), value);
        }
        const Variant before = Get(*subject.object, property.name);
        for (const auto& [value, refusal] : trials.refused) {
            const std::string actual =
                Refusal([&, &wrong = value] { Set(*subject.object, property.name, wrong); });
            EXPECT_EQ(actual.substr(0, refusal.size()), refusal);
            EXPECT_EQ(Get(*subject.object, property.name), before);
        }
    });
}

TEST_P(EveryClass, RefusesChangesOnceWritten) {
    ForEachSetter([](const ClassProperty& property, const Subject& subject) {
        const Variant before = Get(*subject.object, property.name);
        subject.write();
        const bool refuses = !subject.refusedAs.empty()
                             && !NeverRefused.contains(std::string{subject.object->Description().name} + "."
                                                       + std::string{property.name});
        const std::string refusal = Refusal([&] { Set(*subject.object, property.name, before); });
        EXPECT_EQ(refusal, refuses ? Emitted(subject.refusedAs) : "accepted");
        EXPECT_EQ(Get(*subject.object, property.name), before);
    });
}

TEST_P(EveryClass, RefusesChangesOnceTheDocumentIsGone) {
    ForEachSetter([](const ClassProperty& property, Subject subject) {
        if (subject.object == subject.document) return;
        const Variant before = Get(*subject.object, property.name);
        subject.document.reset();
        subject.write = nullptr;
        EXPECT_EQ(RefusalNumber([&] { Set(*subject.object, property.name, before); }), dwRunObjectGone);
        EXPECT_EQ(subject.object->Document(), nullptr);
    });
}

INSTANTIATE_TEST_SUITE_P(Classes, EveryClass, testing::ValuesIn(Classes().begin(), Classes().end()),
                         [](const auto& info) { return std::string{info.param->name}; });

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

TEST(Names, ReachEverything) {
    const auto document = Subject("Document").document;
    const auto section = std::get<ObjectPointer>(Call(*document, "AddSection"));
    const auto paragraph = std::get<ObjectPointer>(Call(*section, "AddParagraph"));
    const auto item = std::get<ObjectPointer>(Call(*paragraph, "AddTextItem", {std::string{"a{b"}}));
    EXPECT_EQ(Get(*item, "Text"), Variant{std::string{"a\\{b"}});
    EXPECT_EQ(Get(*item, "Parent"), Variant{paragraph});
    EXPECT_EQ(Get(*item, "Document"), Variant{std::static_pointer_cast<Object>(document)});
    EXPECT_EQ(Refusal([&] { Get(*item, "Size"); }), "X112 Item not found 'TextItem.Size'.");
    EXPECT_EQ(RefusalNumber([&] { Set(*item, "Text", std::string{}); }), dwRunInvalidCall);
    EXPECT_EQ(RefusalNumber([&] { Call(*paragraph, "AddTextItem"); }), dwRunInvalidCall);
    EXPECT_EQ(RefusalNumber([&] { Call(*section, "AddParagraph", {1}); }), dwRunInvalidCall);
}

}  // namespace draftwick::test
