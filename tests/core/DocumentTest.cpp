#include "tests/support/Documents.h"
#include "tests/support/TempFolder.h"

namespace draftwick::test {

namespace {

/// Files that live in memory, for one document after the other.
class Documents : public testing::Test {
protected:
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();

    std::shared_ptr<Document> NewDocument() const {
        auto document = Document::Create(MakeFakePlatform(files));
        document->SetFilename("out.rtf");
        return document;
    }
};

/// The document's file must be tests/golden/NAME, byte for byte. If it is not, it is left in the build's
/// folder golden-actual. Golden files are written by hand.
void ExpectGolden(const TestDocument& document, const std::string& name) {
    const std::string actual = document.Finish(LineBreaks::Any);
    const std::filesystem::path left = DRAFTWICK_GOLDEN_ACTUAL_FOLDER "/" + name;
    std::filesystem::remove(left);
    if (actual == ReadFile(DRAFTWICK_GOLDEN_FOLDER "/" + name)) return;
    std::filesystem::create_directories(left.parent_path());
    WriteFile(left.string(), actual);
    ADD_FAILURE() << "not " << name << ", but " << left.string();
}

}  // namespace

TEST_F(Documents, AreRightToTheByte) {
    const TestDocument one, two, characters, raw;
    one.AddParagraph()->AddTextItem("Hello");
    EXPECT_EQ(CheckFile(one.Finish()), "");
    ExpectGolden(one, "one_paragraph.rtf");
    for (const char* text : {"a", "b"}) two.AddParagraph()->AddTextItem(text);
    AddText(*two->AddSection(), "c");
    ExpectGolden(two, "two_sections.rtf");
    characters.AddParagraph()->AddTextItem(
        "a\\b{c}\td\r\n e\r\nf\rg\nh \xC3\xA9\xE2\x82\xAC\xE2\x80\x9Cx\xE2\x80\x9D\xE2\x80\x94 "
        "\xE4\xB8\xAD\xF0\x9F\x98\x80\xCE\xB1 \xFF\xC3 \xC2\x81\xC2\xA0");
    ExpectGolden(characters, "characters.rtf");
    for (const char* text : {"one\r\ntwo\r\r\n\nthree", "short\r\n"}) {
        raw.AddParagraph()->AddTextItem(text, true);
    }
    ExpectGolden(raw, "raw_line_breaks.rtf");
}

TEST_F(Documents, WriteEverySettingInItsPlace) {
    EXPECT_EQ(
        Written([](Document&) {}),
        "{\\rtf1\\deftab720\\hyphhotz360\\hyphconsec0\\hyphcaps1\\hyphauto0\\paperw12240\\paperh15840"
        "\\margt720\\margl720\\margr720\\margb720\\facingp0\\gutter0\\margmirror0\\pgnstart1\\widowctrl1"
        "\\pgbrdrhead\\pgbrdrfoot\\fet2\\fntbj\\ftnrstcont\\ftnstart1\\ftnnar\\aendnotes\\aftnrstcont"
        "\\aftnstart1\\aftnnar}");
    const std::string file = Written([](Document& document) {
        document.SetOrientation(dwLandscape);
        Apply({{"Orientation", dwLandscape}, {"TabWidth", 700.5}, {"HyphenHotZone", 20.0}}, document);
        Apply({{"HyphenConsecutiveLines", 70000}, {"HyphenCaps", false}, {"HyphenAuto", true}}, document);
        Apply({{"MarginTop", 1.0}, {"MarginLeft", 2.0}, {"MarginRight", -3.0}}, document);
        Apply({{"MarginBottom", 4.0}, {"FacingPage", true}, {"Gutter", 5.0}, {"MarginMirror", true}},
              document);
        Apply({{"PageNumberStart", -7}, {"WidowOrphanControl", false}, {"Caption", "A & \xC3\xA4"}},
              document);
        Apply({{"ViewKind", dwViewPageLayout}, {"ZoomKind", dwZoomBestFit}, {"ZoomScale", 75}}, document);
        Apply({{"PageBorderAroundHeader", false}, {"PageBorderAroundFooter", false}}, document);
    });
    EXPECT_EQ(
        Between(file, "{\\rtf1", "\\fet2"),
        "\\deftab700\\hyphhotz20\\hyphconsec70000\\hyphcaps0\\hyphauto1\\paperw15840\\paperh12240\\margt1"
        "\\margl2\\margr-3\\margb4\\facingp1\\gutter5\\margmirror1\\landscape\\pgnstart-7\\widowctrl0"
        "{\\windowcaption A & \xE4}\\viewkind1\\viewscale75\\viewzk2");
}

TEST_F(Documents, KeepLengthsWhenTheUnitChanges) {
    auto document = NewDocument();
    document->SetMarginTop(1);
    document->SetScaleMode(dwTwips);
    EXPECT_EQ(document->MarginTop(), 1440);
    EXPECT_EQ(Refusal([&] { document->SetScaleMode(static_cast<dwScaleMode>(4)); }),
              "X101 Property ScaleMode set to out of range value.");
    EXPECT_EQ(document->ScaleMode(), dwTwips);
}

TEST_F(Documents, FinishOnce) {
    auto document = NewDocument();
    auto section = document->AddSection();
    auto paragraph = section->AddParagraph();
    document->Finish();
    EXPECT_TRUE(document->Finished() && section->Finished() && paragraph->Finished());
    const std::string once = files->Bytes("out.rtf");
    document->Finish();
    EXPECT_EQ(files->Bytes("out.rtf"), once);
    EXPECT_EQ(files->Names(), std::vector<std::string>{"out.rtf"});
    EXPECT_EQ(Refusal([&] { document->AddSection(); }), Emitted("Document"));
    EXPECT_EQ(Refusal([&] { section->AddParagraph(); }), Emitted("Section"));
    EXPECT_EQ(Refusal([&] { paragraph->AddTextItem("x"); }), Emitted("Paragraph"));
}

TEST_F(Documents, ChooseTheirFileNames) {
    const struct {
        std::string filename;
        std::vector<std::string> present;
        std::vector<std::string> locked;
        std::string actual;
    } cases[] = {
        {"a.rtf", {}, {}, "a.rtf"},
        {"a.rtf", {"a.rtf"}, {}, "a.rtf"},
        {"a.rtf", {}, {"a.rtf"}, "a1.rtf"},
        {"a.rtf", {"a2.rtf"}, {"a.rtf", "a1.rtf"}, "a2.rtf"},
        {"a.html", {}, {"a.html"}, "a.html1"},
        {"b.\xC3\xA9\xC3\xA9\xC3\xA9", {}, {"b.\xC3\xA9\xC3\xA9\xC3\xA9"}, "b1.\xC3\xA9\xC3\xA9\xC3\xA9"},
        {".rtf", {}, {".rtf"}, "1.rtf"},
        {"", {}, {}, "/temp/Draftwick1.rtf"},
        {"", {"/temp/Draftwick1.rtf", "/temp/Draftwick3.rtf"}, {}, "/temp/Draftwick2.rtf"},
    };
    for (const auto& c : cases) {
        files = std::make_shared<MemoryFiles>();
        for (const auto& name : c.present) files->Put(name, "old");
        for (const auto& name : c.locked) files->Put(name, "old"), files->Lock(name);
        auto document = NewDocument();
        document->SetFilename(c.filename);
        document->SetTempPath("/other/");
        document->AddSection();
        document->Finish();
        EXPECT_EQ(document->ActualFileName(), c.actual);
        EXPECT_EQ(files->Bytes(c.actual).substr(0, 6), "{\\rtf1");
    }
    auto document = NewDocument();
    document->SetFilename("abc");
    EXPECT_EQ(RefusalNumber([&] { document->Finish(); }), dwRunInvalidCall);
    EXPECT_FALSE(document->Finished());
}

TEST_F(Documents, PutTheirBodyIntoTheFirstFreeTemporaryFile) {
    const struct {
        std::string tempPath;
        std::string body;
    } cases[] = {
        {"", "/temp/~dw2.tmp"}, {"/other/", "/other/~dw1.tmp"}, {"C:\\other\\", "C:\\other/~dw1.tmp"}};
    for (const auto& [tempPath, body] : cases) {
        files = std::make_shared<MemoryFiles>();
        files->Put("/temp/~dw1.tmp", "somebody else's");
        auto document = NewDocument();
        document->SetTempPath(tempPath);
        document->AddSection();
        EXPECT_NO_THROW(files->Bytes(body));
        document->Finish();
        EXPECT_THROW(files->Bytes(body), std::out_of_range);
        EXPECT_EQ(files->Bytes("/temp/~dw1.tmp"), "somebody else's");
    }
}

TEST_F(Documents, KeepNoMoreThanABlockOfTheirBodyInMemory) {
    auto document = NewDocument();
    auto section = document->AddSection();
    constexpr std::size_t Run = 1000;
    for (std::size_t written = 0; written < 1 << 20; written += Run) {
        section->AddParagraph()->AddTextItem(std::string(Run, 'a'));
        const std::size_t onDisk = files->Bytes("/temp/~dw1.tmp").size();
        ASSERT_LT(written, onDisk + 64 * 1024 + 2 * Run);
    }
    document->Finish();
}

TEST_F(Documents, ThatAreLetGoLeaveNothingThatCrashes) {
    auto document = NewDocument();
    auto section = document->AddSection();
    auto paragraph = section->AddParagraph();
    auto item = paragraph->AddTextItem("x");
    auto fonts = document->Fonts();
    document.reset();
    EXPECT_EQ(files->OpenFiles(), 0);
    EXPECT_EQ(section->Parent(), nullptr);
    EXPECT_EQ(item->Parent(), paragraph);
    EXPECT_EQ(item->Text(), "x");
    const std::function<void()> uses[]{
        [&] { section->AddParagraph(); }, [&] { paragraph->AddTextItem("y"); },
        [&] { item->AddText("y"); },      [&] { paragraph->FontFormat(); },
        [&] { fonts->Add("A"); },         [&] { section->MarginTop(); },
    };
    for (const auto& use : uses) EXPECT_EQ(RefusalNumber(use), dwRunObjectGone);
}

}  // namespace draftwick::test
