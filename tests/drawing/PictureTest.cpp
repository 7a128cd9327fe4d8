#include "tests/support/Documents.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/Script.h"
#include "tests/support/TempFolder.h"

#include <system_error>

namespace draftwick::test {

namespace {

std::string Hex(std::string_view bytes) {
    std::string digits;
    for (const char c : bytes) {
        for (const int digit : {static_cast<unsigned char>(c) / 16, c & 15}) {
            digits += "0123456789ABCDEF"[digit];
        }
    }
    return digits;
}

/// Two inches by one, of 88 bytes.
const std::string Emf = MakeEmf(0, 0, 5080, 2540);
const std::string Flat = MakeEmf(0, 0, 0, 0);
/// 100 bytes: only the header of a JPEG is looked at.
const std::string Jpeg = [] {
    std::string bytes = MakeJpeg(8, 8, 1, 96, 96);
    bytes.resize(100);
    return bytes;
}();
const std::string Bmp = PictureFile("sample/4.bmp"), Gif = PictureFile("sample/a.gif");

/// A document whose first paragraph has one shape.
struct WithShape : TestDocument {
    std::shared_ptr<Section> section;
    std::shared_ptr<Shape> shape;
    explicit WithShape(dwShapeKind kind = dwSKPictureFrame, dwSpelling spelling = dwSpellingClassic)
        : TestDocument(dwTwips) {
        document->SetSpelling(spelling);
        section = document->AddSection();
        shape = section->AddParagraph()->AddShape(kind);
        files->Put("a.emf", Emf);
        files->Put("a.jpeg", Jpeg);
    }
    std::vector<std::string> Temporary() const {
        std::vector<std::string> names = files->Names();
        std::erase_if(names, [](const std::string& name) { return name.find("~DWGC") == name.npos; });
        return names;
    }
};

/// Signature, header and density of a PNG of that many pixels, ten thousand to the metre.
std::string MakePng(char width, char height) {
    using namespace std::string_literals;
    return "\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\0"s + width + "\0\0\0"s + height
           + "\x08\0\0\0\0CRC.\0\0\0\x09pHYs\0\0\x27\x10\0\0\x27\x10\1CRC.\0\0\0\0IENDCRC."s;
}

std::string Property(const std::string& name, const std::string& data) {
    return R"({\sp{\sn )" + name + R"(}{\sv{\pict)" + data + "}}}";
}

}  // namespace

TEST(Picture, StandsInThePropertyThatItIsFor) {
    const std::string emf = R"(\emfblip )" + Hex(Emf);
    const std::string jpeg = R"(\jpegblip )" + Hex(Jpeg);
    struct {
        dwShapeKind kind;
        const char *fill, *line;
        std::string pictures;
    } const cases[]{
        // A frame has no other pictures.
        {dwSKPictureFrame, "Picture='a.jpeg'", "Texture=dwSLTPicture Picture='none.jpg'",
         Property("pib", jpeg)},
        {dwSKRectangle, "Style=dwSFSPattern Picture='a.emf'", "", Property("fillBlip", emf)},
        {dwSKRectangle, "Style=dwSFSPicTile Picture='a.jpeg'", "Texture=dwSLTPattern Picture='a.emf'",
         Property("fillBlip", jpeg) + Property("lineFillBlip", emf)},
        {dwSKRectangle, "Style=dwSFSPicStretch", "Texture=dwSLTPicture Picture='a.jpeg'",
         Property("lineFillBlip", jpeg)},
        // Styles that have no picture.
        {dwSKRectangle, "Style=dwSFSSolid Picture='none.jpg'", "Picture='none.jpg'", ""},
    };
    for (const auto& [kind, fill, line, pictures] : cases) {
        WithShape built(kind);
        Apply(fill, *built.shape->Fill());
        Apply(line, *built.shape->Line());
        EXPECT_EQ(Between(built.Body(), R"({\sp{\sn fLine}{\sv 1}})", R"(}{\sp{\sn lTxid})"), pictures)
            << fill;
    }
}

// In texts of 64 bytes; the space that Words leaves out stands in the file.
TEST(Picture, IsWrittenInLinesThatReadersTake) {
    WithShape built;
    built.shape->Fill()->SetPicture("a.jpeg");
    const std::string digits = Hex(Jpeg);
    EXPECT_NE(built.Finish().find("{\\sv {\\pict\\jpegblip " + digits.substr(0, 128) + "\r\n"
                                  + digits.substr(128) + "}}}"),
              std::string::npos);
}

TEST(Picture, LosesThePlaceableHeaderOfAMetafile) {
    const std::string wmf = MakeWmf(0, 0, 10, 10, 96);
    for (const std::size_t size : {wmf.size(), std::size_t{23}, std::size_t{22}}) {
        WithShape built;
        built.files->Put("a.wmf", wmf.substr(0, size));
        built.shape->Fill()->SetPicture("a.wmf");
        const std::string data = Hex(std::string_view{wmf}.substr(22, size - 22));
        EXPECT_EQ(Between(built.Body(), "\\pict\\wmetafile8", "}}}"), data.empty() ? "" : " " + data);
    }
}

TEST(InlinePicture, IsScaledByNumbersThatAreTakenAsTwips) {
    struct {
        dwScaleMode scale;
        double width, height;
        const char* file;
        std::string data;
    } const cases[]{
        {dwTwips, 2880, 720, "a.emf", R"(\emfblip\picscalex100\picscaley50 )" + Hex(Emf)},
        // One inch is taken as one twip: 1.76 HIMETRIC, so 2, of 5080 and 2540. Half an inch: ties to even.
        {dwInches, 1, 1, "a.emf", R"(\emfblip\picscalex0\picscaley0 )" + Hex(Emf)},
        {dwInches, 0.5, 1, "a.emf", R"(\emfblip )" + Hex(Emf)},
        {dwPoints, 720, 360, "a.emf", R"(\emfblip\picscalex25\picscaley25 )" + Hex(Emf)},
        {dwTwips, 720, 0, "flat.emf", R"(\emfblip )" + Hex(Flat)},
        {dwTwips, -720, 720, "a.emf", R"(\emfblip )" + Hex(Emf)},
    };
    for (const auto& [scale, width, height, file, data] : cases) {
        WithShape built;
        built.files->Put("flat.emf", Flat);
        built->SetScaleMode(scale);
        built.shape->SetInLine(true);
        built.shape->SetFlipH(true);
        built.shape->SetWidth(width);
        built.shape->SetHeight(height);
        built.shape->Fill()->SetPicture(file);
        AddText(*built.section, "z");
        EXPECT_EQ(built.Body(),
                  R"(\pard~{\pict{\*\picprop\shplid1{\sp{\sn ShapeType}{\sv 75}}{\sp{\sn FFlipH}{\sv 1}}}})"
                      + data + R"(\pard~{z})");
    }
}

TEST(InlinePicture, CanHoldTextBeforeItsData) {
    WithShape built;
    built.shape->SetInLine(true);
    built.shape->Fill()->SetPicture("a.emf");
    AddText(*built.shape, "a");
    std::error_code error;
    built.files->Delete("a.emf", error);  // it is read already
    built->SetScaleMode(dwInches);        // what counts is the unit when the shape ends
    EXPECT_EQ(built.Body(),
              R"(\pard~{\pict{\*\picprop\shplid1{\sp{\sn ShapeType}{\sv 75}}}{\shptxt\pard~{a}}})"
              R"(\emfblip\picscalex0\picscaley0 )"
                  + Hex(Emf));
}

// The bytes say what a picture is, and it has its own size: in hundredths of a millimetre and in twips.
TEST(Picture, HasItsSizeInTheStandardSpelling) {
    const std::string png = MakePng(127, 127), wmf = MakeWmf(0, 0, 10, 10, 96), plain = wmf.substr(22);
    const std::string emf = R"(\emfblip\picw5080\pich2540\picwgoal2880\pichgoal1440 )" + Hex(Emf);
    struct {
        const char* file;
        std::string content, data;
    } const cases[]{
        // 8 pixels, 96 to the inch
        {"b.JPEG", Jpeg, R"(\jpegblip\picw212\pich212\picwgoal120\pichgoal120 )" + Hex(Jpeg)},
        {"b.PNG", png, R"(\pngblip\picw1270\pich1270\picwgoal720\pichgoal720 )" + Hex(png)},
        {"b.jpg", Emf, emf},
        {"b", Emf, emf},
        // 10 units, 96 to the inch
        {"b.wmf", wmf, R"(\wmetafile8\picw265\pich265\picwgoal150\pichgoal150 )" + Hex(plain)},
        // Without a size of its own it has the frame's, and all of its bytes.
        {"c.wmf", plain, R"(\wmetafile8\picw1270\pich5080\picwgoal720\pichgoal2880 )" + Hex(plain)},
        {"flat.emf", Flat, R"(\emfblip\picw1270\pich5080\picwgoal720\pichgoal2880 )" + Hex(Flat)},
    };
    for (const auto& [file, content, data] : cases) {
        WithShape built(dwSKPictureFrame, dwSpellingStandard);
        built.files->Put(file, content);
        built.shape->SetWidth(720);
        built.shape->SetHeight(2880);
        built.shape->Fill()->SetPicture(file);
        EXPECT_EQ(Between(built.Body(), R"({\sp{\sn fLine}{\sv 1}})", R"({\sp{\sn lTxid})"),
                  Property("pib", data))
            << file;
    }
}

// As large as it was asked for in any unit, with its data in its group, where its text is, too.
TEST(InlinePicture, HasTheSizeOfItsShapeInTheStandardSpelling) {
    struct {
        dwScaleMode scale;
        double width, height;
        const char* size;
    } const cases[]{
        {dwTwips, 2880, 720, R"(\picw5080\pich1270\picwgoal2880\pichgoal720 )"},
        {dwInches, 0.3, 1, R"(\picw762\pich2540\picwgoal432\pichgoal1440 )"},
        {dwTwips, 720, 0, R"(\picw5080\pich2540\picwgoal2880\pichgoal1440 )"},
    };
    for (const auto& [scale, width, height, size] : cases) {
        WithShape built(dwSKPictureFrame, dwSpellingStandard);
        built->SetScaleMode(scale);
        built.shape->SetInLine(true);
        built.shape->SetFlipV(true);
        built.shape->SetWidth(width);
        built.shape->SetHeight(height);
        built.shape->Fill()->SetPicture("a.emf");
        AddText(*built.shape, "a");
        AddText(*built.section, "z");
        EXPECT_EQ(
            built.Body(),
            R"(\pard\s0~{\pict{\*\picprop\shplid1{\sp{\sn shapeType}{\sv 75}}{\sp{\sn fFlipV}{\sv 1}}}\emfblip)"
                + (size + Hex(Emf)) + R"({\shptxt\pard\s0~{a}}}\par\pard\s0~{z})");
    }
}

// As every record, this one starts with its kind, 1, and after the rectangles of its header comes " EMF".
TEST(Picture, OfPixelsBecomesAMetafile) {
    const std::string files[2][2]{{"a.bmp", Bmp}, {"a.gif", Gif}};
    for (const bool inLine : {false, true}) {
        for (const auto& [name, content] : files) {
            WithShape built;
            built.files->Put(name, content);
            built.files->Put("/temp/~DWGC1.tmp", "another's");
            built.shape->SetInLine(inLine);
            built.shape->Fill()->SetPicture(name);
            const std::string expected = inLine ? R"(}}\emfblip\picscalex)" : R"({\pict\emfblip )";
            const std::string words = built.Body();
            const std::string data = Between(words.substr(words.find(expected)) + "}", " ", "}");
            EXPECT_EQ(data.substr(0, 8), "01000000") << name;
            EXPECT_EQ(data.substr(32, 16), "0400000002000000") << name;  // the last pixel of 5 by 3
            EXPECT_EQ(data.substr(80, 8), "20454D46") << name;
            EXPECT_EQ(Hex(Le32(static_cast<std::uint32_t>(data.size() / 2))), data.substr(96, 8)) << name;
            EXPECT_EQ(built.Temporary(), std::vector<std::string>{"/temp/~DWGC1.tmp"});
            EXPECT_EQ(built.files->OpenFiles(), 0);
        }
    }
}

// A picture that cannot be written is refused before the first byte of its shape: the host mends it and goes on.
TEST(Picture, IsJudgedBeforeItsShape) {
    const std::string notFound = "X107 Picture '";
    struct {
        const char* file;
        std::string content;  // empty: no such file
        std::string refusal;
    } const cases[]{
        {"none.jpg", "", notFound + "none.jpg' not found."},
        {"", "", notFound + "' not found."},
        {"photo.JPG", Jpeg, "X105 Unsupported File Type: photo.JPG"},
        {"xjpeg", Jpeg, "X105 Unsupported File Type: xjpeg"},
        {"a.jpg.", Jpeg, "X105 Unsupported File Type: a.jpg."},
        {"b.jpg", Emf, "481"},
        {"b.emf", Jpeg, "481"},
        {"b.gif", Bmp, "481"},
        {"b.bmp", Gif, "481"},
        {"c.bmp", Bmp.substr(0, 60), "481"},
        {"c.gif", Gif.substr(0, 20), "481"},
        {"flat.emf", Flat, "11"},
        {"flat.wmf", std::string(40, '\1'), "11"},
    };
    for (const auto& [file, content, refusal] : cases) {
        WithShape built;
        if (!content.empty()) built.files->Put(file, content);
        built.shape->SetInLine(true);
        built.shape->Fill()->SetPicture(file);
        const std::string actual = Refusal([&] { built.section->AddParagraph(); });
        EXPECT_EQ(actual.substr(0, refusal.size()), refusal) << file;
        EXPECT_FALSE(built.shape->Emitted());
        EXPECT_EQ(Refusal([&] { built->Finish(); }), actual);
        built.shape->Fill()->SetPicture("a.emf");
        AddText(*built.section, "z");
        EXPECT_EQ(built.Body(), R"(\pard~{\pict{\*\picprop\shplid1{\sp{\sn ShapeType}{\sv 75}}}}\emfblip)"
                                R"(\picscalex50\picscaley100 )"
                                    + Hex(Emf) + R"(\pard~{z})");
        EXPECT_EQ(built.Temporary(), std::vector<std::string>{});
    }
}

// What the bytes are is seen at their beginning; what is wrong with them is said at once.
TEST(Picture, FromBytesIsThatFromAFile) {
    const std::string wmf = MakeWmf(0, 0, 10, 10, 96);
    const std::pair<std::string, std::string> files[] = {
        {"a.jpg", Jpeg}, {"a.emf", Emf}, {"a.bmp", Bmp}, {"a.gif", Gif}, {"a.wmf", wmf}};
    for (const auto& [name, bytes] : files) {
        WithShape named, given;
        named.files->Put(name, bytes);
        named.shape->Fill()->SetPicture(name);
        given.shape->Fill()->SetPicture("none.gif");
        given.shape->Fill()->SetPictureData(bytes);
        EXPECT_EQ(given.shape->Fill()->Picture(), "");
        EXPECT_EQ(given.Finish(), named.Finish()) << name;
    }
    const std::pair<std::string, std::int32_t> refused[] = {
        {"no picture", dwErrUnsupportedFileType},
        {Jpeg.substr(0, 3), dwRunInvalidPicture},
        {Bmp.substr(0, 60), dwRunInvalidPicture},
    };
    WithShape built;
    built.shape->Fill()->SetPictureData(Emf);
    for (const auto& [bytes, number] : refused)
        EXPECT_EQ(RefusalNumber([&, &wrong = bytes] { built.shape->Fill()->SetPictureData(wrong); }), number);
    built.shape->AddParagraph();  // with the one before
    WithShape without;
    without.shape->Fill()->SetPictureData(Emf);
    without.shape->Fill()->SetPictureData({});
    EXPECT_EQ(RefusalNumber([&] { without->Finish(); }), dwErrPictureFileNotFound);
}

// 8 pixels at 96 to the inch are 120 twips; the metafile is two inches by one.
TEST(Picture, InTheLineHasTheSizeThatIsAskedForOrItsOwn) {
    const struct {
        std::string bytes;
        Measure width, height;
        std::string size;
    } cases[] = {
        {Jpeg, 0, 0, R"(\picwgoal120\pichgoal120 )"},
        {Jpeg, 1_in, 0, R"(\picwgoal1440\pichgoal1440 )"},
        {Emf, 0, 2.54_cm, R"(\picwgoal2880\pichgoal1440 )"},
        {Emf, 720, 36_pt, R"(\picwgoal720\pichgoal720 )"},
        {MakeWmf(0, 0, 0, 0, 96).substr(22), 1_in, 1_in, R"(\picwgoal1440\pichgoal1440 )"},
    };
    for (const auto& [bytes, width, height, size] : cases) {
        TestDocument built(dwTwips);
        built->SetSpelling(dwSpellingStandard);
        const auto paragraph = built.AddParagraph();
        paragraph->AddPictureData(bytes, width, height);
        EXPECT_NE(built.Finish().find(size + Hex(bytes).substr(0, 8)), std::string::npos) << size;
    }
    TestDocument built(dwTwips);
    built->SetSpelling(dwSpellingStandard);
    built.files->Put("a.jpg", Jpeg);
    const auto paragraph = built.AddParagraph();
    EXPECT_EQ(RefusalNumber([&] { paragraph->AddPicture("none.jpg"); }), dwErrPictureFileNotFound);
    EXPECT_EQ(RefusalNumber([&] { paragraph->AddPicture("a.jpg", 32768); }), dwRunOverflow);
    EXPECT_EQ(RefusalNumber([&] { paragraph->AddPictureData(MakeWmf(0, 0, 0, 0, 96).substr(22), 5); }),
              dwRunDivisionByZero);
    EXPECT_EQ(paragraph->CurrentShape(), nullptr);
    EXPECT_EQ(paragraph->AddPicture("a.jpg", 5)->Fill()->Picture(), "a.jpg");
    EXPECT_EQ(RefusalNumber([&] { WithShape(dwSKRectangle).section->AddParagraph()->AddPicture("a.jpeg"); }),
              dwRunInvalidCall);
}

TEST(Picture, WithTheLineRefusedLeavesNoFileOfTheFill) {
    WithShape built(dwSKRectangle);
    built.files->Put("a.bmp", Bmp);
    Apply("Style=dwSFSPicTile Picture='a.bmp'", *built.shape->Fill());
    Apply("Texture=dwSLTPicture Picture='none.gif'", *built.shape->Line());
    EXPECT_EQ(RefusalNumber([&] { built.shape->AddParagraph(); }), dwErrPictureFileNotFound);
    EXPECT_EQ(built.Temporary(), std::vector<std::string>{});
    EXPECT_EQ(built.files->OpenFiles(), 1);  // the body
}

// In a real file system: a folder, a file that cannot be read, no folder for the converted picture.
TEST(Picture, ReportsWhatTheFileSystemSays) {
    const TempFolder folder;
    platform::Platform services = platform::SystemPlatform();
    const auto environment = std::make_shared<FakeEnvironment>();
    environment->tempFolder = folder / "none";
    services.environment = environment;
    auto document = Document::Create(services);
    document->SetTempPath(folder.Path());
    document->SetFilename(folder / "a.rtf");
    auto paragraph = document->AddSection()->AddParagraph();
    auto shape = paragraph->AddShape(dwSKPictureFrame);
    std::filesystem::create_directory(folder / "folder.jpg");
    shape->Fill()->SetPicture(folder / "folder.jpg");
    EXPECT_EQ(RefusalNumber([&] { document->Finish(); }), dwErrPictureFileNotFound);
    WriteFile(folder / "a.bmp", Bmp);
    shape->Fill()->SetPicture(folder / "a.bmp");
    EXPECT_THROW(document->Finish(), std::system_error);
    environment->tempFolder = folder.Path();
    document->Finish();
    EXPECT_EQ(CheckFile(ReadFile(folder / "a.rtf")), "");
    const std::filesystem::directory_iterator left(folder.Path());
    EXPECT_EQ(std::distance(begin(left), end(left)), 3);  // folder.jpg, a.bmp, a.rtf
}

}  // namespace draftwick::test
