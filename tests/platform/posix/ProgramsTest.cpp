#include "tests/support/Errors.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/viewer/internal/Registry.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <thread>

namespace draftwick::test {

namespace {

using Words = std::vector<std::string>;

bool WaitUntil(const std::function<bool()>& condition) {
    for (int i = 0; i < 1000 && !condition(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return condition();
}

/// A program that writes down the arguments it was started with.
class Recorder : public testing::Test {
protected:
    Recorder() {
        std::filesystem::create_directory(records);
        WriteFile(program, "#!/bin/sh\n{ for word; do printf '%s\\0' \"$word\"; done; } >\"" + records
                               + "/$$.new\"\n/bin/mv \"" + records + "/$$.new\" \"" + records + "/$$\"\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }

    TempFolder folder;
    std::string records = folder / "records";
    std::string program = folder / "the recorder";
    std::shared_ptr<platform::Programs> programs = platform::SystemPlatform().programs;

    /// The arguments that a task wrote down, once it has ended and nothing is left of it.
    Words Recorded(std::int32_t task) const {
        const std::string name = records + "/" + std::to_string(task);
        EXPECT_TRUE(WaitUntil([&] { return ::kill(task, 0) != 0 && errno == ESRCH; })) << "still there";
        // The recorder ran once: there is no other record.
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(records), {}), 1);
        const std::string bytes = ReadFile(name);
        std::filesystem::remove(name);
        Words words;
        for (std::size_t at = 0; at < bytes.size(); at = bytes.find('\0', at) + 1) {
            words.push_back(bytes.c_str() + at);
        }
        return words;
    }
    Words Run(const std::string& arguments, const std::string& file) const {
        return Recorded(programs->Start("\"" + program + "\"" + arguments, file));
    }
};

const std::string oddNames[] = {
    "plain.rtf",
    "with blanks  .rtf",
    "\"quoted\" 'twice'.rtf",
    "two\nlines\t.rtf",
    "$(touch oops) `touch oops` $HOME; touch oops & | > oops.rtf",
    "-p.rtf",
    "--help.rtf",
    "100%1%%1.rtf",
    "back\\slash\\\".rtf",
    "*?[a]{b,c}~.rtf",
    "not UTF-8 \xFF\xC3.rtf",
};

}  // namespace

TEST_F(Recorder, GetsTheWordsOfItsCommandLine) {
    const struct {
        std::string line;
        Words words;
    } cases[] = {
        {"", {}},
        {"  \t\n", {}},
        {" %1", {"F"}},
        {" \"%1\"", {"F"}},
        {" \"%1\" -n  \"%1\"", {"F", "-n", "F"}},
        {" a%1%1b", {"aFFb"}},
        {" \"two words\"\"\" \"\"", {"two words", ""}},
        {" one\" word\"", {"one word"}},
        {" \\\"x\\\" \"a \\\" b\" c\\d\\", {"\"x\"", "a \" b", "c\\d\\"}},
        {" $HOME `id` ; > x * 'a b'", {"$HOME", "`id`", ";", ">", "x", "*", "'a", "b'"}},
    };
    for (auto [line, words] : cases) {
        for (std::string& word : words) {
            for (std::size_t at = word.find('F'); at != std::string::npos; at = word.find('F', at + 3)) {
                word.replace(at, 1, "a b");
            }
        }
        EXPECT_EQ(Run(line, "a b"), words) << line;
    }
}

TEST_F(Recorder, GetsAnyFileNameAsOneWord) {
    for (const std::string& name : oddNames) {
        EXPECT_EQ(Run(" \"%1\"", name), Words{name});
        EXPECT_EQ(Run(" %1 --file=%1", name), (Words{name, "--file=" + name}));
    }
}

TEST_F(Recorder, IsFoundByItsPathOrNotAtAll) {
    EXPECT_THROW(programs->Start("", "x"), std::system_error);
    EXPECT_THROW(programs->Start(" \"\" %1", "x"), std::system_error);
    EXPECT_THROW(programs->Start("\"%1\"", program), std::system_error);
    EXPECT_THROW(programs->Start("\"" + program, "x"), std::system_error);
    EXPECT_THROW(programs->Start("\"" + program + "\" %1", std::string("x\0y", 3)), std::system_error);
    EXPECT_THROW(programs->Start(folder.Path() + "/ \"%1\"", "x"), std::system_error);
    try {
        programs->Start("no-such-program-here %1", "x");
        ADD_FAILURE() << "it was started";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
        EXPECT_NE(std::string{error.what()}.find("'no-such-program-here'"), std::string::npos);
    }
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "something was left behind";
}

// From Preview to the program, through files of the real file system.
TEST_F(Recorder, GetsTheFinishedDocument) {
    const auto desktop = std::make_shared<FakeDesktop>();
    desktop->settings[FakeDesktop::viewerCommand] = "\"" + program + "\" \"%1\"";
    platform::Platform services = platform::SystemPlatform();
    services.registry = desktop;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    for (const std::string& name : oddNames) {
        auto document = Document::Create(services);
        document->SetFilename(name);
        document->AddSection()->AddParagraph()->AddTextItem("x");
        EXPECT_EQ(document->Preview(), dwViewerWordView97);
        EXPECT_NE(document->ViewerTaskID(), 0);
        EXPECT_EQ(Recorded(document->ViewerTaskID()), Words{folder / name});
        EXPECT_EQ(document->ActualFileName(), name);
        EXPECT_EQ(ReadFile(folder / name).substr(0, 6), "{\\rtf1");
    }
    std::filesystem::current_path(before);
    EXPECT_FALSE(std::filesystem::exists(folder / "oops"));
}

// With the user's real settings and nothing else on the desktop: a folder with a viewer, whatever its name.
TEST_F(Recorder, IsTheViewerInTheFolderThatTheSettingsName) {
    const EnvironmentValue configuration{"XDG_CONFIG_HOME", folder.Path()};
    const EnvironmentValue path{"PATH", folder.Path()};
    const std::string home = folder / "The \\ \"viewer\"";
    Registry registry(*platform::SystemPlatform().registry);
    registry.SetPath("Software\\Microsoft\\Word Viewer\\8.0");
    registry.WriteString("Options", "PROGRAMDIR", home);
    auto document = Document::Create();
    document->SetFilename(folder / "a.rtf");
    EXPECT_EQ(RefusalNumber([&] { document->Preview(); }), dwErrNoViewer);
    std::filesystem::create_directories(home + "/0.exe");
    for (const auto* name : {"/c.exe", "/b.exe.bak", "/a.txt"}) WriteFile(home + name, "");
    std::filesystem::rename(program, home + "/b.exe");
    EXPECT_EQ(document->Preview(), dwViewerWordView97);
    EXPECT_EQ(Recorded(document->ViewerTaskID()), Words{folder / "a.rtf"});
}

}  // namespace draftwick::test
