#include "tests/support/Documents.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

#include <set>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace draftwick::test {

namespace {

/// A document of one text, whose temporary files are in the folder; named by the environment if `name` is empty.
void Write(const TempFolder& folder, const std::string& name, const std::string& text) {
    platform::Platform services = platform::SystemPlatform();
    const auto environment = std::make_shared<FakeEnvironment>();
    environment->tempFolder = folder.Path();
    services.environment = environment;
    const auto document = Document::Create(services);
    document->SetFilename(name);
    AddText(*document->AddSection(), text);
    document->Finish();
}

/// A device that is full. Whoever may make devices gets one of their own, so that a fault cannot replace the system's.
std::string FullDevice(const TempFolder& folder) {
    const std::string name = folder / "full";
    return ::mknod(name.c_str(), S_IFCHR | 0600, ::makedev(1, 7)) == 0 ? name : "/dev/full";
}

}  // namespace

TEST(OutputFile, ReplacesFilesAndLinksAndWritesToEverythingElse) {
    const TempFolder folder;
    const std::string old = folder / "old.rtf", link = folder / "link.rtf", pipe = folder / "pipe";
    WriteFile(old, "old");
    ASSERT_EQ(::link(old.c_str(), (folder / "second").c_str()), 0);
    ASSERT_EQ(::symlink(old.c_str(), link.c_str()), 0);
    Write(folder, link, "a");
    EXPECT_EQ(CheckFile(ReadFile(link)), "");
    EXPECT_EQ(ReadFile(old), "old");
    Write(folder, old, "b");
    EXPECT_EQ(CheckFile(ReadFile(old)), "");
    EXPECT_EQ(ReadFile(folder / "second"), "old");

    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::string received;
    std::thread reader([&] { received = ReadFile(pipe); });
    Write(folder, pipe, "c");
    reader.join();
    EXPECT_EQ(CheckFile(received), "");
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
    ASSERT_EQ(::symlink((folder / "nowhere").c_str(), (folder / "loose.rtf").c_str()), 0);
    Write(folder, folder / "loose.rtf", "d");
    EXPECT_EQ(CheckFile(ReadFile(folder / "nowhere")), "");
    const std::string full = FullDevice(folder);
    EXPECT_THROW(Write(folder, full, "d"), std::system_error);
    EXPECT_THROW(Write(folder, folder.Path(), "d"), std::system_error);
    EXPECT_THROW(Write(folder, old + std::string(1, '\0') + ".rtf", "d"), std::system_error);
    EXPECT_TRUE(std::filesystem::is_character_file(full));
    EXPECT_EQ(CheckFile(ReadFile(old)), "");
}

TEST(OutputFile, IsPreparedWhereOnlyTheOwnerCanRead) {
    const TempFolder folder, other;
    const EnvironmentValue first{"TEMP", folder.Path()}, second{"TMPDIR", other.Path()};
    const auto document = Document::Create();
    document->AddSection();
    EXPECT_EQ(std::filesystem::status(folder / "~dw1.tmp").permissions(), std::filesystem::perms{0600});
}

TEST(OutputFile, IsNeverSharedByThreadsOrProcesses) {
    const TempFolder folder;
    constexpr int Threads = 8, Each = 10;
    const auto writeMany = [&](char process) {
        std::vector<std::thread> threads;
        for (int thread = 0; thread < Threads; ++thread) {
            threads.emplace_back([&, thread] {
                for (int i = 0; i < Each; ++i) {
                    Write(folder, "", process + std::to_string(thread) + "-" + std::to_string(i));
                }
            });
        }
        for (std::thread& thread : threads) thread.join();
    };
    const pid_t child = ::fork();
    if (child == 0) {
        writeMany('c');
        ::_exit(0);
    }
    writeMany('p');
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    std::set<std::string> texts;
    std::ptrdiff_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        const std::string bytes = ReadFile(entry.path().string());
        EXPECT_EQ(CheckFile(bytes), "") << entry.path();
        texts.insert(Between(Words(bytes), "\\slmult1{", "}"));
        ++files;
    }
    EXPECT_EQ(files, 2 * Threads * Each);
    EXPECT_EQ(texts.size(), 2 * Threads * Each);
}

}  // namespace draftwick::test
