// What the stand-ins of FaultsTest play, by the system itself: each failure is reported with the path, and a second
// Finish mends it when the cause is gone.

#include "tests/fire/LongDocument.h"
#include "tests/support/Rtf.h"
#include "tests/support/System.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#ifndef __has_feature
#define __has_feature(feature) 0
#endif

namespace draftwick::test {

namespace {

constexpr long Paragraphs = 2000;

std::shared_ptr<Document> NewDocument(const std::string& name, const std::string& temp) {
    return LongDocument(name, temp, dwSpellingStandard, "fire", Paragraphs);
}

const std::string& Undisturbed() {
    static const std::string bytes = [] {
        const TempFolder folder;
        NewDocument(folder / "a.rtf", folder.Path())->Finish();
        return ReadFile(folder / "a.rtf");
    }();
    return bytes;
}

std::ptrdiff_t Files(const std::string& folder) {
    const std::filesystem::directory_iterator all(folder);
    return std::distance(begin(all), end(all));
}

/// What the action fails with; it must name the file.
std::error_code Failure(const std::function<void()>& action, const std::string& file) {
    try {
        action();
    } catch (const std::system_error& failure) {
        EXPECT_NE(std::string{failure.what()}.find(file), std::string::npos) << failure.what();
        return failure.code();
    }
    return {};
}

/// Runs the test in a process of its own. Returns its status; 77: the system does not permit it.
int InProcess(const std::function<int()>& test) {
    const pid_t child = ::fork();
    if (child == 0) {
        const int status = test();
        std::fflush(nullptr);
        ::_exit(::testing::Test::HasFailure() ? 1 : status);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A document that is to be `name` fails with `error` while the cause is there, leaves an old file alone, and is whole
/// when the cause is gone.
void FailsUntilMended(const std::string& name, std::errc error, const std::function<void()>& cause,
                      const std::function<void()>& mend) {
    const TempFolder temp;
    const auto document = NewDocument(name, temp.Path());
    cause();
    EXPECT_EQ(Failure([&] { document->Finish(); }, name), error);
    EXPECT_FALSE(document->Finished());
    mend();
    document->Finish();
    EXPECT_EQ(ReadFile(name), Undisturbed());
    EXPECT_EQ(Files(temp.Path()), 0);
}

/// Ignores a signal that ends a process when it writes, as hosts do.
class Ignored {
public:
    explicit Ignored(int signal) : signal_(signal), before_(std::signal(signal, SIG_IGN)) {}
    ~Ignored() { std::signal(signal_, before_); }
    Ignored(const Ignored&) = delete;
    Ignored& operator=(const Ignored&) = delete;

private:
    int signal_;
    void (*before_)(int);
};

}  // namespace

TEST(RealFailures, OfAFileSystemThatIsFull) {
    const TempFolder folder;
    const std::string name = folder / "a.rtf", filler = folder / "filler";
    const int status = InProcess([&] {
        if ((::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
            || ::mount("none", folder.Path().c_str(), "tmpfs", 0, "size=1m") != 0) {
            return 77;
        }
        WriteFile(name, "old");
        FailsUntilMended(
            name, std::errc::no_space_on_device, [&] { WriteFile(filler, std::string(800000, 'x')); },
            [&] {
                EXPECT_EQ(ReadFile(name), "old");
                EXPECT_EQ(Files(folder.Path()), 2);
                std::filesystem::remove(filler);
            });
        // The body of a document has no room: the call that notices it says so, once.
        std::filesystem::remove(name);
        WriteFile(filler, std::string(800000, 'x'));
        const TempFolder out;
        int failures = 0;
        const auto document = Document::Create();
        document->SetFilename(out / "a.rtf");
        document->SetTempPath(folder.Path());
        const auto section = document->AddSection();
        for (int number = 0; number < 2000; ++number) {
            try {
                section->AddParagraph()->AddTextItem(std::string(300, 'x'));
            } catch (const std::system_error& failure) {
                EXPECT_NE(std::string{failure.what()}.find(folder.Path()), std::string::npos);
                if (++failures == 1) std::filesystem::remove(filler);
                --number;
            }
        }
        document->Finish();
        EXPECT_EQ(failures, 1);
        EXPECT_EQ(CheckFile(ReadFile(out / "a.rtf")), "");
        return 0;
    });
    if (status == 77) GTEST_SKIP() << "this system lets nobody mount a file system";
    EXPECT_EQ(status, 0);
}

TEST(RealFailures, OfALimitOfTheSizeOfFiles) {
    const TempFolder folder;
    const Ignored signal(SIGXFSZ);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto limit = [&](rlim_t size) {
        const rlimit now{size, before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &now), 0);
    };
    FailsUntilMended(
        folder / "a.rtf", std::errc::file_too_large, [&] { limit(Undisturbed().size() - 10); },
        [&] { limit(before.rlim_cur); });
    EXPECT_EQ(Files(folder.Path()), 1);
}

TEST(RealFailures, OfAPipeThatNobodyReads) {
    const TempFolder folder, temp;
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const Ignored signal(SIGPIPE);
    const auto document = NewDocument(pipe, temp.Path());
    std::thread leaving([&] {
        const int reader = ::open(pipe.c_str(), O_RDONLY);
        char byte = 0;
        EXPECT_EQ(::read(reader, &byte, 1), 1);
        ::close(reader);
    });
    EXPECT_EQ(Failure([&] { document->Finish(); }, pipe), std::errc::broken_pipe);
    leaving.join();
    std::string received;
    std::thread reading([&] { received = ReadFile(pipe); });
    document->Finish();
    reading.join();
    EXPECT_EQ(received, Undisturbed());
    EXPECT_EQ(Files(temp.Path()), 0);
}

TEST(RealFailures, DoNotComeFromAReaderThatTakesAByteAtATime) {
    const TempFolder folder, temp;
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const auto document = NewDocument(pipe, temp.Path());
    // Signals interrupt the writes, so that they are as short.
    struct sigaction action {};
    struct sigaction before {};
    action.sa_handler = [](int) {};
    ASSERT_EQ(::sigaction(SIGALRM, &action, &before), 0);
    const itimerval often{{0, 500}, {0, 500}}, never{};
    std::string received;
    std::thread slow([&] {
        sigset_t signals;
        sigfillset(&signals);
        ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
        const int reader = ::open(pipe.c_str(), O_RDONLY);
        for (char byte = 0; ::read(reader, &byte, 1) == 1;) received += byte;
        ::close(reader);
    });
    ::setitimer(ITIMER_REAL, &often, nullptr);
    document->Finish();
    ::setitimer(ITIMER_REAL, &never, nullptr);
    slow.join();
    ::sigaction(SIGALRM, &before, nullptr);
    EXPECT_EQ(received, Undisturbed());
    EXPECT_EQ(Files(temp.Path()), 0);
}

TEST(RealFailures, OfAFolderThatCannotBeWrittenOrIsGone) {
    const TempFolder folder;
    const std::string inner = folder / "inner", name = inner + "/a.rtf";
    std::filesystem::create_directory(inner);
    FailsUntilMended(
        name, std::errc::no_such_file_or_directory, [&] { std::filesystem::remove(inner); },
        [&] { std::filesystem::create_directory(inner); });
    WriteFile(name, "old");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    const int status = InProcess([&] {
        // The administrator may write everywhere.
        if (::geteuid() == 0 && ::chown(inner.c_str(), 65534, 65534) + ::seteuid(65534) != 0) return 77;
        // That user's temporary files, too, are where it may write, if it may get there.
        if (::eaccess(inner.c_str(), W_OK) != 0) return 77;
        const EnvironmentValue there{"TMPDIR", inner}, pictures{"TEMP", inner};
        FailsUntilMended(
            name, std::errc::permission_denied, [&] { EXPECT_EQ(::chmod(inner.c_str(), 0555), 0); },
            [&] {
                EXPECT_EQ(ReadFile(name), "old");
                EXPECT_EQ(::chmod(inner.c_str(), 0755), 0);
            });
        return 0;
    });
    if (status == 77) GTEST_SKIP() << "this system lets nobody become another user";
    EXPECT_EQ(status, 0);
    // A body that is cut short or gone is lost, and that is said.
    const TempFolder cut, temp;
    const auto shortened = NewDocument(folder / "late/b.rtf", cut.Path());
    EXPECT_THROW(shortened->Finish(), std::system_error);
    std::filesystem::create_directory(folder / "late");
    std::filesystem::resize_file(cut / "~dw1.tmp", 1000);
    EXPECT_EQ(Failure([&] { shortened->Finish(); }, cut.Path()), std::errc::io_error);
    EXPECT_EQ(Files(folder / "late"), 0);
    const auto document = NewDocument(folder / "b.rtf", temp.Path());
    std::filesystem::remove_all(temp.Path());
    EXPECT_EQ(Failure([&] { document->Finish(); }, temp.Path()), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(std::filesystem::exists(folder / "b.rtf"));
}

TEST(RealFailures, OfDescriptorsThatAreUsedUp) {
    if (__has_feature(undefined_behavior_sanitizer)) GTEST_SKIP() << "its checks need descriptors themselves";
    const TempFolder folder;
    std::vector<int> taken;
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const auto limit = [&](rlim_t files) {
        const rlimit now{files, before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &now), 0);
    };
    FailsUntilMended(
        folder / "a.rtf", std::errc::too_many_files_open,
        [&] {
            limit(64);
            for (int next = 0; (next = ::open("/dev/null", O_RDONLY)) >= 0;) taken.push_back(next);
        },
        [&] {
            for (const int one : taken) ::close(one);
            limit(before.rlim_cur);
        });
    EXPECT_EQ(Files(folder.Path()), 1);
}

TEST(RealFailures, DoNotComeFromNames) {
    const TempFolder folder;
    const auto write = [&](const std::string& name) { NewDocument(folder / name, folder.Path())->Finish(); };
    for (int byte = 1; byte < 256; ++byte) {
        if (byte == '/') continue;
        const std::string name = std::string(1, static_cast<char>(byte)) + "a" + static_cast<char>(byte);
        const auto document = Document::Create();
        document->SetFilename(folder / (name + ".rtf"));
        document->SetTempPath(folder.Path());
        document->SetDurable(byte > 250);
        document->AddSection();
        document->Finish();
        EXPECT_EQ(CheckFile(ReadFile(folder.Path() + "/" + name + ".rtf")), "") << byte;
    }
    const std::string longest = std::string(251, 'a') + ".rtf";
    write(longest);
    EXPECT_EQ(ReadFile(folder / longest), Undisturbed());
    EXPECT_EQ(Failure([&] { write("a" + longest); }, "a" + longest), std::errc::filename_too_long);
    // A path as long as the system takes, and one byte more.
    std::string deep = folder.Path();
    while (deep.size() + 202 < 4095 - 60)
        std::filesystem::create_directory(deep += "/" + std::string(200, 'd'));
    deep += "/";
    const std::string last = deep + std::string(4095 - deep.size() - 4, 'l') + ".rtf";
    NewDocument(last, folder.Path())->Finish();
    EXPECT_EQ(ReadFile(last), Undisturbed());
    const std::string more = deep + std::string(4095 - deep.size() - 3, 'l') + ".rtf";
    EXPECT_EQ(Failure([&] { NewDocument(more, folder.Path())->Finish(); }, more),
              std::errc::filename_too_long);
}

}  // namespace draftwick::test
