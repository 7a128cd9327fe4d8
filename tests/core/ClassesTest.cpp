#include "tests/support/Errors.h"
#include "tests/support/FakePlatform.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <set>

/// Walks every property of every class by the classes' own descriptions.
namespace draftwick::test {

namespace {

using ObjectPointer = std::shared_ptr<Object>;

/// An object of a class, in a document of its own.
struct Subject {
    std::shared_ptr<Document> document;
    ObjectPointer object;
    std::function<void()> write;  // makes the library write the object
    std::string refusedAs;        // what a change is refused with after that; empty: it never is
    std::vector<ObjectPointer> held{};
};

std::shared_ptr<Document> NewDocument() {
    auto document = Document::Create(MakeFakePlatform(std::make_shared<MemoryFiles>()));
    document->SetScaleMode(dwTwips);
    return document;
}

/// A part of the document itself.
Subject OfDocument(const std::function<ObjectPointer(Document&)>& make,
                   const std::string& refusedAs = "Document") {
    auto document = NewDocument();
    return {document, make(*document), [document] { document->AddSection(); }, refusedAs};
}

/// A paragraph or a part of one.
Subject OfParagraph(const std::function<ObjectPointer(Paragraph&)>& make) {
    auto document = NewDocument();
    auto paragraph = document->AddSection()->AddParagraph();
    return {
        document, make(*paragraph), [paragraph] { paragraph->AddTextItem("x"); }, "Paragraph", {paragraph}};
}

/// A run or a part of one.
Subject OfText(const std::function<ObjectPointer(TextItem&)>& make) {
    auto document = NewDocument();
    auto paragraph = document->AddSection()->AddParagraph();
    auto item = paragraph->AddTextItem("x");
    return {
        document, make(*item), [paragraph] { paragraph->AddTextItem("y"); }, "TextItem", {paragraph, item}};
}

Subject OfField(const std::function<ObjectPointer(Field&)>& make) {
    auto document = NewDocument();
    auto paragraph = document->AddSection()->AddParagraph();
    auto field = paragraph->AddField();
    return {
        document, make(*field), [paragraph] { paragraph->AddTextItem("y"); }, "Field", {paragraph, field}};
}

/// A shape or a part of one.
Subject OfShape(const std::function<ObjectPointer(Shape&)>& make) {
    auto document = NewDocument();
    auto shape = document->AddSection()->AddParagraph()->AddShape(dwSKRectangle);
    return {document, make(*shape), [shape] { shape->AddParagraph(); }, "Shape", {shape}};
}

Subject OfSection(const std::function<ObjectPointer(Section&)>& make) {
    auto document = NewDocument();
    auto section = document->AddSection();
    return {document, make(*section), [section] { section->AddParagraph(); }, "Section", {section}};
}

Subject OfTable(const std::function<ObjectPointer(Table&)>& make) {
    auto document = NewDocument();
    auto table = document->AddSection()->AddTable();
    return {document, make(*table), [table] { table->AddCell(); }, "Table", {table}};
}

Subject OfCell(const std::function<ObjectPointer(Cell&)>& make) {
    auto document = NewDocument();
    auto table = document->AddSection()->AddTable();
    auto cell = table->AddCell();
    return {document, make(*cell), [cell] { cell->AddParagraph(); }, "Cell", {table, cell}};
}

const std::map<std::string, std::function<Subject()>>& Makers() {
    static const std::map<std::string, std::function<Subject()>> makers{
        {"Background", [] { return OfParagraph([](Paragraph& p) { return p.Background(); }); }},
        {"Bookmark",
         [] {
             auto document = NewDocument();
             auto paragraph = document->AddSection()->AddParagraph();
             auto bookmark = paragraph->AddBookmark("");
             return Subject{
                 document, bookmark, [paragraph] { paragraph->AddTextItem("x"); }, "Bookmark", {paragraph}};
         }},
        {"Cell", [] { return OfCell([](Cell& c) { return c.Self(); }); }},
        {"CellBorder", [] { return OfCell([](Cell& c) { return c.Borders()->Items(dwCBorderTop); }); }},
        {"CellBorders", [] { return OfCell([](Cell& c) { return c.Borders(); }); }},
        {"Column", [] { return OfSection([](Section& s) { return s.Columns()->Add(0, 0); }); }},
        {"Columns", [] { return OfSection([](Section& s) { return s.Columns(); }); }},
        {"Document",
         [] { return OfDocument([](Document& d) { return std::static_pointer_cast<Document>(d.Self()); }); }},
        {"Field", [] { return OfField([](Field& f) { return f.Self(); }); }},
        {"Font", [] { return OfDocument([](Document& d) { return d.Fonts()->Add("A"); }); }},
        {"FontFormat", [] { return OfText([](TextItem& t) { return t.FontFormat(); }); }},
        {"Fonts", [] { return OfDocument([](Document& d) { return d.Fonts(); }); }},
        {"Footnote", [] { return OfParagraph([](Paragraph& p) { return p.AddFootnote(); }); }},
        {"Frame", [] { return OfParagraph([](Paragraph& p) { return p.Frame(); }); }},
        {"Header", [] { return OfSection([](Section& s) { return s.AddHeader(dwHeader); }); }},
        {"List", [] { return OfDocument([](Document& d) { return d.Lists()->Add("A"); }, ""); }},
        {"ListLevel",
         [] { return OfDocument([](Document& d) { return d.Lists()->Add("A")->Levels(1); }, ""); }},
        {"Lists", [] { return OfDocument([](Document& d) { return d.Lists(); }); }},
        {"PageBorder",
         [] { return OfSection([](Section& s) { return s.PageBorders()->Items(dwPgBorderTop); }); }},
        {"PageBorders", [] { return OfSection([](Section& s) { return s.PageBorders(); }); }},
        {"Paragraph", [] { return OfParagraph([](Paragraph& p) { return p.Self(); }); }},
        {"ParagraphBorder",
         [] { return OfParagraph([](Paragraph& p) { return p.Borders()->Items(dwPBorderTop); }); }},
        {"ParagraphBorders", [] { return OfParagraph([](Paragraph& p) { return p.Borders(); }); }},
        {"ParagraphFormat", [] { return OfParagraph([](Paragraph& p) { return p.Format(); }); }},
        {"ParagraphStyle",
         [] { return OfDocument([](Document& d) { return d.ParagraphStyles()->Add("A"); }); }},
        {"ParagraphStyles", [] { return OfDocument([](Document& d) { return d.ParagraphStyles(); }); }},
        {"Properties", [] { return OfDocument([](Document& d) { return d.Properties(); }); }},
        {"Property", [] { return OfDocument([](Document& d) { return d.Properties()->Add("A", 1); }); }},
        {"Section", [] { return OfSection([](Section& s) { return s.Self(); }); }},
        {"Shape", [] { return OfShape([](Shape& s) { return s.Self(); }); }},
        {"ShapeFill", [] { return OfShape([](Shape& s) { return s.Fill(); }); }},
        {"ShapeLine", [] { return OfShape([](Shape& s) { return s.Line(); }); }},
        {"ShapeShadow", [] { return OfShape([](Shape& s) { return s.Shadow(); }); }},
        {"ShapeTextFormat", [] { return OfShape([](Shape& s) { return s.TextFormat(); }); }},
        {"ShapeThreeD", [] { return OfShape([](Shape& s) { return s.ThreeD(); }); }},
        {"ShapeWordArt", [] { return OfShape([](Shape& s) { return s.WordArt(); }); }},
        {"Special",
         [] {
             return Subject{NewDocument(), std::make_shared<Special>(), [] {}, ""};
         }},
        {"TabStop",
         [] {
             return OfParagraph(
                 [](Paragraph& p) { return p.TabStops()->Add(1, dwTabLeft, dwTabLeaderNone); });
         }},
        {"TabStops", [] { return OfParagraph([](Paragraph& p) { return p.TabStops(); }); }},
        {"Table", [] { return OfTable([](Table& t) { return t.Self(); }); }},
        {"TableBorder", [] { return OfTable([](Table& t) { return t.Borders()->Items(dwTBorderTop); }); }},
        {"TableBorders", [] { return OfTable([](Table& t) { return t.Borders(); }); }},
        {"TextBorder", [] { return OfText([](TextItem& t) { return t.Border(); }); }},
        {"TextItem", [] { return OfText([](TextItem& t) { return t.Self(); }); }},
        {"TextStyle", [] { return OfDocument([](Document& d) { return d.TextStyles()->Add("A"); }); }},
        {"TextStyles", [] { return OfDocument([](Document& d) { return d.TextStyles(); }); }},
    };
    return makers;
}

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
        ASSERT_TRUE(Makers().contains(std::string{GetParam()->name})) << "no way to make one is known";
    }
    Subject Make() const { return Makers().at(std::string{GetParam()->name})(); }
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
        EXPECT_EQ(refusal, refuses
                               ? "X109 Invalid operation.  Target already emitted " + subject.refusedAs + "."
                               : "accepted");
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
    auto document = NewDocument();
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
