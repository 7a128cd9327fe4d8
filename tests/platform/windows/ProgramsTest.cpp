#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/viewer/internal/Registry.h>

#include <gtest/gtest.h>

#include <system_error>
#include <windows.h>

namespace draftwick::test {

namespace {

using Words = std::vector<std::string>;

/// A program that writes down the arguments it was started with. It stands beside the tests.
class Recorder : public testing::Test {
protected:
    Recorder() {
        std::filesystem::create_directory(records);
        char name[MAX_PATH];
        ::GetModuleFileNameA(nullptr, name, MAX_PATH);
        program = (std::filesystem::path(name).parent_path() / "draftwick_recorder.exe").string();
    }

    TempFolder folder;
    std::string records = folder / "records";
    EnvironmentValue variable{"DRAFTWICK_RECORDS", records};
    std::string program;
    std::shared_ptr<platform::Programs> programs = platform::SystemPlatform().programs;

    std::string Record(std::int32_t task) const {
        const std::string name = records + "\\" + std::to_string(task);
        for (int i = 0; i < 3000 && !std::filesystem::exists(name); ++i) ::Sleep(10);
        std::string record = ReadFile(name);
        std::filesystem::remove(name);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(records), {}), 0) << "it ran twice";
        return record;
    }
    Words Recorded(std::int32_t task) const {
        const std::string bytes = Record(task);
        Words words;
        for (std::size_t at = 0; at < bytes.size(); at = bytes.find('\0', at) + 1) {
            words.push_back(bytes.c_str() + at);
        }
        return words;
    }
};

}  // namespace

TEST_F(Recorder, GetsTheFileWhereTheCommandLineHasIt) {
    for (const std::string name : {"C:\\plain.rtf", "C:\\with blanks & more\\a.rtf", "-p.rtf", "100%1%%1.rtf",
                                   "$(x) `y` %PATH% ^ ; 'z'.rtf", "K\xC3\xA4se \xE4\xB8\xAD.rtf"}) {
        const std::string command = "\"" + program + "\" \"%1\" -n \"%1\"";
        EXPECT_EQ(Recorded(programs->Start(command, name)), (Words{name, "-n", name}));
    }
    EXPECT_EQ(Recorded(programs->Start("\"" + program + "\" x", "unused")), Words{"x"});
}

TEST_F(Recorder, MustBeThere) {
    for (const std::string& command :
         {std::string{}, folder.Path() + "\\ \"%1\"", std::string{"no-such-program %1"}}) {
        EXPECT_THROW(programs->Start(command, "x"), std::system_error) << command;
    }
    try {
        programs->Start("no-such-program %1", "x");
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
        EXPECT_NE(std::string{error.what()}.find("'no-such-program x'"), std::string::npos);
    }
}

TEST_F(Recorder, IsTheFirstProgramOfItsFolder) {
    EXPECT_EQ(programs->FirstProgram(folder / ""), folder / "");
    WriteFile(folder / "a.txt", "");
    std::filesystem::create_directory(folder / "folder.exe");
    WriteFile(folder / "b.exe", "");
    EXPECT_EQ(programs->FirstProgram(folder / ""), folder / "b.exe");
}

// From Preview to the program, with the real registry.
TEST_F(Recorder, IsFoundThroughTheRegistry) {
    Registry registry(*platform::SystemPlatform().registry);
    registry.SetPath("Software\\Microsoft\\Word Viewer\\8.0");
    ASSERT_EQ(registry.ReadString("Options", "PROGRAMDIR", ""), "") << "there is a real one";
    std::filesystem::create_directory(folder / "The viewer");
    std::filesystem::copy_file(program, folder / "The viewer\\recorder.exe");
    registry.WriteString("Options", "PROGRAMDIR", folder / "The viewer");

    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    auto document = Document::Create();
    document->SetFilename("-a letter.rtf");
    EXPECT_EQ(document->Preview(dwViewerWordView97), dwViewerWordView97);
    EXPECT_EQ(Recorded(document->ViewerTaskID()), Words{folder / "-a letter.rtf"});
    EXPECT_EQ(ReadFile(folder / "-a letter.rtf").substr(0, 6), "{\\rtf1");
    std::filesystem::current_path(before);
    registry.DeleteSection("Options");
}

TEST_F(Recorder, IsSentKeys) {
    const HWND probe =
        ::CreateWindowW(L"STATIC", L"", WS_OVERLAPPED, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    if (probe == nullptr) GTEST_SKIP() << "there is no screen";
    ::DestroyWindow(probe);
    const std::int32_t task = programs->Start("\"" + program + "\" --window", "");
    programs->ProcessEvents();
    programs->Activate(task);
    programs->SendKeys("^p");
    programs->SendKeys("~");
    EXPECT_EQ(Record(task), "^P\r");
    EXPECT_THROW(programs->Activate(-1), std::system_error);
}

}  // namespace draftwick::test
