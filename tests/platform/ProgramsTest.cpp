#include "tests/platform/Recorder.h"
#include "tests/support/Errors.h"

#include <draftwick/viewer/internal/Registry.h>

namespace draftwick::test {

TEST_F(Recorder, GetsTheFileWhereTheCommandLineHasIt) {
    for (const std::string name :
         {"plain.rtf", "/with blanks  & more/a.rtf", "-p.rtf", "100%1%%1.rtf",
          "$(x) `y` %PATH% $HOME ^ ; 'z'.rtf", "*?[a]{b,c}~.rtf", "K\xC3\xA4se \xE4\xB8\xAD.rtf"}) {
        EXPECT_EQ(Run(" \"%1\" -n  \"%1\"", name), (Words{name, "-n", name}));
    }
    EXPECT_EQ(Run(" x", "unused"), Words{"x"});
}

TEST_F(Recorder, MustBeThere) {
    for (const std::string& command :
         {std::string{}, folder / " \"%1\"", std::string{"no-such-program %1"}}) {
        EXPECT_THROW(programs->Start(command, "x"), std::system_error) << command;
    }
    EXPECT_THROW(Run(" %1", std::string("x\0y", 3)), std::system_error);
    try {
        programs->Start("no-such-program %1", "x");
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
        EXPECT_NE(std::string{error.what()}.find("'no-such-program"), std::string::npos);
    }
}

// From Preview to the first program of the folder that the user's real settings name.
TEST_F(Recorder, IsFoundThroughTheRegistry) {
    const EnvironmentValue configuration{"XDG_CONFIG_HOME", folder.Path()};
    const EnvironmentValue path{"PATH", folder.Path()};
    const std::filesystem::path home = folder / "The viewer";
    Registry registry(*platform::SystemPlatform().registry);
    registry.SetPath("Software\\Microsoft\\Word Viewer\\8.0");
    ASSERT_EQ(registry.ReadString("Options", "PROGRAMDIR", ""), "") << "there is a real one";
    auto document = Document::Create();
    document->SetFilename(folder / "-a letter.rtf");
    EXPECT_EQ(RefusalNumber([&] { document->Preview(dwViewerWordView97); }), dwErrNoViewer);
    registry.WriteString("Options", "PROGRAMDIR", home.string());
    EXPECT_THROW(document->Preview(dwViewerWordView97), std::system_error);
    std::filesystem::create_directories(home / "a.exe");
    for (const auto* name : {"c.exe", "b.exe.bak", "a.txt"}) WriteFile((home / name).string(), "");
    std::filesystem::copy_file(program, home / "b.exe");
    EXPECT_EQ(document->Preview(dwViewerWordView97), dwViewerWordView97);
    EXPECT_EQ(Recorded(document->ViewerTaskID()), Words{folder / "-a letter.rtf"});
    registry.DeleteSection("Options");
}

}  // namespace draftwick::test
