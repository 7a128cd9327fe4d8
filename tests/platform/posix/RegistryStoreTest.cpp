#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

#include <draftwick/platform/Platform.h>
#include <draftwick/viewer/internal/Registry.h>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace draftwick::test {

namespace {

using platform::RegistryRoot;
using namespace std::string_literals;

class Store : public testing::Test {
protected:
    TempFolder folder;
    EnvironmentValue configuration{"XDG_CONFIG_HOME", folder.Path()};
    std::shared_ptr<platform::RegistryStore> store = platform::SystemPlatform().registry;
    Registry registry{*store};
    std::string file = folder / "draftwick/registry";
};

}  // namespace

TEST_F(Store, IsATextThatItsUserCanRead) {
    registry.SetPath("Software\\\\App\\");
    registry.WriteString("Viewer", "", "C:\\Programs\\viewer.exe \"%1\"");
    registry.WriteString("Viewer", "Caf\xC3\xA9\t", "two\r\nlines");
    registry.WriteLong("Viewer", "Count", 42);
    registry.WriteString("\t~", "", "");
    const std::string text = "Software\n"
                             "Software\\App\n"
                             "Software\\App\\%09~\n"
                             "\t\t1\t\n"
                             "Software\\App\\Viewer\n"
                             "\t\t1\tC:\\Programs\\viewer.exe \"%251\"%00\n"
                             "\tCaf%c3%a9%09\t1\ttwo%0d%0alines%00\n"
                             "\tCount\t4\t*%00%00%00\n";
    EXPECT_EQ(ReadFile(file), text);
    EXPECT_EQ(std::filesystem::status(file).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    // Nothing else is left, and what is read is what was written.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder / "draftwick"), {}), 1);
    registry.WriteString("\t~", "", "");
    EXPECT_EQ(ReadFile(file), text);
    EXPECT_EQ(registry.ReadString("viewer", "CAF\xC3\x89\t", ""), "two\r\nlines");
    // The root stays, whatever it is called.
    for (const char* root : {"", "\\"}) {
        registry.SetPath(root);
        registry.DeleteSection("");
        registry.DeleteSection("\\");
    }
    EXPECT_EQ(ReadFile(file), text);
}

TEST_F(Store, LeavesADamagedFileAlone) {
    std::filesystem::create_directory(folder / "draftwick");
    std::string deep = "a";
    for (int i = 0; i < 100000; ++i) deep += "\\a";
    for (const std::string& damage : {"%4"s, "%zz"s, "\ta"s, "\ta\t"s, "\ta\tx\ty"s, "\ta\t1\t%"s, deep}) {
        const std::string text = damage + "\nb\n\tc\t1\td%00\n";
        WriteFile(file, text);
        registry.SetPath("b");
        EXPECT_EQ(registry.ReadString("", "c", "other"), "other") << damage;
        registry.WriteString("", "c", "new");
        EXPECT_EQ(ReadFile(file), text);
    }
    std::filesystem::remove(file);
    registry.SetPath(deep);
    registry.WriteString("", "c", "new");
    EXPECT_EQ(registry.ReadString("", "c", "other"), "other");
}

TEST_F(Store, LeavesNothingBehindWhenItCannotBeWritten) {
    std::filesystem::create_directories(file + "/taken");
    EXPECT_TRUE(store->CreateKey(RegistryRoot::CurrentUser, "a"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder / "draftwick"), {}), 1);
    std::filesystem::remove_all(folder / "draftwick");
    WriteFile(folder / "draftwick", "a file");
    EXPECT_TRUE(store->CreateKey(RegistryRoot::CurrentUser, "a"));
    EXPECT_EQ(ReadFile(folder / "draftwick"), "a file");
    const EnvironmentValue inner{"XDG_CONFIG_HOME", folder / "draftwick/inner"};
    EXPECT_TRUE(store->CreateKey(RegistryRoot::CurrentUser, "a"));
    // No room for what is new: what was there stays.
    const EnvironmentValue other{"XDG_CONFIG_HOME", folder / "other"};
    registry.SetPath("a");
    registry.WriteString("", "b", "c");
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit none{0, before.rlim_max};
    auto* const action = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &none), 0);
    EXPECT_TRUE(store->CreateKey(RegistryRoot::CurrentUser, "d"));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, action);
    EXPECT_EQ(registry.ReadString("", "b", ""), "c");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder / "other/draftwick"), {}), 1);
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
    WriteFile(folder / "soffice", "");
    EXPECT_EQ(command(), "xdg-open \"%1\"");
    put("soffice");
    EXPECT_EQ(registry.ReadAllSubKeys(""), std::vector<std::string>{"command"});
    EXPECT_EQ(platform::SystemPlatform().programs->PrintCommand(), "soffice -p \"%1\"");
    registry.WriteString("command", "", "mine");
    registry.DeleteSection("command");
    EXPECT_EQ(command(), "soffice --view \"%1\"");
    EXPECT_EQ(store->CreateKey(RegistryRoot::LocalMachine, registry.Path()), std::errc::permission_denied);
    EXPECT_FALSE(std::filesystem::exists(file));
}

}  // namespace draftwick::test
