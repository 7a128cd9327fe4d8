#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

#include <draftwick/platform/Platform.h>
#include <draftwick/viewer/Registry.h>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace draftwick::test {

namespace {

using platform::RegistryRoot;

class Store : public testing::Test {
protected:
    TempFolder folder;
    EnvironmentValue configuration{"XDG_CONFIG_HOME", folder.Path()};
    std::shared_ptr<platform::RegistryStore> store = platform::SystemPlatform().registry;
    Registry registry{*store};
    std::string file = folder / "draftwick/registry";
};

}  // namespace

TEST_F(Store, IsATextThatPeopleCanRead) {
    registry.SetPath("Software\\App");
    registry.WriteString("Viewer", "", "C:\\Programs\\viewer.exe \"%1\"");
    registry.WriteString("Viewer", "Caf\xC3\xA9", "two\r\nlines");
    registry.WriteLong("Viewer", "Count", 42);
    registry.WriteDouble("", "Ratio", 3.14159265);
    registry.WriteString("[x]%", "", "");
    EXPECT_EQ(ReadFile(file), "# Settings that programs leave for each other.\n"
                              "\n[Software]\n"
                              "\n[Software\\App]\n"
                              "\"Ratio\"=hex(1):332e313431353932\n"
                              "\n[Software\\App\\%5bx%5d%25]\n"
                              "\"\"=hex(1):\n"
                              "\n[Software\\App\\Viewer]\n"
                              "\"\"=\"C:\\Programs\\viewer.exe %22%251%22\"\n"
                              "\"Caf\xC3\xA9\"=\"two%0d%0alines\"\n"
                              "\"Count\"=dword:0000002a\n");
    EXPECT_EQ(std::filesystem::status(file).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    // Written by hand, in another case and with Windows line ends; a value that is there twice is the last.
    WriteFile(file, "\"Root\"=dword:ffffffff\r\n[software\\APP]\r\n\"a\"=\"1\"\r\n\"A\"=\"2\"\r\n# note\r\n");
    EXPECT_EQ(registry.ReadString("", "a", ""), "2");
    EXPECT_EQ(registry.ReadAllValueNames("").size(), 1U);
    registry.SetPath("");
    EXPECT_EQ(registry.ReadLong("", "root", 0), -1);
}

TEST_F(Store, LeavesADamagedFileAlone) {
    for (const std::string damage :
         {"x", "[a", "[a]x", "\"a\"", "\"a=\"1\"", "\"a\"=\"1", "\"a\"=1", "\"a\"=dword:12", "\"a\"=hex(3):1",
          "\"a\"=hex(3)00", "\"a\"=hex(x):00", "\"a\"=\"%4\"", "\"a\"=\"%zz\""}) {
        WriteFile(folder / "x", "");
        std::filesystem::create_directory(folder / "draftwick");
        WriteFile(file, damage + "\n[b]\n\"c\"=\"d\"\n");
        registry.SetPath("b");
        EXPECT_EQ(registry.ReadString("", "c", "other"), "other") << damage;
        registry.WriteString("", "c", "new");
        EXPECT_EQ(ReadFile(file), damage + "\n[b]\n\"c\"=\"d\"\n");
    }
    std::string deep = "a";
    for (int i = 0; i < 100000; ++i) deep += "\\a";
    WriteFile(file, "[" + deep + "]\n");
    registry.SetPath(deep);
    registry.WriteString("", "c", "new");
    EXPECT_EQ(registry.ReadString("", "c", "other"), "other");
}

TEST_F(Store, IsNotThereWithoutAFolder) {
    const EnvironmentValue relative{"XDG_CONFIG_HOME", "relative"};
    const EnvironmentValue home{"HOME", ""};
    registry.WriteString("Section", "Name", "x");
    EXPECT_EQ(registry.ReadString("Section", "Name", "other"), "other");
    const EnvironmentValue other{"HOME", folder / "home"};
    registry.WriteString("Section", "Name", "x");
    EXPECT_EQ(registry.ReadString("Section", "Name", "other"), "x");
    EXPECT_TRUE(std::filesystem::exists(folder / "home/.config/draftwick/registry"));
}

TEST_F(Store, TakesTheChangesOfTwoProcessesAtOnce) {
    constexpr int Values = 40;
    const auto write = [&](const std::string& who) {
        registry.SetPath("Shared");
        for (int i = 0; i < Values; ++i) registry.WriteLong(who, who + std::to_string(i), i);
    };
    const pid_t other = ::fork();
    if (other == 0) {
        write("child");
        ::_exit(0);
    }
    write("parent");
    int status = -1;
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(registry.ReadAllValueNames("child").size(), std::size_t{Values});
    EXPECT_EQ(registry.ReadAllValueNames("parent").size(), std::size_t{Values});
}

TEST_F(Store, AnswersForTheMachineWithTheDesktopsViewer) {
    const auto put = [&](const char* name) {
        WriteFile(folder / name, "");
        std::filesystem::permissions(folder / name, std::filesystem::perms::owner_all);
    };
    const EnvironmentValue path{"PATH", ":/nowhere:" + folder.Path()};
    registry.SetRoot(RegistryRoot::LocalMachine);
    registry.SetPath("SOFTWARE\\Classes\\Word.Document.8\\shell\\wordview");
    const auto command = [&] { return registry.ReadString("command", "", "none"); };
    EXPECT_EQ(command(), "none");
    std::filesystem::create_directory(folder / "soffice");
    put("xdg-open");
    EXPECT_EQ(command(), "xdg-open \"%1\"");
    std::filesystem::remove(folder / "soffice");
    put("soffice");
    EXPECT_EQ(command(), "soffice --view \"%1\"");
    EXPECT_EQ(registry.ReadAllSubKeys(""), std::vector<std::string>{"command"});
    EXPECT_EQ(platform::SystemPlatform().programs->PrintCommand(), "soffice -p \"%1\"");

    registry.WriteString("command", "", "mine");
    registry.DeleteSection("command");
    EXPECT_EQ(command(), "soffice --view \"%1\"");
    std::error_code error;
    EXPECT_EQ(store->Create(RegistryRoot::LocalMachine, registry.Path(), error), nullptr);
    EXPECT_EQ(error, std::errc::permission_denied);
}

}  // namespace draftwick::test
