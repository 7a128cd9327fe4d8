#include "tests/drawing/Drawn.h"
#include "tests/support/Errors.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
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

std::string Unhex(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(std::string{digits.substr(i, 2)}, nullptr, 16));
    }
    return bytes;
}

/// Two inches by one, of 88 bytes.
const std::string Emf = MakeEmf(0, 0, 5080, 2540);
/// 100 bytes: only the header of a JPEG is looked at.
const std::string Jpeg = [] {
    std::string bytes = MakeJpeg(8, 8, 1, 96, 96);
    bytes.resize(100);
    return bytes;
}();
const Indices Checks{3, 2, {0, 1, 2, 3, 4, 7}};

/// A document whose first paragraph has one shape.
struct WithShape : Built {
    std::shared_ptr<Section> section;
    std::shared_ptr<Shape> shape;
    explicit WithShape(dwShapeKind kind = dwSKPictureFrame) {
        document->SetScaleMode(dwTwips);
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

const std::string FillOf(int type) {
    const std::string number = std::to_string(type);
    return "<fFilled=1><fillType=" + number + "><fillType=" + number
           + "><fillColor=0><fillBackColor=0><fillToTop=65536><fillToLeft=65536><fillToRight=0><fillToBottom="
             "0>";
}

std::string Property(const std::string& name, const std::string& data) {
    return R"({\sp{\sn )" + name + R"(}{\sv{\pict)" + data + "}}}";
}

}  // namespace

TEST(Picture, StandsInThePropertyThatItIsFor) {
    const std::string emf = R"(\emfblip )" + Hex(Emf);
    const std::string jpeg = R"(\jpegblip )" + Hex(Jpeg);
    const Drawn plain;
    const std::string untextured = plain.line;
    const auto textured = [&](int type) {
        std::string line = untextured;
        ReplaceAll(line, "<lineType=0>", "<lineType=" + std::to_string(type) + ">");
        return line;
    };
    const std::string frame = R"({\shp{\*\shpinst{\shplid1<ShapeType=75>)";
    struct {
        const char* name;
        dwShapeKind kind;
        dwShapeFillStyle style;
        const char* fill;
        dwShapeLineTexture texture;
        const char* line;
        Drawn expected;
    } const cases[]{
        {"a frame has no other pictures",
         dwSKPictureFrame,
         dwSFSNone,
         "a.jpeg",
         dwSLTPicture,
         "none.jpg",
         {.head = frame, .line = textured(2), .shadow = Property("pib", jpeg)}},
        {"a pattern",
         dwSKRectangle,
         dwSFSPattern,
         "a.emf",
         dwSLTNone,
         "",
         {.fill = FillOf(1), .shadow = Property("fillBlip", emf)}},
        {"tiles and a patterned line",
         dwSKRectangle,
         dwSFSPicTile,
         "a.jpeg",
         dwSLTPattern,
         "a.emf",
         {.fill = FillOf(2),
          .line = textured(1),
          .shadow = Property("fillBlip", jpeg) + Property("lineFillBlip", emf)}},
        {"a line alone",
         dwSKRectangle,
         dwSFSPicStretch,
         "",
         dwSLTPicture,
         "a.jpeg",
         {.fill = FillOf(3), .line = textured(2), .shadow = Property("lineFillBlip", jpeg)}},
        {"styles that have no picture",
         dwSKRectangle,
         dwSFSSolid,
         "none.jpg",
         dwSLTNone,
         "none.jpg",
         {.fill = FillOf(0)}},
    };
    for (const auto& [name, kind, style, fill, texture, line, expected] : cases) {
        WithShape built(kind);
        built.shape->Fill()->SetStyle(style);
        built.shape->Fill()->SetPicture(fill);
        built.shape->Line()->SetTexture(texture);
        built.shape->Line()->SetPicture(line);
        EXPECT_EQ(Pairs(built.Body()), "\\pard~" + expected.All()) << name;
        // The space that Words leaves out stands in the file.
        if (!expected.shadow.empty()) {
            EXPECT_NE(built.File().find("{\\sv {\\pict"), std::string::npos) << name;
        }
    }
}

TEST(Picture, IsWrittenInTextsOf64Bytes) {
    WithShape built;
    built.shape->Fill()->SetPicture("a.jpeg");
    const std::string bytes = built.File();
    const std::string digits = Hex(Jpeg);
    EXPECT_NE(bytes.find("\\jpegblip " + digits.substr(0, 128) + "\r\n" + digits.substr(128) + "}}}"),
              bytes.npos)
        << bytes;
}

TEST(Picture, LosesThePlaceableHeaderOfAMetafile) {
    const std::string wmf = MakeWmf(0, 0, 10, 10, 96);
    for (const std::size_t size : {wmf.size(), std::size_t{23}, std::size_t{22}}) {
        WithShape built;
        built.files->Put("a.wmf", wmf.substr(0, size));
        built.shape->Fill()->SetPicture("a.wmf");
        const std::string data = Hex(std::string_view{wmf}.substr(22, size - 22));
        EXPECT_NE(built.Body().find("\\pict\\wmetafile8" + (data.empty() ? "" : " " + data) + "}}}"),
                  std::string::npos)
            << size;
    }
}

TEST(InlinePicture, IsScaledByNumbersThatAreTakenAsTwips) {
    struct {
        const char* name;
        dwScaleMode scale;
        double width, height;
        const char* file;
        std::string data;
    } const cases[]{
        {"twips", dwTwips, 2880, 720, "a.emf", R"(\emfblip\picscalex100\picscaley50 )" + Hex(Emf)},
        // One inch is taken as one twip: 1.76 HIMETRIC, so 2, of 5080 and 2540.
        {"inches", dwInches, 1, 1, "a.emf", R"(\emfblip\picscalex0\picscaley0 )" + Hex(Emf)},
        {"points", dwPoints, 720, 360, "a.emf", R"(\emfblip\picscalex25\picscaley25 )" + Hex(Emf)},
        {"half an inch: ties to even", dwInches, 0.5, 1, "a.emf", R"(\emfblip )" + Hex(Emf)},
        {"no height", dwTwips, 720, 0, "flat.emf", R"(\emfblip )" + Hex(MakeEmf(0, 0, 0, 0))},
        {"below zero", dwTwips, -720, 720, "a.emf", R"(\emfblip )" + Hex(Emf)},
    };
    for (const auto& [name, scale, width, height, file, data] : cases) {
        WithShape built;
        built.files->Put("flat.emf", MakeEmf(0, 0, 0, 0));
        built.document->SetScaleMode(scale);
        built.shape->SetInLine(true);
        built.shape->SetFlipH(true);
        built.shape->SetWidth(width);
        built.shape->SetHeight(height);
        built.shape->Fill()->SetPicture(file);
        AddText(*built.section, "z");
        EXPECT_EQ(Pairs(built.Body()),
                  R"(\pard~{\pict{\*\picprop\shplid1<ShapeType=75><FFlipH=1>}})" + data + R"(\pard~{z})")
            << name;
    }
}

TEST(InlinePicture, CanHoldTextBeforeItsData) {
    WithShape built;
    built.shape->SetInLine(true);
    built.shape->Fill()->SetPicture("a.emf");
    AddText(*built.shape, "a");
    built.files->Delete("a.emf", *std::make_unique<std::error_code>());  // it is open already
    // What counts is the unit when the shape ends, and Body sets inches.
    EXPECT_EQ(Pairs(built.Body()), R"(\pard~{\pict{\*\picprop\shplid1<ShapeType=75>}{\shptxt\pard~{a}}})"
                                   R"(\emfblip\picscalex0\picscaley0 )"
                                       + Hex(Emf));
}

TEST(Picture, OfPixelsBecomesAMetafile) {
    const std::vector<std::uint32_t> four{0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF};
    for (const bool inLine : {false, true}) {
        for (const char* name : {"a.bmp", "a.gif"}) {
            WithShape built;
            built.files->Put("a.bmp", MakeBmp(Checks, {.bits = 4}));
            built.files->Put("a.gif", MakeGif(Checks, {}));
            built.files->Put("/temp/~DWGC1.tmp", "another's");
            built.shape->SetInLine(inLine);
            built.shape->Fill()->SetPicture(name);
            const std::string body = built.Body();
            const std::string before = inLine ? R"(}}\emfblip\picscalex)" : R"({\pict\emfblip )";
            std::size_t begin = body.find(before);
            ASSERT_NE(begin, body.npos) << body;
            begin = body.find(' ', begin) + 1;
            const std::string emf = Unhex(body.substr(begin, body.find('}', begin) - begin));
            EXPECT_EQ(ReadRecorded(emf), Coloured(Checks)) << name;
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
        {"none", "", notFound + "none' not found."},
        {"photo.JPG", Jpeg, "X105 Unsupported File Type: photo.JPG"},
        {"xjpeg", Jpeg, "X105 Unsupported File Type: xjpeg"},
        {"a.jpg.", Jpeg, "X105 Unsupported File Type: a.jpg."},
        {"b.jpg", Emf, "481"},
        {"b.emf", Jpeg, "481"},
        {"b.gif", MakeBmp(Checks, {}), "481"},
        {"b.bmp", MakeGif(Checks, {}), "481"},
        {"c.bmp", MakeBmp(Checks, {}).substr(0, 60), "481"},
        {"c.gif", MakeGif(Checks, {}).substr(0, 20), "481"},
        {"flat.emf", MakeEmf(0, 0, 0, 0), "11"},
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
        EXPECT_EQ(Refusal([&] { built.document->Finish(); }), actual);
        built.shape->Fill()->SetPicture("a.emf");
        AddText(*built.section, "z");
        EXPECT_EQ(Pairs(built.Body()), R"(\pard~{\pict{\*\picprop\shplid1<ShapeType=75>}}\emfblip)"
                                       R"(\picscalex50\picscaley100 )"
                                           + Hex(Emf) + R"(\pard~{z})");
        EXPECT_EQ(built.Temporary(), std::vector<std::string>{});
    }
}

TEST(Picture, WithTheLineRefusedLeavesNoFileOfTheFill) {
    WithShape built(dwSKRectangle);
    built.files->Put("a.bmp", MakeBmp(Checks, {}));
    built.shape->Fill()->SetStyle(dwSFSPicTile);
    built.shape->Fill()->SetPicture("a.bmp");
    built.shape->Line()->SetTexture(dwSLTPicture);
    built.shape->Line()->SetPicture("none.gif");
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
    WriteFile(folder / "a.bmp", MakeBmp(Checks, {}));
    shape->Fill()->SetPicture(folder / "a.bmp");
    EXPECT_THROW(document->Finish(), std::system_error);
    environment->tempFolder = folder.Path();
    document->Finish();
    EXPECT_EQ(CheckFile(ReadFile(folder / "a.rtf")), std::vector<std::string>{});
    std::vector<std::string> left;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        left.push_back(entry.path().filename().string());
    }
    std::sort(left.begin(), left.end());
    EXPECT_EQ(left, (std::vector<std::string>{"a.bmp", "a.rtf", "folder.jpg"}));
}

// Every operation on files fails once. Whichever it is, the host hears of it, can go on, and has one whole document
// and no other file.
TEST(Picture, SurvivesAFailureAtEveryOperation) {
    for (int operation = 1;; ++operation) {
        WithShape built(dwSKRectangle);
        built.files->Put("a.bmp", MakeBmp(Checks, {}));
        built.files->Put("long.emf", Emf + std::string(100'000, 'x'));
        built.shape->Fill()->SetStyle(dwSFSPicTile);
        built.shape->Fill()->SetPicture("a.bmp");
        built.shape->Line()->SetTexture(dwSLTPicture);
        built.shape->Line()->SetPicture("long.emf");
        const int before = built.files->Operations();
        built.files->FailAt(before + operation, std::errc::io_error);
        int failures = 0;
        const auto persist = [&](const std::function<void()>& action) {
            for (int attempt = 0; attempt < 3; ++attempt) {
                try {
                    return action();
                } catch (const std::system_error& error) {
                    EXPECT_EQ(error.code(), std::errc::io_error) << operation;
                    ++failures;
                }
            }
        };
        persist([&] { AddText(*built.shape, "a"); });
        persist([&] {
            auto frame = built.section->AddParagraph()->AddShape(dwSKPictureFrame);
            frame->SetInLine(true);
            frame->Fill()->SetPicture("a.bmp");
        });
        persist([&] { built.document->Finish(); });
        if (built.files->Operations() < before + operation) break;
        ASSERT_LT(operation, 1000);
        // Only of a temporary file that cannot be deleted the host does not hear.
        EXPECT_EQ(failures, built.Temporary().empty() ? 1 : 0) << operation;
        const std::string bytes = built.files->Bytes(built.document->ActualFileName());
        EXPECT_EQ(CheckFile(bytes), std::vector<std::string>{}) << operation;
        EXPECT_NE(bytes.find("\\shptxt"), bytes.npos) << operation;
        EXPECT_EQ(built.files->OpenFiles(), 0) << operation;
    }
}

}  // namespace draftwick::test
