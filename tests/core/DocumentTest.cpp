#include "tests/support/Errors.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Golden.h"
#include "tests/support/Rtf.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace draftwick::test {

namespace {

/// A document whose files live in memory.
class Documents : public testing::Test {
protected:
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();

    std::shared_ptr<Document> NewDocument() const {
        auto document = Document::Create(MakeFakePlatform(files));
        document->SetFilename("out.rtf");
        return document;
    }

    /// The file that a document with the given content becomes.
    std::string Write(const std::function<void(Document&)>& build,
                      LineBreaks lineBreaks = LineBreaks::OnlyCrLf) const {
        auto document = NewDocument();
        build(*document);
        document->Finish();
        EXPECT_EQ(files->OpenFiles(), 0);
        const std::string bytes = files->Bytes(document->ActualFileName());
        EXPECT_EQ(CheckFile(bytes, lineBreaks), std::vector<std::string>{});
        return bytes;
    }
};

/// The control words of the document as a whole, without line breaks.
std::string Formatting(const std::string& bytes) {
    const std::string words = Words(bytes);
    return words.substr(words.find("\\deftab"), words.find("\\fet2") - words.find("\\deftab"));
}

}  // namespace

TEST_F(Documents, AreRightToTheByte) {
    ExpectGolden(Write([](Document& d) { d.AddSection()->AddParagraph()->AddTextItem("Hello"); }),
                 "one_paragraph.rtf");
    ExpectGolden(Write([](Document& d) {
                     auto section = d.AddSection();
                     section->AddParagraph()->AddTextItem("a");
                     section->AddParagraph()->AddTextItem("b");
                     d.AddSection()->AddParagraph()->AddTextItem("c");
                 }),
                 "two_sections.rtf");
    ExpectGolden(
        Write(
            [](Document& d) {
                d.AddSection()->AddParagraph()->AddTextItem(
                    "a\\b{c}\td\r\n e\r\nf\rg\nh \xC3\xA9\xE2\x82\xAC\xE2\x80\x9Cx\xE2\x80\x9D\xE2\x80\x94 "
                    "\xE4\xB8\xAD\xF0\x9F\x98\x80\xCE\xB1 \xFF\xC3 \xC2\x81\xC2\xA0");
            },
            LineBreaks::Any),
        "characters.rtf");
    ExpectGolden(Write(
                     [](Document& d) {
                         auto section = d.AddSection();
                         section->AddParagraph()->AddTextItem("one\r\ntwo\r\r\n\nthree", true);
                         section->AddParagraph()->AddTextItem("short\r\n", true);
                     },
                     LineBreaks::Any),
                 "raw_line_breaks.rtf");
}

TEST_F(Documents, WithoutSectionsHaveOnlyTheirFormatting) {
    EXPECT_EQ(
        Words(Write([](Document&) {})),
        "{\\rtf1\\deftab720\\hyphhotz360\\hyphconsec0\\hyphcaps1\\hyphauto0\\paperw12240\\paperh15840\\margt7"
        "20"
        "\\margl720\\margr720\\margb720\\facingp0\\gutter0\\margmirror0\\pgnstart1\\widowctrl1\\pgbrdrhead"
        "\\pgbrdrfoot\\fet2\\fntbj\\ftnrstcont\\ftnstart1\\ftnnar\\aendnotes\\aftnrstcont\\aftnstart1\\aftnna"
        "r}");
}

TEST_F(Documents, WriteEverySettingInItsPlace) {
    const std::string bytes = Write([](Document& d) {
        d.SetOrientation(dwLandscape);
        d.SetOrientation(dwLandscape);
        d.SetScaleMode(dwPoints);
        d.SetTabWidth(35.025);  // 700.5 twips
        d.SetHyphenHotZone(1);
        d.SetHyphenConsecutiveLines(70000);
        d.SetHyphenCaps(false);
        d.SetHyphenAuto(true);
        d.SetMarginTop(1), d.SetMarginLeft(2), d.SetMarginRight(-3), d.SetMarginBottom(4);
        d.SetFacingPage(true);
        d.SetGutter(5);
        d.SetMarginMirror(true);
        d.SetPageNumberStart(-7);
        d.SetWidowOrphanControl(false);
        d.SetCaption("A & \xC3\xA4");
        d.SetViewKind(dwViewPageLayout);
        d.SetZoomKind(dwZoomBestFit);
        d.SetZoomScale(75);
        d.SetPageBorderAroundHeader(false);
        d.SetPageBorderAroundFooter(false);
    });
    EXPECT_EQ(
        Formatting(bytes),
        "\\deftab700\\hyphhotz20\\hyphconsec70000\\hyphcaps0\\hyphauto1\\paperw15840\\paperh12240\\margt20"
        "\\margl40\\margr-60\\margb80\\facingp1\\gutter100\\margmirror1\\landscape\\pgnstart-7\\widowctrl0"
        "{\\windowcaption A & \xE4}\\viewkind1\\viewscale75\\viewzk2");
}

TEST_F(Documents, WriteEveryNoteSetting) {
    const std::string foot[] = {"\\ftnnar", "\\ftnnalc", "\\ftnnauc", "\\ftnnrlc", "\\ftnnruc"};
    const std::string end[] = {"\\aftnnar", "\\aftnnalc", "\\aftnnauc", "\\aftnnrlc", "\\aftnnruc"};
    const std::string footRestart[] = {"\\ftnrstpg", "\\ftnrestart", "\\ftnrstcont"};
    const std::string endRestart[] = {"\\aftnrstcont", "\\aftnrestart", "\\aftnrstcont"};
    for (int i = 0; i < 5; ++i) {
        const std::string words = Words(Write([i](Document& d) {
            d.SetFootnoteFormat(static_cast<dwFootnoteFormat>(i + 1));
            d.SetEndnoteFormat(static_cast<dwFootnoteFormat>(5 - i));
            d.SetFootnoteRestart(static_cast<dwFootnoteRestart>(i % 3 + 1));
            d.SetEndnoteRestart(static_cast<dwFootnoteRestart>(i % 3 + 1));
            d.SetFootnoteLocation(i % 2 == 0 ? dwFLBeneathText : dwFLBottomOfPage);
            d.SetEndnoteLocation(i % 2 == 0 ? dwELDocument : dwELSection);
            d.SetFootnoteStartAt(i);
            d.SetEndnoteStartAt(-i);
        }));
        EXPECT_EQ(words.substr(words.find("\\fet2")),
                  std::string("\\fet2") + (i % 2 == 0 ? "\\ftntj" : "\\fntbj") + footRestart[i % 3]
                      + "\\ftnstart" + std::to_string(i) + foot[i]
                      + (i % 2 == 0 ? "\\aenddoc" : "\\aendnotes") + endRestart[i % 3] + "\\aftnstart"
                      + std::to_string(-i) + end[4 - i] + "}");
    }
}

TEST_F(Documents, NameTheirDefaultFont) {
    const std::string bytes = Write([](Document& d) {
        d.Fonts()->Add("Georgia");
        d.Fonts()->Add("Arial");
        EXPECT_EQ(Refusal([&] { d.SetDefaultFontName("Times"); }), "X112 Item not found 'Times'.");
        d.SetDefaultFontName("ARIAL");
        EXPECT_EQ(d.DefaultFontName(), "Arial");
        d.AddSection()->AddParagraph();
    });
    EXPECT_EQ(Words(bytes).substr(0, 74),
              "{\\rtf1\\deff1{\\fonttbl{\\f0\\fnil Georgia;}{\\f1\\fnil Arial;}}{\\colortbl\\red0\\");
    EXPECT_NE(bytes.find("\\plain\\f1\\fs24"), std::string::npos);
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
    const std::string refusal = "X109 Invalid operation.  Target already emitted ";
    EXPECT_EQ(Refusal([&] { document->AddSection(); }), refusal + "Document.");
    EXPECT_EQ(Refusal([&] { section->AddParagraph(); }), refusal + "Section.");
    EXPECT_EQ(Refusal([&] { paragraph->AddTextItem("x"); }), refusal + "Paragraph.");
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

// Every operation on files fails once, in a document whose body is longer than any buffer: the failure is reported
// once, with the name of the file, and when the host tries again the file comes out right.
TEST_F(Documents, SurviveEveryFailureOfTheFileSystem) {
    const auto build = [this](int failing, int& reported) {
        files = std::make_shared<MemoryFiles>();
        files->Put("out.rtf", "old");
        if (failing > 0) files->FailAt(failing, std::errc::no_space_on_device, 100);
        auto document = NewDocument();
        const auto insist = [&](const auto& action) {
            try {
                return action();
            } catch (const std::system_error& error) {
                ++reported;
                EXPECT_EQ(error.code(), std::errc::no_space_on_device);
                EXPECT_NE(std::string{error.what()}.find('\''), std::string::npos) << error.what();
                return action();
            }
        };
        auto section = insist([&] { return document->AddSection(); });
        for (int i = 0; i < 40; ++i) {
            auto paragraph = insist([&] { return section->AddParagraph(); });
            insist([&] { return paragraph->AddTextItem(std::string(5000, 'a')); });
        }
        insist([&] { return document->Finish(); });
        return document->ActualFileName();
    };
    int reported = 0;
    const std::string whole = build(0, reported);
    const std::string expected = files->Bytes(whole);
    const int operations = files->Operations();
    ASSERT_EQ(reported, 0);
    for (int n = 1; n <= operations; ++n) {
        reported = 0;
        const std::string name = build(n, reported);
        EXPECT_EQ(files->Bytes(name), expected) << n;
        // An old file that cannot be deleted is no failure: another name is taken.
        EXPECT_EQ(reported, name == "out.rtf" ? 1 : 0) << n;
        EXPECT_EQ(files->OpenFiles(), 0) << n;
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
    const std::vector<std::function<void()>> uses{
        [&] { section->AddParagraph(); },
        [&] { paragraph->AddTextItem("y"); },
        [&] { item->AddText("y"); },
        [&] { paragraph->FontFormat(); },
        [&] { paragraph->Format()->SetAlign(dwAlignRight); },
        [&] { fonts->Add("A"); },
        [&] { section->MarginTop(); },
    };
    for (const auto& use : uses) EXPECT_EQ(RefusalNumber(use), dwRunObjectGone);
}

}  // namespace draftwick::test
