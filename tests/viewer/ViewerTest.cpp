#include "tests/support/Errors.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <system_error>

namespace draftwick::test {

namespace {

using platform::RegistryRoot;

const std::string shown = "Visible=1; Activate";
const std::string opened = "Version; Visible=1; Activate; Open /docs/a.rtf; Visible=1; Activate";
const std::string viewer = R"(C:\Viewer\wordview.exe "%1")";
const std::string viewerStarted = "start " + viewer + " of /docs/a.rtf";

/// A document that is not finished yet, on a desktop.
class Viewers : public testing::Test {
protected:
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();
    std::shared_ptr<FakeDesktop> desktop = std::make_shared<FakeDesktop>();
    std::shared_ptr<Document> document = NewDocument();

    std::shared_ptr<Document> NewDocument() const {
        auto made = Document::Create(MakeFakePlatform(files, desktop));
        made->SetFilename("/docs/a.rtf");
        return made;
    }
    void InstallViewer() const { desktop->settings[FakeDesktop::viewerCommand] = viewer; }
    std::string RefusalOf(dwViewer program) const {
        return Refusal([&] { document->Preview(program); });
    }
};

}  // namespace

// Which viewer is used, what it is asked to do, and what is left behind.
TEST_F(Viewers, AreTriedInOrder) {
    const std::string failed = "Version; " + shown + "; Open /docs/a.rtf; create";
    const struct {
        std::string name;
        dwViewer program;
        bool printIt;
        std::string running;
        std::string installed;
        int failingOpens;
        int used;  // 0: there is no viewer, error 106
        std::string log;
    } cases[] = {
        {"2000 runs", dwViewerAuto, false, "9.0", "", 0, 3, opened},
        {"97 runs", dwViewerAuto, false, "8.0b", "9.0", 0, 2, "Version; attach; " + opened},
        {"2000 is started", dwViewerAuto, false, "", "9.0", 0, 3, "create; " + opened},
        {"97 is started", dwViewerAuto, false, "", "8.0", 0, 2, "create; Version; attach; create; " + opened},
        {"another", dwViewerAuto, false, "10.0", "", 0, 4, "Version; attach; Version; " + viewerStarted},
        {"only the viewer", dwViewerAuto, false, "", "", 0, 4, "create; attach; create; " + viewerStarted},
        {"nothing", dwViewerAuto, false, "", "", 0, 0, "create; attach; create"},
        {"97 prints", dwViewerWord97, true, "8.0", "", 0, 2, opened + "; PrintOut"},
        // A word processor that cannot open the document is left, and a new one tried.
        {"open fails", dwViewerWord97, true, "8.0", "8.0", 1, 2,
         failed + "; Version; Open /docs/a.rtf; " + shown + "; PrintOut"},
        // One that was started because none ran does not count as started on request.
        {"open fails, started", dwViewerWord2000, false, "", "9.0", 1, 3,
         "create; " + failed + "; Version; Open /docs/a.rtf; " + shown},
        // The second failure ends it without an error, and counts as done.
        {"open fails twice", dwViewerAuto, true, "9.0", "9.0", 2, 3, failed + "; Version; Open /docs/a.rtf"},
        // The new one can be missing or of another version, which is an error.
        {"no other", dwViewerAuto, false, "9.0", "", 1, 4, failed + "; attach; Version; " + viewerStarted},
        {"other version", dwViewerAuto, false, "9.0", "8.0", 1, 4,
         failed + "; Version; attach; Version; " + viewerStarted},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        desktop = std::make_shared<FakeDesktop>();
        desktop->runningVersion = c.running;
        desktop->installedVersion = c.installed;
        desktop->failingOpens = c.failingOpens;
        if (c.used != 0) InstallViewer();
        document = NewDocument();
        int used = 0;
        const std::string refusal =
            Refusal([&] { used = c.printIt ? document->PrintOut(c.program) : document->Preview(c.program); });
        EXPECT_EQ(used, c.used);
        EXPECT_EQ(refusal, c.used == 0 ? "X106 No viewer program could be found." : "accepted");
        EXPECT_EQ(desktop->TakeLog(), "attach; " + c.log);
        EXPECT_EQ(document->ViewerApp() != nullptr, (c.used == 2 || c.used == 3) && c.failingOpens < 2);
        EXPECT_EQ(document->ViewerTaskID(), c.used == 4 ? 101 : 0);
        EXPECT_TRUE(document->Finished());
    }
}

TEST_F(Viewers, ThatAreAskedForByNameMustWork) {
    EXPECT_EQ(RefusalOf(dwViewerWord97).substr(0, 4), "429 ");
    desktop->runningVersion = "8.0";
    EXPECT_EQ(RefusalOf(dwViewerWord2000), "429 There is no message for this error");
    EXPECT_EQ(RefusalOf(dwViewerWordView97), "X106 No viewer program could be found.");
    InstallViewer();
    document->Preview(dwViewerWordView97);
    desktop->startFails = true;
    EXPECT_THROW(document->Preview(dwViewerWordView97), std::system_error);
    EXPECT_EQ(document->ViewerTaskID(), 0);
}

TEST_F(Viewers, HaveANumberFromOneToFour) {
    for (const int number : {0, 5}) {
        EXPECT_EQ(RefusalOf(static_cast<dwViewer>(number)),
                  "X101 Property Viewer set to out of range value.");
    }
    EXPECT_EQ(desktop->TakeLog(), "");
    EXPECT_TRUE(document->Finished());
}

// The first of four places that says something about the viewer decides.
TEST_F(Viewers, AreFoundWhereTheyLeaveATrace) {
    const FakeDesktop::Setting options{RegistryRoot::CurrentUser,
                                       R"(Software\Microsoft\Word Viewer\8.0\Options)", "PROGRAMDIR"};
    const struct {
        FakeDesktop::Setting setting;
        std::string text;
        std::string command;
    } sources[] = {
        {{RegistryRoot::LocalMachine, R"(SOFTWARE\Microsoft\MS Setup (ACME)\Table Files)",
          "Microsoft Word Viewer 97@v96.11.18.01 (1033)"},
         R"(C:\Acme\setup\setup.stf)",
         R"(C:\Acme\four.exe "%1")"},
        {{RegistryRoot::LocalMachine, R"(SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\Viewer97)",
          "UninstallString"},
         R"(C:\setup\setup.exeV\setup\setup.exeSetup\Setup.exe)",
         R"(C:\V\Setup\Setup.exethree.exe "%1")"},
        {options, "/opt/The viewer", R"(/opt/The viewer/two.exe "%1")"},
        {FakeDesktop::viewerCommand, R"(one "%1" and %1)", R"(one "%1" and %1)"},
    };
    desktop->programs = {{R"(C:\Acme\)", "four.exe"},
                         {R"(C:\V\Setup\Setup.exe)", "three.exe"},
                         {"/opt/The viewer/", "two.exe"}};
    for (const auto& source : sources) {
        desktop->settings[source.setting] = source.text;
        EXPECT_EQ(document->Preview(dwViewerWordView97), dwViewerWordView97);
        EXPECT_EQ(desktop->TakeLog(), "start " + source.command + " of /docs/a.rtf");
    }
    // An empty text says nothing, a folder without a program is taken at its word.
    desktop->settings[FakeDesktop::viewerCommand] = "";
    desktop->settings[options] = "/mnt/";
    document->Preview(dwViewerWordView97);
    EXPECT_EQ(desktop->TakeLog(), R"(start /mnt/ "%1" of /docs/a.rtf)");
}

// It stays the same file when the current folder changes afterwards, and the temporary one is found while it
// is written.
TEST_F(Viewers, GetTheFileThatWasFinished) {
    const TempFolder there, elsewhere;
    InstallViewer();
    platform::Platform services = MakeFakePlatform(files, desktop);
    services.files = platform::SystemPlatform().files;
    document = Document::Create(services);
    document->SetFilename("c.rtf");
    document->SetTempPath(".");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(elsewhere.Path());
    document->AddSection();
    std::filesystem::current_path(there.Path());
    document->Finish();
    std::filesystem::current_path(elsewhere.Path());
    document->Preview(dwViewerWordView97);
    std::filesystem::current_path(before);
    EXPECT_EQ(desktop->TakeLog(), "start " + viewer + " of " + there / "c.rtf");
    EXPECT_EQ(ReadFile(there / "c.rtf").substr(0, 6), "{\\rtf1");
}

TEST_F(Viewers, PrintByKeystrokesOrInTheirOwnWay) {
    InstallViewer();
    EXPECT_EQ(document->PrintOut(dwViewerWordView97), dwViewerWordView97);
    EXPECT_EQ(desktop->TakeLog(), viewerStarted + "; events; activate 101; keys ^p; keys ~");
    desktop->printCommand = "printer %1";
    EXPECT_EQ(document->PrintOut(dwViewerWordView97), dwViewerWordView97);
    EXPECT_EQ(document->Preview(dwViewerWordView97), dwViewerWordView97);
    EXPECT_EQ(desktop->TakeLog(), "start printer %1 of /docs/a.rtf; " + viewerStarted);
}

TEST_F(Viewers, AreForgottenByTheNextCall) {
    desktop->runningVersion = "9.0";
    document->Preview();
    const auto app = document->ViewerApp();
    EXPECT_EQ(app->GetProperty("Version"), Variant{std::string{"9.0"}});
    EXPECT_EQ(app->Document(), document);
    EXPECT_THROW(app->GetProperty("Shelf"), std::system_error);
    EXPECT_EQ(RefusalNumber([&] { app->SetProperty("Visible", Date{}); }), dwRunTypeMismatch);
    EXPECT_EQ(RefusalNumber([&] { app->SetProperty("Visible", document->Self()); }), dwRunTypeMismatch);
    // By names alone, and to an object of the other program.
    const auto word = std::get<std::shared_ptr<Object>>(Get(*document, "ViewerApp"));
    EXPECT_EQ(word, app);
    const Variant documents = Call(*word, "GetProperty", {std::string{"Documents"}});
    desktop->TakeLog();
    Call(*std::get<std::shared_ptr<Object>>(documents), "CallMethod",
         {std::string{"Open"}, std::string{"b"}, std::string{"c"}});
    EXPECT_EQ(desktop->TakeLog(), "Open b c");

    desktop->runningVersion = "";
    EXPECT_EQ(RefusalOf(dwViewerAuto), "X106 No viewer program could be found.");
    EXPECT_EQ(document->ViewerApp(), nullptr);
    document.reset();
    EXPECT_EQ(app->GetProperty("Version"), Variant{std::string{"9.0"}});
}

}  // namespace draftwick::test
