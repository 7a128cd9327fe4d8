#include "tests/drawing/Drawn.h"

namespace draftwick::test {

namespace {

/// The body of a document with one paragraph that has one shape. The unit is twips.
std::string BodyWith(const std::function<void(Shape&)>& set) {
    TestDocument built(dwTwips);
    set(*built->AddSection()->AddParagraph()->AddShape(dwSKRectangle));
    return Pairs(built.Body());
}

/// Properties of a shape or of a part of one, and what is then written.
struct Case {
    const char* name;
    Settings settings;
    Drawn expected{};
};

/// Writes one document with one shape for each case. The unit is twips.
template <class Part>
void ExpectAll(Part part, const std::vector<Case>& cases) {
    for (const Case& one : cases) {
        EXPECT_EQ(BodyWith([&](Shape& shape) { Apply(one.settings, *part(shape)); }),
                  "\\pard~" + one.expected.All())
            << one.name;
    }
}

const auto Itself = [](Shape& shape) { return shape.Self(); };
const auto Fill = [](Shape& shape) { return shape.Fill(); };
const auto Line = [](Shape& shape) { return shape.Line(); };
const auto Shadow = [](Shape& shape) { return shape.Shadow(); };
const auto TextFormat = [](Shape& shape) { return shape.TextFormat(); };

/// What stays of a body when a shape's settings are left out, so that its braces and texts can be seen.
std::string Skeleton(std::string body) {
    static const std::regex settings(R"(<\w+=[^>]*>|\\shp(lid|left|top|bottom|right|wrk?)-?\d+|\\shpb[xy]\w+)"
                                     R"(|\\tr(gaph|left|rh)-?\d+|\\trql|\\clvertalt)");
    body = std::regex_replace(Pairs(body), settings, "");
    ReplaceAll(body, R"({\*\shpinst{}})", "<>");
    return body;
}

}  // namespace

TEST(Shape, WritesItsPlaceAndGeometry) {
    const Drawn plain;
    const auto drawn = [](const std::string& words) { return Drawn{.position = words}; };
    const auto turned = [&](const std::string& by) {
        return Drawn{.wrap = "<Rotation=" + by + ">" + plain.wrap};
    };
    ExpectAll(
        Itself,
        {
            {"page; ties go to the even number",
             SettingsOf("ReferenceX=1 ReferenceY=1 Wrap=1 WrapSides=2 Left=-720.0 "
                        "Top=-360.5"),
             drawn(
                 R"(\shpleft-720\shptop-360\shpbottom1080\shpright720\shpbxpage\shpbypage\shpwr1\shpwrk1)")},
            {"column and paragraph, sums beyond 16 bits",
             SettingsOf("ReferenceX=2 ReferenceY=2 Wrap=2 WrapSides=3 LockAnchor=true "
                        "Left=32767.0 Width=32767.0 Top=-32768.0 Height=-32768.0"),
             drawn(R"(\shpleft32767\shptop-32768\shpbottom-65536\shpright65534\shpbxcolumn\shpbypara\shpwr2)"
                   R"(\shpwrk2\shplockanchor)")},
            {"tightly",
             {{"Wrap", dwSWTightly}, {"WrapSides", dwSWSLargest}},
             drawn(R"(\shpleft0\shptop0\shpbottom1440\shpright1440\shpbxmargin\shpbymargin\shpwr4\shpwrk3)")},
            {"behind the text, distances",
             SettingsOf("Wrap=5 BehindText=true WrapLeft=1.0 WrapRight=-2.0 "
                        "WrapTop=32767.0 WrapBottom=-32768.0"),
             {.position =
                  R"(\shpleft0\shptop0\shpbottom1440\shpright1440\shpfblwtxt1\shpbxmargin\shpbymargin)"
                  R"(\shpwr5\shpwrk0)",
              .wrap = "<dxWrapDistLeft=635><dxWrapDistRight=-1270><dxWrapDistTop=20807045>"
                      "<dxWrapDistBottom=-20807680><fBehindDocument=1>"}},
            {"turned by 45 degrees", {{"Rotation", 45.0}}, turned("2851020")},
            {"turned by 90 degrees", {{"Rotation", 90.0}}, turned("5702040")},
            {"turned by a part of a degree: 63356 / 256", {{"Rotation", 1.0 / 256}}, turned("247.484375")},
            {"turned back", {{"Rotation", -30.0}}, plain},
            {"flipped", {{"FlipV", true}, {"FlipH", true}}, {.head = plain.head + "<FFlipH=1><FFlipV=1>"}},
            {"another kind, one without a name",
             {{"Kind", -40}},
             {.head = R"({\shp{\*\shpinst{\shplid1<ShapeType=-40>)"}},
        });
    Drawn adjusted = plain;
    adjusted.wrap += "<adjustValue=5400><adjust2Value=-1><adjust10Value=7>";
    EXPECT_EQ(BodyWith([](Shape& shape) {
                  shape.SetAdjustValues(10, 7);
                  shape.SetAdjustValues(2, -1);
                  shape.SetAdjustValues(1, 5400);
              }),
              "\\pard~" + adjusted.All());
}

TEST(Shape, KeepsItsAngleInWholeParts) {
    TestDocument built;
    auto shape = built->AddSection()->AddParagraph()->AddShape(dwSKRectangle);
    shape->SetRotation(0.1);  // 6553.6 parts of 65536
    EXPECT_EQ(shape->Rotation(), 6554 / 65536.0);
    EXPECT_EQ(RefusalNumber([&] { shape->SetRotation(32768); }), dwRunOverflow);
    shape->SetAdjustValues(10, 7);
    EXPECT_EQ(shape->AdjustValues(10), 7);
    for (const int index : {0, 11}) {
        EXPECT_EQ(RefusalNumber([&] { shape->AdjustValues(index); }), dwErrPropertyOutOfRange);
        EXPECT_EQ(Refusal([&] { shape->SetAdjustValues(index, 1); }),
                  "X101 Property Shape.AdjustValues.Index set to out of range value.");
    }
}

TEST(ShapeFill, WritesEveryStyle) {
    const std::string to = "<fillToTop=65536><fillToLeft=65536><fillToRight=0><fillToBottom=0>";
    const auto of = [&](const std::string& types, const std::string& more = "") {
        return Drawn{.fill = "<fFilled=1>" + types + "<fillColor=0><fillBackColor=0>" + more + to};
    };
    ExpectAll(
        Fill,
        {
            {"none, whatever else", {{"Opacity", 50.0}}},
            {"shade", {{"Style", dwSFSShade}}, of("<fillType=7><fillType=4>", "<fillAngle=0>")},
            {"rectangle: neither angle nor focus",
             SettingsOf("Style=7 ShadeAngle=45.0 ShadeFocus=true ShadeToTop=50.0 "
                        "ShadeToLeft=150.0 ShadeToRight=25.0 ShadeToBottom=-25.0"),
             {.fill = "<fFilled=1><fillType=6><fillType=5><fillColor=0><fillBackColor=0><fillToTop=32768>"
                      "<fillToLeft=32768><fillToRight=16384><fillToBottom=-16384>"}},
            {"shade in colours",
             {{"Style", dwSFSShade},
              {"Color", 255},
              {"Opacity", 50.0},
              {"BackColor", -1},
              {"BackOpacity", 0.0},
              {"ShadeAngle", -45.0},
              {"ShadeFocus", true},
              {"ShadeArray", std::string{"255,0,16711680,100"}}},
             {.fill = "<fFilled=1><fillType=7><fillType=4><fillColor=255><fillOpacity=32768>"
                      "<fillBackColor=-1><fillBackOpacity=0><fillAngle=-2949120><fillFocus=50>"
                      + to + "<fillShadeColors=8;2;(255,0);(16711680,65536)>"}},
            {"numbers that are not whole: no exponent, however small; 2^-40 gives 2^-24",
             {{"Style", dwSFSShade},
              {"Opacity", 100 / 1048576.0},
              {"ShadeAngle", 1 / 1099511627776.0},
              {"ShadeToRight", -0.0}},
             {.fill = "<fFilled=1><fillType=7><fillType=4><fillColor=0><fillOpacity=0.0625>"
                      "<fillBackColor=0><fillAngle=0.00000005960464477539063>"
                      + to}},
        });
}

TEST(ShapeFill, JudgesAShadeArrayWhenItIsSet) {
    const TestDocument document;
    const auto fill = document.AddParagraph()->AddShape(dwSKRectangle)->Fill();
    const auto judge = [&](const char* text) { return RefusalNumber([&] { fill->SetShadeArray(text); }); };
    fill->SetShadeArray("1,2");
    for (const char* wrong :
         {"1,2,3", "1", " ", "1,", ",", "1,2,", "1.5,2", "+1,2", "1 2,3", "2147483648,0"}) {
        EXPECT_EQ(judge(wrong), dwRunInvalidCall) << wrong;
    }
    EXPECT_EQ(judge("1,3276800"), dwRunOverflow);  // 2^31 as a fraction of 65536
    EXPECT_EQ(fill->ShadeArray(), "1,2");
    EXPECT_EQ(judge(""), 0);
    for (const auto& [text, words] : {std::pair{"-2147483648 , 3276799", "8;1;(-2147483648,2147482992)"},
                                      // 21626.88 and -655.36, rounded down
                                      {"\t007,-0 ,0,33,0,-1", "8;3;(7,0);(0,21626);(0,-656)"}}) {
        const std::string body = BodyWith([&, set = text](Shape& shape) {
            Apply({{"Style", dwSFSSolid}, {"ShadeArray", set}}, *shape.Fill());
        });
        EXPECT_EQ(Between(body, "<fillShadeColors=", ">"), words);
    }
}

TEST(ShapeLine, WritesEveryBranch) {
    ExpectAll(
        Line,
        {
            {"none: not even that there is none", {{"Style", dwSLSNone}, {"Dash", dwSLDDot}}, {.line = ""}},
            {"all of it; 42.5 twips are 42; readers may know two more arrows",
             {{"Style", dwSLSThinThickThin},
              {"Texture", dwSLTPicture},
              {"Dash", dwSLDLongDashDotDot},
              {"Color", 255},
              {"BackColor", 0xFFFFFF},
              {"Width", 2.125},
              {"StartArrow", dwSLAOpen},
              {"StartArrowWidth", dwSLAWNarrow},
              {"StartArrowLength", dwSLALLong},
              {"EndArrow", 8}},
             {.line = "<lineColor=255><lineBackColor=16777215><lineType=2><lineWidth=26670><lineStyle=4>"
                      "<lineDashing=10><lineStartArrowhead=5><lineStartArrowWidth=0>"
                      "<lineStartArrowLength=2><lineEndArrowhead=7><lineEndArrowWidth=1>"
                      "<lineEndArrowLength=1><fLine=1>"}},
            {"no arrow, no width of one; the widest line of 32 bits",
             SettingsOf("Style=3 Texture=2 Dash=2 EndArrowWidth=3 Width=169093.2"),
             {.line = "<lineColor=0><lineBackColor=0><lineType=1><lineWidth=2147483640><lineStyle=1>"
                      "<lineDashing=1><fLine=1>"}},
        });
    BodyWith(
        [](Shape& s) { EXPECT_EQ(RefusalNumber([&] { s.Line()->SetWidth(169093.25); }), dwRunOverflow); });
}

TEST(ShapeShadow, WritesEveryBranch) {
    const std::string rest = "<shadowColor=0><shadowOffsetX=28575><shadowoffsetY=28575>";
    ExpectAll(Shadow,
              {
                  {"none, whatever else", {{"Color", 1}}},
                  {"single", {{"Style", dwSSSSingle}}, {.shadow = "<fShadow=1><shadowType=0>" + rest}},
                  {"double",
                   SettingsOf("Style=3 Color=255 Color2=256 Opacity=25.0 OffsetX=10.0 "
                              "OffsetY=-10.0 OffsetY2=0.0"),
                   {.shadow = "<fShadow=1><shadowType=1><shadowColor=255><shadowOpacity=16384>"
                              "<shadowOffsetX=6350><shadowoffsetY=-6350><shadowHighlight=256>"
                              "<shadowSecondOffsetX=-28575><shadowSecondOffsetY=0>"}},
                  {"unknown", {{"Style", 4}}, {.shadow = "<fShadow=1><shadowType=>" + rest}},
                  {"unknown below", {{"Style", 0}}, {.shadow = "<fShadow=1><shadowType=>" + rest}},
              });
}

TEST(ShapeTextFormat, WritesMarginsAndDirection) {
    ExpectAll(TextFormat,
              {
                  {"margins",
                   SettingsOf("SpacingTop=1.0 SpacingBottom=2.0 SpacingLeft=-3.0 "
                              "SpacingRight=4.0"),
                   {.text = "<dxTextLeft=-1905><dxTextRight=2540><dxTextTop=635><dxTextBottom=1270>"}},
                  {"downwards", {{"Flow", dwSTFTopToBottom}}, {.flow = "<txflTextFlow=2>"}},
                  {"upwards", {{"Flow", dwSTFBottomToTop}}, {.flow = "<txflTextFlow=2>"}},
                  {"unknown", {{"Flow", 4}}, {.flow = "<txflTextFlow=>"}},
              });
    ExpectAll(Itself, {{"next", {{"NextIndex", -7}}, {.flow = "<txflTextFlow=0><hspNext=-7>"}}});
}

TEST(Shape, WritesTheSameWhereverTheUnitIs) {
    for (const auto& [scale, inch] : {std::pair{dwInches, 1.0}, {dwTwips, 1440.0}, {dwPoints, 72.0}}) {
        TestDocument built(scale);
        const auto shape = built.AddParagraph()->AddShape(dwSKRectangle);
        Apply({{"Left", inch / 3}, {"Top", inch / 7}, {"WrapLeft", inch}}, *shape);  // 205.71 twips
        const std::string body = Pairs(built.Body());
        EXPECT_EQ(Between(body, "<ShapeType=1>", R"(\shpbxmargin)"),
                  R"(\shpleft480\shptop206\shpbottom1646\shpright1920)");
        EXPECT_EQ(Between(body, "<dxWrapDistLeft=", ">"), "914400");
    }
}

TEST(Shape, IsNumberedThroughTheDocument) {
    TestDocument built;
    auto paragraph = built->AddSection()->AddParagraph();
    EXPECT_EQ(paragraph->AddShape(dwSKLine)->Index(), 1);
    auto box = paragraph->AddShape(dwSKTextBox);
    auto inside = box->AddParagraph();
    EXPECT_EQ(Refusal([&] { inside->AddShape(dwSKSun); }), "X104 Shapes cannot contain shapes.");
    EXPECT_EQ(box->AddTable()->AddCell()->AddParagraph()->AddShape(dwSKSun)->Index(), 3);
    auto second = built->AddSection();
    EXPECT_EQ(Refusal([&] { paragraph->AddShape(dwSKSun); }), Emitted("Paragraph"));
    EXPECT_EQ(Refusal([&] { box->SetKind(dwSKSun); }), Emitted("Shape"));
    EXPECT_EQ(Refusal([&] { box->AddTable(); }), Emitted("Shape"));
    EXPECT_EQ(second->AddParagraph()->AddShape(dwSKLine)->Index(), 4);
    EXPECT_NE(built.Body().find("\\shplid4{\\sp{\\sn ShapeType}{\\sv 20}}"), std::string::npos);
}

TEST(TextBox, HoldsParagraphsAndRows) {
    const std::pair<std::function<void(Shape&)>, const char*> cases[]{
        // The mark of the next paragraph is swallowed.
        {[](Shape&) {}, R"({\shp<>}\pard~{z})"},
        {[](Shape& s) { AddText(s, "a"), AddText(s, "b"); },
         R"({\shp<>{\shptxt\pard~{a}\par\pard~{b}}}\par\pard~{z})"},
        // The mark of a row that comes last stands behind the text.
        {[](Shape& s) { AddText(s, "a"), s.AddTable()->AddCell(); },
         R"({\shp<>{\shptxt\pard~{a}\par\trowd\cellx1440\intbl\cell\intbl\row\pard}\par}\pard~{z})"},
        {[](Shape& s) { s.AddTable(), AddText(s, "a"); },
         R"({\shp<>{\shptxt\trowd\intbl\row\pard\pard~{a}}}\par\pard~{z})"},
        // A note with a row and a shape, whose text is another one.
        {[](Shape& s) {
             auto note = s.AddParagraph()->AddFootnote();
             note->AddTable();
             AddText(*note->AddParagraph()->AddShape(dwSKTextBox), "a");
             AddText(s, "b");
         },
         R"({\shp<>{\shptxt\pard~{\footnote\trowd\intbl\row\pard\pard~{\shp<>{\shptxt\pard~{a}}}})"
         R"(\par\pard~{b}}}\par\pard~{z})"},
    };
    for (const auto& [fill, expected] : cases) {
        const std::string body = BodyOf([&fill = fill](Section& section) {
            auto shape = section.AddParagraph()->AddShape(dwSKTextBox);
            fill(*shape);
            AddText(section, "z");
            EXPECT_EQ(Refusal([&] { shape->AddParagraph(); }), Emitted("Shape"));
        });
        EXPECT_EQ(Skeleton(body), "\\pard~" + std::string{expected});
    }
    EXPECT_EQ(
        Skeleton(BodyOf([](Section& section) { section.AddParagraph()->AddShape(dwSKTextBox)->AddTable(); })),
        R"(\pard~{\shp<>{\shptxt\trowd\intbl\row\pard}\par}\par)");
}

// Whatever a shape in a cell holds, the rows and paragraphs around it come out as without it.
TEST(Shape, LeavesTheRowAroundItAlone) {
    const std::pair<std::function<void(Paragraph&)>, std::string> cases[]{
        {[](Paragraph&) {}, ""},
        {[](Paragraph& p) { p.AddShape(dwSKSun); }, R"({\shp<>})"},
        {[](Paragraph& p) { AddText(*p.AddShape(dwSKTextBox), "a"); }, R"({\shp<>{\shptxt\pard~{a}}})"},
        // A row that holds such a shape.
        {[](Paragraph& p) {
             auto row = p.AddShape(dwSKTextBox)->AddTable();
             row->AddCell()->AddParagraph()->AddShape(dwSKSun);
             AddText(*row->AddCell(), "a");
         },
         R"({\shp<>{\shptxt\trowd\cellx1440\intbl\pard\intbl~{\shp<>}\cell\cellx2880\intbl\pard\intbl~{a})"
         R"(\cell\intbl\row\pard}\par})"},
        {[](Paragraph& p) { p.AddFootnote()->AddParagraph()->AddShape(dwSKSun); },
         R"({\footnote\pard~{\shp<>}})"},
    };
    for (const auto& [add, drawn] : cases) {
        const std::string body = BodyOf([&add = add](Section& section) {
            auto box = section.AddParagraph()->AddShape(dwSKTextBox);
            AddText(*box, "x");
            auto row = box->AddTable();
            auto cell = row->AddCell();
            add(*cell->AddParagraph());
            AddText(*cell, "y");
            row->AddCell();
            AddText(*box, "z");
        });
        EXPECT_EQ(Skeleton(body),
                  R"(\pard~{\shp<>{\shptxt\pard~{x}\par\trowd\cellx1440\intbl\pard\intbl~)" + drawn
                      + R"(\intbl\par\pard\intbl~{y}\cell\cellx2880\intbl\cell\intbl\row\pard)"
                        R"(\pard~{z}}})");
    }
}

}  // namespace draftwick::test
