#include "tests/support/Documents.h"
#include "tests/support/Everything.h"
#include "tests/support/PictureFiles.h"

namespace draftwick::test {

namespace {

/// What a document and its files are like.
struct Kind {
    std::string name;
    bool once = false;  // its body goes to the file itself
    bool isLong = true;
    bool durable = false;
};

/// A document with every construct, in files that fail.
struct FaultyDocument {
    Kind kind;
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();
    std::shared_ptr<Document> document = Document::Create(MakeFakePlatform(files));
    std::vector<std::string> reports{};

    explicit FaultyDocument(const Kind& like) : kind(like) {
        document->SetFilename(kind.name);
        document->SetDurable(kind.durable);
        if (kind.once) document->SetSpelling(dwSpellingStandard);
        if (!kind.name.empty()) files->Put(kind.name, "old");
        files->Put("a.bmp", PictureFile("sample/4.bmp"));
        files->Put("a.jpg", MakeJpeg(8, 8, 1, 96, 96));
    }

    /// Builds and finishes it as a host that tries each step twice.
    void Build() {
        const auto insist = [this](const std::function<Variant()>& step) {
            try {
                return step();
            } catch (const std::system_error& error) {
                reports.emplace_back(error.what());
                return step();
            }
        };
        AddEverything(document, "a.bmp", "a.jpg", insist, kind.isLong);
        insist([&] { return document->Finish(), Variant{}; });
    }

    /// Line ends that fill the place of a longer header count as one.
    std::string Bytes() const {
        std::string bytes = files->Bytes(document->ActualFileName());
        while (bytes.find("\r\n\r\n") != bytes.npos) ReplaceAll(bytes, "\r\n\r\n", "\r\n");
        ReplaceAll(bytes, "{\\rtf1 \\", "{\\rtf1\\");
        return bytes;
    }
    std::size_t Files() const { return files->Names().size(); }
};

}  // namespace

// The failure is reported once, with the name of a file, and when the host tries again the file comes out right.
TEST(Faults, OfEveryFileOperationAreReportedOnceAndMended) {
    const std::pair<std::errc, std::size_t> failures[] = {
        {std::errc::no_space_on_device, 100}, {std::errc::permission_denied, 0}, {std::errc::io_error, 1}};
    for (const Kind& kind : {Kind{"out.rtf"}, Kind{""}, Kind{"out.rtf", false, false}, Kind{"out.rtf", true},
                             Kind{"out.rtf", true, false, true}}) {
        FaultyDocument whole(kind);
        whole.Build();
        const std::string expected = whole.Bytes();
        EXPECT_EQ(CheckFile(expected), "");
        EXPECT_EQ(whole.Files(), 3U);
        ASSERT_GT(whole.files->Operations(), 25);
        for (const auto& [failure, taken] : failures) {
            for (int n = 1; n <= whole.files->Operations(); ++n) {
                SCOPED_TRACE(kind.name + (kind.once ? " once " : " ") + std::to_string(n)
                             + std::make_error_code(failure).message());
                FaultyDocument built(kind);
                built.files->FailAt(n, failure, taken);
                built.Build();
                EXPECT_EQ(built.Bytes(), expected);
                EXPECT_EQ(built.files->OpenFiles(), 0);
                const bool renamed = built.document->ActualFileName() == "out1.rtf";
                const bool left = built.Files() > (renamed ? 4U : 3U);
                // An old file that cannot be replaced is no failure: another name is taken. A converted picture
                // that cannot be deleted is none either.
                // Neither is, in the standard spelling, a body that cannot lie beside the file and goes elsewhere, nor an
                // early look at a picture.
                if (kind.once) {
                    ASSERT_LE(built.reports.size(), 1U);
                } else {
                    ASSERT_EQ(built.reports.size(), renamed || left ? 0U : 1U);
                }
                if (built.reports.empty()) continue;
                EXPECT_NE(built.reports[0].find('\''), std::string::npos) << built.reports[0];
                // A file that the host named is reported by that name.
                EXPECT_TRUE(kind.name.empty() || built.reports[0].find("~dwout") == std::string::npos)
                    << built.reports[0];
                EXPECT_NE(built.reports[0].find(std::make_error_code(failure).message()), std::string::npos);
            }
        }
    }
}

// The lines so far are there, all but what a failing file does not take.
TEST(Faults, OfADocumentThatIsLetGoAreIgnored) {
    const std::string text(300, 'a'), line = text + "\r\n";
    for (const bool fails : {false, true}) {
        const auto files = std::make_shared<MemoryFiles>();
        auto document = Document::Create(MakeFakePlatform(files));
        const auto section = document->AddSection();
        for (int paragraphs = 0; paragraphs < 20; ++paragraphs) AddText(*section, text);
        if (fails) files->FailAt(files->Operations() + 1, std::errc::no_space_on_device, 1000);
        document.reset();
        const std::string body = files->Bytes("/temp/~dw1.tmp");
        int lines = 0;
        for (std::size_t at = body.find(line); at != body.npos; at = body.find(line, at + 1)) ++lines;
        // The last text waits for what comes after it.
        EXPECT_TRUE(fails ? body.size() == 1000 : lines == 19 && body.ends_with(line)) << body;
        EXPECT_EQ(files->Names(), std::vector<std::string>{"/temp/~dw1.tmp"});
        EXPECT_EQ(files->OpenFiles(), 0);
    }
}

// Under the final name is the old file or the whole new one, at whatever operation the process ends. Before that the
// host has heard of the failure with each attempt to go on.
TEST(Faults, ThatEndTheProcessLeaveTheOldFileOrTheWholeNewOne) {
    for (const Kind& kind : {Kind{"out.rtf"}, Kind{"out.rtf", true}}) {
        FaultyDocument whole(kind);
        whole.Build();
        bool replaced = false;
        for (int n = 1; n <= whole.files->Operations() + 1; ++n) {
            FaultyDocument built(kind);
            built.files->StopAt(n, 100);
            bool heard = false;
            try {
                built.Build();
            } catch (const std::system_error&) {
                heard = true;
                EXPECT_THROW(built.document->Finish(), std::system_error) << n;
                EXPECT_FALSE(built.document->Finished()) << n;
            }
            if (built.files->Bytes("out.rtf") != "old") replaced = true;
            EXPECT_EQ(heard, n <= whole.files->Operations()) << n;
            EXPECT_EQ(built.files->Bytes("out.rtf"), replaced ? whole.files->Bytes("out.rtf") : "old") << n;
            built.document.reset();
            EXPECT_EQ(built.files->OpenFiles(), 0) << n;
        }
        EXPECT_TRUE(replaced);
    }
}

// The disk has the whole file under its name when Finish returns, however the body got there.
TEST(Faults, OfTheSystemSpareADurableFile) {
    for (const bool once : {false, true}) {
        for (const bool isLong : {false, true}) {
            FaultyDocument built({"out.rtf", once, isLong, true});
            built.Build();
            EXPECT_EQ(built.files->BytesAfterPowerCut("out.rtf"), built.files->Bytes("out.rtf"));
            FaultyDocument plain({"out.rtf", once, isLong});
            plain.Build();
            EXPECT_EQ(plain.files->BytesAfterPowerCut("out.rtf"), "");
        }
    }
}

// A program's own files need not be able to go back; where they cannot be forced to a disk, nothing says that they were.
TEST(Faults, OfFilesThatCanOnlyBeWritten) {
    using Ability = MemoryFiles::Ability;
    FaultyDocument whole({"out.rtf", true}), plain({"out.rtf", true});
    plain.files->BeWithout(Ability::Seek);
    whole.Build();
    plain.Build();
    EXPECT_TRUE(plain.reports.empty());
    EXPECT_EQ(plain.Bytes(), whole.Bytes());
    EXPECT_EQ(plain.Files(), whole.Files());
    for (const Ability missing : {Ability::Sync, Ability::SyncFolder}) {
        for (const bool once : {false, true}) {
            FaultyDocument durable({"out.rtf", once, true, true});
            durable.files->BeWithout(missing);
            EXPECT_THROW(durable.Build(), FileError);
            EXPECT_FALSE(durable.document->Finished());
            EXPECT_EQ(durable.files->Bytes("out.rtf") == "old", missing == Ability::Sync);
        }
    }
}

}  // namespace draftwick::test
