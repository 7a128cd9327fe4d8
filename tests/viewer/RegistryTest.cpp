#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

#include <draftwick/platform/Platform.h>
#include <draftwick/viewer/internal/Registry.h>

#include <gtest/gtest.h>

#include <random>

namespace draftwick::test {

namespace {

using platform::RegistryRoot;
using platform::RegistryType;
using namespace std::string_literals;

/// A key of its own in the user's real settings; on POSIX these are in a temporary folder.
class Settings : public testing::Test {
protected:
    Settings() { registry.SetPath("Software\\Draftwick Test " + std::to_string(std::random_device{}())); }
    ~Settings() override { registry.DeleteSection(""); }

    TempFolder folder;
    EnvironmentValue configuration{"XDG_CONFIG_HOME", folder.Path()};
    std::shared_ptr<platform::RegistryStore> store = platform::SystemPlatform().registry;
    Registry registry{*store};

    void Store(const std::string& name, RegistryType type, std::string_view bytes) const {
        EXPECT_FALSE(store->SetValue(registry.Root(), registry.Path(), name, type, bytes));
    }
    /// The bytes of a text as they are stored.
    std::string StoredText(const std::string& name) const {
        RegistryType type{};
        std::string bytes;
        EXPECT_FALSE(store->QueryValue(registry.Root(), registry.Path(), name, type, bytes));
        EXPECT_EQ(type, RegistryType::Text);
        return bytes;
    }
};

using Names = std::vector<std::string>;

}  // namespace

TEST_F(Settings, AreTheUsersUnlessSaidOtherwise) {
    EXPECT_EQ(static_cast<std::uint32_t>(Registry{*store}.Root()), 0x80000001U);
    registry.SetRoot(RegistryRoot::LocalMachine);
    registry.SetRoot(RegistryRoot{});
    EXPECT_EQ(registry.Root(), RegistryRoot::CurrentUser);
}

TEST_F(Settings, ReadTextsAsEveryKind) {
    const struct {
        std::string text;
        std::int32_t number;
        double real;
        int truth;  // -1: neither
    } cases[] = {
        {"42", 42, 42, 1},
        {" -7 ", -7, -7, 1},
        {"+2.5", 2, 2.5, 1},
        {"3.5", 4, 3.5, 1},
        {"0", 0, 0, 0},
        {"1e3", 1000, 1000, 1},
        {"2147483648", -99, 2147483648.0, 1},
        {"True", -99, -99, 1},
        {"FALSE", -99, -99, 0},
        {"", -99, -99, -1},
        {"12 apples", -99, -99, -1},
        {"+-1", -99, -99, -1},
        {"inf", -99, -99, -1},
        {"1e999", -99, -99, -1},
        {"K\xC3\xA4se \"x\" %1\\\r\n[y]", -99, -99, -1},
    };
    for (const auto& [text, number, real, truth] : cases) {
        registry.WriteString("\xC3\xA4 section", "Name", text);
        EXPECT_EQ(registry.ReadString("\xC3\x84 SECTION", "name", "other"), text);
        EXPECT_EQ(registry.ReadLong("\xC3\xA4 section", "Name", -99), number) << text;
        EXPECT_EQ(registry.ReadDouble("\xC3\xA4 section", "Name", -99), real) << text;
        EXPECT_EQ(registry.ReadBoolean("\xC3\xA4 section", "Name", false), truth == 1) << text;
        EXPECT_EQ(registry.ReadBoolean("\xC3\xA4 section", "Name", true), truth != 0) << text;
    }
}

TEST_F(Settings, ReadNumbersAsEveryKind) {
    for (const std::int32_t number : {0, -1, 5, INT32_MIN, INT32_MAX}) {
        registry.WriteLong("", "", number);
        EXPECT_EQ(registry.ReadLong("", "", 7), number);
        EXPECT_EQ(registry.ReadString("", "", "x"), std::to_string(number));
        EXPECT_EQ(registry.ReadDouble("", "", 0.5), number);
        EXPECT_EQ(registry.ReadBoolean("", "", number == 0), number != 0);
    }
    for (const bool flag : {true, false}) {
        registry.WriteBoolean("", "Flag", flag);
        EXPECT_EQ(registry.ReadLong("", "Flag", 7), flag ? -1 : 0);
    }
}

TEST_F(Settings, GiveTheDefaultForWhatIsNotThereOrOfAnotherType) {
    EXPECT_EQ(registry.ReadString("Section", "Name", "other"), "other");
    registry.WriteString("Section", "Other", "x");
    EXPECT_EQ(registry.ReadString("Section", "Name", "other"), "other");
    registry.WriteLong("Section", "other", 7);
    EXPECT_EQ(registry.ReadString("Section", "Other", "other"), "7");
    Store("Binary", static_cast<RegistryType>(3), "12\0"s);
    EXPECT_EQ(registry.ReadString("", "Binary", "other"), "other");
    EXPECT_EQ(registry.ReadLong("", "Binary", 7), 7);
    // Without its terminating zero a text loses its last character, and that is a whole one.
    Store("Cut", RegistryType::Text, "caf\xC3\xA9");
    EXPECT_EQ(registry.ReadString("", "Cut", "other"), "caf");
    Store("Empty", RegistryType::Text, "");
    EXPECT_EQ(registry.ReadString("", "Empty", "other"), "");
}

TEST_F(Settings, StoreRealNumbersInEightCharacters) {
    const struct {
        double value;
        std::string stored;
        double readBack;
    } cases[] = {
        {3.14159265, "3.141592", 3.14159},  // the last character is taken for the terminating zero
        {2.5, "2.5\0\0\0\0\0"s, 2.5},       {-0.125, "-0.125\0\0"s, -0.125},
        {1234567, "1234567\0"s, 1234567},   {12345678, "12345678\0"s, 12345678},
        {0.00001, "1e-05\0\0\0"s, 0.00001},
    };
    for (const auto& [value, stored, readBack] : cases) {
        registry.WriteDouble("", "Real", value);
        EXPECT_EQ(StoredText("Real"), stored);
        EXPECT_EQ(registry.ReadDouble("", "Real", -1), readBack);
    }
}

TEST_F(Settings, ListAndDeleteWhatTheyHold) {
    EXPECT_EQ(registry.ReadAllSubKeys("Section"), Names{});
    EXPECT_EQ(registry.ReadAllValueNames(""), Names{});
    for (const auto* section : {"Section\\b\\deep\\deeper", "Section\\a", "Section\\C", "Sections"}) {
        registry.WriteLong(section, "Second", 2);
        registry.WriteLong(section, "Third \xE2\x82\xAC", 3);
    }
    EXPECT_EQ(registry.ReadAllSubKeys("Section"), (Names{"a", "b", "C"}));
    EXPECT_EQ(registry.ReadAllSubKeys("SECTION\\B"), Names{"deep"});
    EXPECT_EQ(registry.ReadAllSubKeys("Section\\a"), Names{});
    registry.WriteLong("Section\\a", std::string(255, 'z'), 1);  // its name is too long to be listed
    EXPECT_EQ(registry.ReadAllValueNames("Section\\a"), (Names{"Second", "Third \xE2\x82\xAC"}));
    // A key with subkeys does not go by itself.
    EXPECT_EQ(store->DeleteKey(registry.Root(), registry.Path() + "\\Section"), std::errc::permission_denied);

    registry.DeleteSection("Section");
    EXPECT_EQ(registry.ReadAllSubKeys(""), Names{"Sections"});
    EXPECT_EQ(registry.ReadLong("Sections", "Second", 0), 2);
    registry.DeleteSection("");
    EXPECT_EQ(store->DeleteKey(registry.Root(), registry.Path()), std::errc::no_such_file_or_directory);
}

}  // namespace draftwick::test
