#include "tests/support/Documents.h"

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

}  // namespace

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

// In the standard spelling the body of a file with a name goes to the file itself, behind a place for the header, which
// ends where a page of the disk does.
TEST_F(Documents, AreWrittenOnceWhereTheHeaderFits) {
    for (const int colors : {10, 500}) {
        files = std::make_shared<MemoryFiles>();
        auto document = NewDocument();
        document->SetSpelling(dwSpellingStandard);
        document->SetFilename("out.rtf");
        auto section = document->AddSection();
        for (int i = 0; i < 1000; ++i) {
            auto item = section->AddParagraph()->AddTextItem(std::string(100, 'a'));
            if (i >= 1000 - colors) item->FontFormat()->SetColor(i);
        }
        EXPECT_EQ(files->Names(), std::vector<std::string>{"./~dwout1.tmp"});
        const int before = files->Operations();
        document->Finish();
        const std::string bytes = files->Bytes("out.rtf");
        EXPECT_EQ(CheckFile(bytes), "");
        EXPECT_EQ(files->Names(), std::vector<std::string>{"out.rtf"});
        int inTable = 0;
        for (std::size_t at = 0; (at = bytes.find("\\red", at)) != bytes.npos; ++at) ++inTable;
        EXPECT_EQ(inTable, 1 + colors);  // and black
        const bool fits = colors == 10;
        EXPECT_EQ(files->Operations() - before == 5, fits);  // write, seek, write, close, rename
        EXPECT_EQ(bytes.find("\r\n\\deftab720"), fits ? 4096 - 2 : bytes.find("\\deftab720") - 2);
    }
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
