#include "tests/support/Documents.h"
#include "tests/support/PictureFiles.h"

#include <ostream>
#include <sstream>

/// Documents that go elsewhere than to a file, or nowhere.
namespace draftwick::test {

namespace {

/// Documents in files that live in memory, each with a section and a paragraph.
class Delivered : public testing::Test {
protected:
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();

    std::shared_ptr<Document> NewDocument(bool inMemory = false, std::size_t size = 70000) const {
        auto document = Document::Create(MakeFakePlatform(files));
        document->SetBodyInMemory(inMemory);
        document->AddSection()->AddParagraph("", std::string(size, 'a'));
        return document;
    }
    std::string Bytes(std::size_t size = 70000) const {
        const auto document = NewDocument(false, size);
        document->Finish();
        return files->Bytes(document->ActualFileName());
    }
    static std::string Streamed(Document& document) {
        std::ostringstream stream;
        document.FinishTo(stream);
        return stream.str();
    }
};

/// A stream that takes some bytes and no more.
class NarrowBuffer final : public std::streambuf {
public:
    explicit NarrowBuffer(std::size_t room) : room_(room) {}
    std::string bytes{};

private:
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        const std::size_t taken = std::min(static_cast<std::size_t>(size), room_ - bytes.size());
        bytes.append(text, taken);
        return static_cast<std::streamsize>(taken);
    }
    int sync() override { return bytes.size() == room_ ? -1 : 0; }

    std::size_t room_;
};

}  // namespace

TEST_F(Delivered, HeadersLongerThanAnyBlockAreTheBytesOfTheFile) {
    const auto withManyFonts = [&] {
        auto document = Document::Create(MakeFakePlatform(files));
        for (int number = 0; number < 10000; ++number)
            document->Fonts()->Add("Font " + std::to_string(number));
        document->AddSection()->AddParagraph("", "text");
        return document;
    };
    const auto written = withManyFonts();
    written->Finish();
    const auto delivered = withManyFonts();
    int left = 1;
    const auto sink = [&](std::string_view) {
        if (left-- > 0) throw std::runtime_error("not yet");
    };
    EXPECT_THROW(delivered->FinishTo(sink), std::runtime_error);
    EXPECT_EQ(Streamed(*delivered), files->Bytes(written->ActualFileName()));
}

TEST_F(Delivered, ToAStreamAreTheBytesOfTheFile) {
    const std::string expected = Bytes();
    files = std::make_shared<MemoryFiles>();
    for (const bool inMemory : {false, true}) {
        const auto document = NewDocument(inMemory);
        EXPECT_EQ(files->Names().size(), inMemory ? 0U : 1U);
        EXPECT_EQ(Streamed(*document), expected);
        EXPECT_TRUE(document->Finished());
        EXPECT_EQ(document->ActualFileName(), "");
        EXPECT_TRUE(files->Names().empty());
        document->Finish();
        EXPECT_TRUE(files->Names().empty());
        EXPECT_EQ(Refusal([&] { Streamed(*document); }), Emitted("Document"));
        EXPECT_EQ(RefusalNumber([&] { document->Preview(); }), dwRunInvalidCall);
    }
}

TEST_F(Delivered, FromMemoryToAFileAreTheSame) {
    const std::string expected = Bytes();
    const auto document = NewDocument(true);
    document->Finish();
    EXPECT_EQ(files->Bytes(document->ActualFileName()), expected);
}

// At every byte: the failure is reported once, nothing counts as finished, and the next attempt gets the whole.
TEST_F(Delivered, ToAStreamThatFailsAreDeliveredByTheNextCall) {
    for (const auto& [inMemory, size, step] :
         {std::tuple{false, 300, 1}, {true, 300, 1}, {true, 70000, 6007}}) {
        const std::string expected = Bytes(static_cast<std::size_t>(size));
        for (std::size_t room = 0; room <= expected.size(); room += static_cast<std::size_t>(step)) {
            const auto document = NewDocument(inMemory, static_cast<std::size_t>(size));
            NarrowBuffer buffer(room);
            std::ostream stream(&buffer);
            EXPECT_THROW(document->FinishTo(stream), FileError) << room;
            ASSERT_EQ(buffer.bytes, expected.substr(0, room));
            EXPECT_FALSE(document->Finished());
            if (room % 2 == 0) {
                ASSERT_EQ(Streamed(*document), expected);
            } else {
                document->Finish();
                ASSERT_EQ(files->Bytes(document->ActualFileName()), expected);
            }
        }
        EXPECT_EQ(files->OpenFiles(), 0);
    }
}

TEST_F(Delivered, PassOnWhatAFunctionThrowsAndLeaveItInPeace) {
    const auto document = NewDocument(true);
    int calls = 0;
    EXPECT_THROW(document->FinishTo([&](std::string_view) {
        ++calls;
        throw calls;
    }),
                 int);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(RefusalNumber([&] { document->FinishTo(Document::Sink{}); }), dwRunInvalidCall);
}

// A function may use the document that it gets, and even let it go.
TEST_F(Delivered, MayBeUsedByTheFunctionThatTakesThem) {
    const std::string expected = Bytes();
    auto document = NewDocument(true);
    std::string bytes;
    document->FinishTo([&](std::string_view more) {
        if (document != nullptr) {
            EXPECT_EQ(Refusal([&] { document->Finish(); }), Emitted("Document"));
            EXPECT_EQ(Refusal([&] { document->Discard(); }), Emitted("Document"));
            EXPECT_EQ(Refusal([&] { Streamed(*document); }), Emitted("Document"));
            EXPECT_EQ(Refusal([&] { document->AddSection(); }), Emitted("Document"));
            document.reset();
        }
        bytes += more;
    });
    EXPECT_EQ(bytes, expected);
}

TEST_F(Delivered, NeedOnlyTheServicesThatTheyUse) {
    const std::string expected = Bytes();
    auto document = Document::Create(platform::Platform{});
    document->SetBodyInMemory(true);
    document->AddSection()->AddParagraph("", std::string(70000, 'a'));
    EXPECT_EQ(RefusalNumber([&] { document->Finish(); }), dwRunInvalidCall);
    EXPECT_EQ(Streamed(*document), expected);

    document = Document::Create(platform::Platform{});
    EXPECT_EQ(Refusal([&] { document->AddSection(); }),
              "5 Invalid procedure call or argument: the document has no service for files");
    document->SetBodyInMemory(true);
    const auto fill = document->AddSection()->AddParagraph()->AddShape(dwSKPictureFrame)->Fill();
    EXPECT_EQ(RefusalNumber([&] { fill->SetPictureData(MakeJpeg(8, 8, 1, 96, 96)); }), dwRunInvalidCall);
    fill->SetPicture("a.jpg");
    EXPECT_EQ(RefusalNumber([&] { Streamed(*document); }), dwRunInvalidCall);

    platform::Platform services{.files = files};
    document = Document::Create(services);
    EXPECT_EQ(RefusalNumber([&] { document->AddSection(); }), dwRunInvalidCall);
    document->SetTempPath("/temp");
    document->SetFilename("a.rtf");
    document->AddSection();
    EXPECT_EQ(RefusalNumber([&] { document->Preview(dwViewerWord97); }), dwRunInvalidCall);
}

TEST_F(Delivered, NowhereLeaveNothingAndRefuse) {
    for (const bool inMemory : {false, true}) {
        const auto document = NewDocument(inMemory);
        const auto section = document->CurrentSection();
        document->Discard();
        EXPECT_TRUE(files->Names().empty());
        const std::function<void()> uses[]{
            [&] { document->Finish(); },
            [&] { Streamed(*document); },
            [&] { document->SetDiscardOnRelease(true); },
            [&] { document->Fonts()->Add("A"); },
            [&] { section->AddParagraph(); },
            [&] { section->SetTitlePage(true); },
            [&] { section->CurrentParagraph()->AddTextItem("x"); },
        };
        for (const auto& use : uses) EXPECT_EQ(Refusal(use), Emitted("Document"));
        document->Discard();
        EXPECT_FALSE(document->Finished());
    }
    EXPECT_EQ(files->OpenFiles(), 0);
}

TEST_F(Delivered, StayWhenTheyWereFinishedBefore) {
    const auto document = NewDocument();
    document->Finish();
    document->Discard();
    EXPECT_EQ(files->Names(), std::vector<std::string>{document->ActualFileName()});
    EXPECT_EQ(Refusal([&] { document->SetDiscardOnRelease(true); }), Emitted("Document"));
}

TEST_F(Delivered, NowhereReportATemporaryFileThatStays) {
    auto document = NewDocument();
    files->Lock("/temp/~dw1.tmp");
    try {
        document->Discard();
        ADD_FAILURE() << "not reported";
    } catch (const FileError& error) {
        EXPECT_EQ(error.Filename(), "/temp/~dw1.tmp");
    }
    EXPECT_EQ(Refusal([&] { document->Finish(); }), Emitted("Document"));
    document = NewDocument();
    files->Lock("/temp/~dw2.tmp");
    document->SetDiscardOnRelease(true);
    document.reset();
    EXPECT_EQ(files->OpenFiles(), 0);
}

TEST_F(Delivered, NowhereWhenTheyAreReleasedIfTheHostWantsIt) {
    auto document = NewDocument();
    document->SetDiscardOnRelease(true);
    document.reset();
    EXPECT_TRUE(files->Names().empty());
    document = NewDocument();
    document->SetDiscardOnRelease(true);
    document->Finish();
    document.reset();
    EXPECT_EQ(files->Names().size(), 1U);
}

TEST_F(Delivered, TellWhatTheFileCouldNotHold) {
    const auto document = Document::Create(MakeFakePlatform(files));
    document->Fonts()->Add("\xCE\xB1");                                     // alpha
    document->Properties()->Items(dwBIPTitle)->SetValue("? \xE2\x82\xAC");  // a euro sign is in the code page
    document->AddSection()->AddParagraph("", "\xC5\x81\xC3\xB3\x64\xC5\xBA");
    EXPECT_EQ(document->LostCharacters(), 0);
    document->CurrentSection()->AddParagraph();
    EXPECT_EQ(document->LostCharacters(), 2);
    // A header that is written twice counts once.
    EXPECT_THROW(document->FinishTo([](std::string_view) { throw 1; }), int);
    document->Finish();
    EXPECT_EQ(document->LostCharacters(), 3);
}

// Pictures, too: nothing is created anywhere.
TEST_F(Delivered, FromMemoryConvertTheirPicturesThere) {
    const auto build = [&](bool inMemory) {
        const auto document = Document::Create(MakeFakePlatform(files));
        document->SetBodyInMemory(inMemory);
        const auto fill = document->AddSection()->AddParagraph()->AddShape(dwSKPictureFrame)->Fill();
        fill->SetPicture("a.bmp");
        return Streamed(*document);
    };
    files->Put("a.bmp", PictureFile("sample/4.bmp"));
    const std::string expected = build(false);
    const int operations = files->Operations();
    EXPECT_EQ(build(true), expected);
    // Length, OpenForReading, some Reads and Close of the bitmap.
    EXPECT_LT(files->Operations() - operations, 8);
}

}  // namespace draftwick::test
