#include "tests/platform/Recorder.h"
#include "tests/support/FakeDesktop.h"

#include <cerrno>
#include <csignal>
#include <sys/wait.h>

namespace draftwick::test {

std::string RecorderIn(const TempFolder& folder) {
    const std::string name = folder / "the recorder";
    WriteFile(name, "#!/bin/sh\n"
                    "{ for word; do printf '%s\\0' \"$word\"; done; } >\"$DRAFTWICK_RECORDS/$$.new\"\n"
                    "/bin/mv \"$DRAFTWICK_RECORDS/$$.new\" \"$DRAFTWICK_RECORDS/$$\"\n");
    std::filesystem::permissions(name, std::filesystem::perms::owner_all);
    return name;
}

TEST_F(Recorder, GetsTheWordsOfItsCommandLine) {
    const struct {
        std::string line;
        Words words;
    } cases[] = {
        {"", {}},
        {"  \t\n", {}},
        {" %1", {"a b"}},
        {" a%1%1b --file=%1", {"aa ba bb", "--file=a b"}},
        {" \"two words\"\"\" \"\"", {"two words", ""}},
        {" one\" word\"", {"one word"}},
        {" \\\"x\\\" \"a \\\" b\" c\\d\\", {"\"x\"", "a \" b", "c\\d\\"}},
        {" $HOME `id` ; > x * 'a b'", {"$HOME", "`id`", ";", ">", "x", "*", "'a", "b'"}},
    };
    for (const auto& [line, words] : cases) EXPECT_EQ(Run(line, "a b"), words) << line;
    const std::int32_t task = programs->Start("\"" + program + "\"", "");
    for (int i = 0; i < 1000 && ::kill(task, 0) == 0; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(errno, ESRCH) << "something of it is left";
}

TEST_F(Recorder, IsNamedByTheCommandLineAlone) {
    EXPECT_THROW(programs->Start(" \"\" %1", "x"), std::system_error);
    EXPECT_THROW(programs->Start("\"%1\"", program), std::system_error);
    EXPECT_THROW(programs->Start("\"" + program, "x"), std::system_error);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "something was left behind";
    EXPECT_EQ(programs->FirstProgram("/\"none\"/"), R"("/\"none\"/")");
}

TEST_F(Recorder, HasNoWindowHere) {
    EXPECT_THROW(programs->Activate(1), std::system_error);
    EXPECT_THROW(programs->SendKeys("x"), std::system_error);
}

// From Preview to the program, through files of the real file system.
TEST_F(Recorder, GetsTheFinishedDocument) {
    const auto desktop = std::make_shared<FakeDesktop>();
    desktop->settings[FakeDesktop::viewerCommand] = "\"" + program + "\" \"%1\"";
    platform::Platform services = platform::SystemPlatform();
    services.registry = desktop;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    for (const std::string name : {"\"quoted\" 'twice'.rtf", "two\nlines\t.rtf",
                                   "$(touch oops) `touch oops`; touch oops & | > oops.rtf",
                                   "back\\slash\\\".rtf", "--help.rtf", "not UTF-8 \xFF\xC3.rtf"}) {
        auto document = Document::Create(services);
        document->SetFilename(name);
        EXPECT_EQ(document->Preview(), dwViewerWordView97);
        EXPECT_EQ(Recorded(document->ViewerTaskID()), Words{folder / name});
        EXPECT_EQ(document->ActualFileName(), name);
        EXPECT_EQ(ReadFile(folder / name).substr(0, 6), "{\\rtf1");
    }
    std::filesystem::current_path(before);
    EXPECT_FALSE(std::filesystem::exists(folder / "oops"));
}

}  // namespace draftwick::test
