#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace draftwick::test {

namespace {

bool IsInstalled(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

std::string OutputOf(const std::string& command) {
    std::string output;
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
    std::array<char, 4096> block;
    while (const std::size_t size = std::fread(block.data(), 1, block.size(), pipe.get())) {
        output.append(block.data(), size);
    }
    return output;
}

/// A screen of its own, which nobody sees.
class Screen {
public:
    Screen() {
        int ends[2];
        if (::pipe(ends) != 0) return;
        server_ = ::fork();
        if (server_ == 0) {
            ::close(ends[0]);
            const std::string number = std::to_string(ends[1]);
            ::execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "800x600x24", "-nolisten",
                     "tcp", nullptr);
            ::_exit(127);
        }
        ::close(ends[1]);
        char digit = 0;
        while (::read(ends[0], &digit, 1) == 1 && digit != '\n') name_ += digit;
        ::close(ends[0]);
    }
    ~Screen() {
        if (server_ <= 0) return;
        ::kill(server_, SIGTERM);
        ::waitpid(server_, nullptr, 0);
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    std::string Name() const { return ":" + name_; }

private:
    pid_t server_ = -1;
    std::string name_;
};

}  // namespace

// With a real office program: a window with the document's name in its title appears.
TEST(Preview, OpensAWindow) {
    for (const auto* program : {"soffice", "Xvfb", "xwininfo"}) {
        if (!IsInstalled(program)) GTEST_SKIP() << program << " is not installed";
    }
    if (std::system(
            "ls \"$(dirname \"$(readlink -f \"$(command -v soffice)\")\")\"/libvclplug_* >/dev/null 2>&1")
        != 0)
        GTEST_SKIP() << "this soffice has no windows";
    const TempFolder folder;
    const Screen screen;
    const EnvironmentValue display{"DISPLAY", screen.Name()};
    const EnvironmentValue home{"HOME", folder / "home"};
    const EnvironmentValue configuration{"XDG_CONFIG_HOME", folder / "home/.config"};
    std::filesystem::create_directory(folder / "home");

    auto document = Document::Create();
    document->SetFilename(folder / "A preview.rtf");
    document->AddSection()->AddParagraph()->AddTextItem("Here I am.");
    EXPECT_EQ(document->Preview(), dwViewerWordView97);
    EXPECT_EQ(document->ViewerApp(), nullptr);
    ASSERT_GT(document->ViewerTaskID(), 0);

    bool found = false;
    for (int second = 0; second < 120 && !found; ++second) {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        found = OutputOf("xwininfo -root -tree 2>/dev/null").find("A preview.rtf") != std::string::npos;
    }
    EXPECT_TRUE(found) << OutputOf("xwininfo -root -tree 2>&1");
    // The viewer is a group of processes of its own; it must be gone before its profile is.
    ::kill(-document->ViewerTaskID(), SIGKILL);
    for (int i = 0; i < 500 && ::kill(-document->ViewerTaskID(), 0) == 0; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

}  // namespace draftwick::test
