#include "tests/support/Documents.h"

namespace draftwick::test {

namespace {

/// What a shape writes between its outline and its text box.
std::string EffectWords(const std::function<void(Shape&)>& set) {
    const std::string file = Written([&](Document& document) {
        document.Fonts()->Add("A {font}");
        set(*document.AddSection()->AddParagraph()->AddShape(dwSKTextPlainText));
    });
    return Between(file, R"({\sp{\sn fLine}{\sv 1}})", R"(}{\sp{\sn lTxid})");
}

/// {\sp{\sn Name}{\sv Value}} of "Name=Value".
std::string Pair(const std::string& pair) {
    const std::size_t middle = pair.find('=');
    return R"({\sp{\sn )" + pair.substr(0, middle) + R"(}{\sv )" + pair.substr(middle + 1) + "}}";
}

/// A property, a value that is not its default, and the pair that is then written.
struct Row {
    const char* property;
    Variant value;
    const char* pair;
};

/// Each row writes its pair and nothing else; all of them, set from the last to the first, write all pairs in order.
void CheckRows(std::span<const Row> rows, const std::string& first,
               const std::function<Object*(Shape&)>& settings) {
    std::string all = first;
    for (const Row& row : rows) {
        const std::string words =
            EffectWords([&](Shape& shape) { Set(*settings(shape), row.property, row.value); });
        EXPECT_EQ(words, first + Pair(row.pair)) << row.property;
        all += Pair(row.pair);
    }
    EXPECT_EQ(EffectWords([&](Shape& shape) {
                  for (std::size_t i = rows.size(); i-- > 0;) {
                      Set(*settings(shape), rows[i].property, rows[i].value);
                  }
              }),
              all);
}

const Row ThreeDRows[] = {
    {"Depth", 100.0, "c3DExtrudeBackward=63500"},
    {"DepthForward", -2.0, "c3DExtrudeForward=-1270"},
    {"Metallic", true, "fc3DMetallic=1"},
    {"LightFace", false, "fc3DLightFace=0"},
    {"Specularity", 50.0, "c3DSpecularAmt=32768"},
    {"Diffusion", 0.0, "c3DDiffuseAmt=0"},
    {"Shininess", 0, "c3DShininess=0"},
    {"EdgeThickness", 0.125, "c3DEdgeThickness=1270"},
    {"RotationX", 45.0, "c3DXRotationAngle=2949120"},
    {"RotationY", -0.00002, "c3DYRotationAngle=-1.31072"},
    {"RenderMode", dwS3RBoundingCube, "c3DRenderMode=2"},
    {"Projection", dwS3PPerspective, "fc3DParallel=0"},
    {"SkewAngle", 0.0, "c3DSkewAngle=0"},
    {"SkewAmount", 49, "c3DSkewAmount=49"},
    {"ViewpointX", 1, "c3DXViewpoint=1"},
    {"ViewpointY", 2, "c3DYViewpoint=2"},
    {"ViewpointZ", 3, "c3DZViewpoint=3"},
    {"OriginX", 0.25, "c3DOriginX=16384"},
    {"OriginY", 1.0, "c3DOriginY=65536"},
    {"AmbientIntensity", 4, "c3DAmbientIntensity=4"},
    {"KeyX", 5, "c3DKeyX=5"},
    {"KeyY", 6, "c3DKeyY=6"},
    {"KeyZ", 7, "c3DKeyZ=7"},
    {"KeyIntensity", 8, "c3DKeyIntensity=8"},
    {"KeyHarsh", false, "fc3DKeyHarsh=0"},
    {"FillX", 9, "c3DFillX=9"},
    {"FillY", 10, "c3DFillY=10"},
    {"FillZ", 11, "c3DFillZ=11"},
    {"FillIntensity", 12, "c3DFillIntensity=12"},
    {"FillHarsh", true, "fc3DFillHarsh=1"},
};

const Row WordArtRows[] = {
    {"FontName", std::string{"a {FONT}"}, R"(gtextFont=A \{font\})"},
    {"Size", 12.5, "gtextSize=819200"},
    {"Align", dwWAAStretch, "gtextAlign=0"},
    {"Spacing", 150.0, "gtextSpacing=98304"},
    {"ReverseRows", true, "gtextFReverseRows=1"},
    {"Vertical", true, "gtextFVertical=1"},
    {"Kern", true, "gtextFKern=1"},
    {"Tight", true, "gtextFTight=1"},
    {"Stretch", true, "gtextFStretch=1"},
    {"ShrinkFit", true, "gtextFShrinkFit=1"},
    {"BestFit", true, "gtextFBestFit=1"},
    {"Normalize", true, "gtextFNormalize=1"},
    {"Bold", true, "gtextFBold=1"},
    {"Italic", true, "gtextFItalic=1"},
    {"Underline", true, "gtextFUnderline=1"},
    {"Shadow", true, "gtextFShadow=1"},
    {"SmallCaps", true, "gtextFSmallcaps=1"},
    {"Strikethrough", true, "gtextFStrikethrough=1"},
};

}  // namespace

TEST(ShapeThreeD, WritesWhatDiffersFromTheDefaults) {
    CheckRows(ThreeDRows, Pair("fc3D=1"), [](Shape& shape) {
        shape.ThreeD()->SetVisible(true);
        return shape.ThreeD().get();
    });
}

TEST(ShapeThreeD, WritesNothingWhileItIsNotVisible) {
    const std::string words = EffectWords([](Shape& shape) {
        for (const Row& row : ThreeDRows) Set(*shape.ThreeD(), row.property, row.value);
        shape.ThreeD()->SetUseColor(true);
    });
    EXPECT_EQ(words, "");
}

TEST(ShapeThreeD, WritesAColourThatIsUsed) {
    const auto words = [](bool use) {
        return EffectWords([&](Shape& shape) {
            shape.ThreeD()->SetVisible(true);
            shape.ThreeD()->SetDepthForward(1);
            shape.ThreeD()->SetMetallic(true);
            shape.ThreeD()->SetColor(use ? 0 : 255);
            shape.ThreeD()->SetUseColor(use);
        });
    };
    const std::string before = Pair("fc3D=1") + Pair("c3DExtrudeForward=635");
    EXPECT_EQ(words(false), before + Pair("fc3DMetallic=1"));
    EXPECT_EQ(words(true), before + Pair("fc3DUseExtrusionColor=1") + Pair("c3DExtrusionColor=0")
                               + Pair("fc3DMetallic=1"));
}

TEST(ShapeWordArt, WritesWhatDiffersFromTheDefaults) {
    CheckRows(WordArtRows, Pair("fGText=1") + Pair(R"(gtextUNICODE=Sale \\ 50 %)"), [](Shape& shape) {
        shape.WordArt()->SetText(R"(Sale \ 50 %)");
        return shape.WordArt().get();
    });
}

TEST(ShapeWordArt, WritesNothingWithoutAText) {
    EXPECT_EQ(EffectWords([](Shape& shape) {
                  for (const Row& row : WordArtRows) Set(*shape.WordArt(), row.property, row.value);
              }),
              "");
}

TEST(ShapeWordArt, StartsWithTheDefaultFont) {
    const std::string file = Written([&](Document& document) {
        document.Fonts()->Add("Arial");
        document.SetDefaultFontName("ARIAL");
        const auto shape = document.AddSection()->AddParagraph()->AddShape(dwSKTextPlainText);
        EXPECT_EQ(shape->WordArt()->FontName(), "Arial");
        EXPECT_EQ(Refusal([&] { shape->WordArt()->SetFontName("Times"); }), "X112 Item not found 'Times'.");
        EXPECT_EQ(shape->WordArt()->FontName(), "Arial");
        shape->WordArt()->SetText("x");
    });
    EXPECT_NE(file.find(Pair("gtextUNICODE=x") + Pair("gtextFont=Arial")), std::string::npos) << file;
}

TEST(ShapeEffects, StandLastOfTheSettings) {
    EXPECT_EQ(EffectWords([](Shape& shape) {
                  shape.WordArt()->SetText("x");
                  shape.ThreeD()->SetVisible(true);
                  shape.Shadow()->SetColor(1);
              }),
              Pair("fc3D=1") + Pair("fGText=1") + Pair("gtextUNICODE=x"));
    const std::string shadow = EffectWords([](Shape& shape) {
        shape.ThreeD()->SetVisible(true);
        shape.Shadow()->SetStyle(dwSSSSingle);
    });
    EXPECT_LT(shadow.find("shadowoffsetY"), shadow.find("fc3D"));
}

}  // namespace draftwick::test
