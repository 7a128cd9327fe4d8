#include <draftwick/platform/internal/System.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

extern char** environ;  // NOLINT(readability-redundant-declaration): only some systems declare it

namespace draftwick::platform {

namespace {

constexpr std::string_view FilePlace = "%1";

[[noreturn]] void Fail(int error, const std::string& what) {
    throw std::system_error(error, std::generic_category(), what);
}

/// The words of a command line: see Programs::Start.
std::vector<std::string> SplitCommandLine(const std::string& line) {
    std::vector<std::string> words;
    bool inWord = false;
    bool inQuotes = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (!inQuotes && (c == ' ' || c == '\t' || c == '\n')) {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        if (c == '"') {
            inQuotes = !inQuotes;
        } else if (c == '\\' && at + 1 < line.size() && line[at + 1] == '"') {
            words.back() += line[++at];
        } else {
            words.back() += c;
        }
    }
    if (inQuotes) Fail(EINVAL, "cannot start '" + line + "': a quote is missing");
    return words;
}

void PutFile(std::string& word, const std::string& file) {
    for (std::size_t at = word.find(FilePlace); at != std::string::npos; at = word.find(FilePlace, at)) {
        word.replace(at, FilePlace.size(), file);
        at += file.size();
    }
}

/// How a program is started: with nothing of ours but the environment and the folder.
class Attributes {
public:
    Attributes() {
        ::posix_spawnattr_init(&attributes_);
        ::posix_spawn_file_actions_init(&actions_);
        // A group of its own: what interrupts this program at its terminal is not meant for the other.
        ::posix_spawnattr_setpgroup(&attributes_, 0);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes_, &signals);
        ::sigaddset(&signals, SIGINT);
        ::sigaddset(&signals, SIGPIPE);
        ::sigaddset(&signals, SIGCHLD);
        ::posix_spawnattr_setsigdefault(&attributes_, &signals);
        ::posix_spawnattr_setflags(&attributes_,
                                   POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        // Whoever reads this program's output must not have to wait until the viewer is closed.
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }
    ~Attributes() {
        ::posix_spawn_file_actions_destroy(&actions_);
        ::posix_spawnattr_destroy(&attributes_);
    }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    pid_t Spawn(std::vector<std::string>& words) const {
        std::vector<char*> arguments;
        arguments.reserve(words.size() + 1);
        for (std::string& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        pid_t task = 0;
        const int error =
            ::posix_spawnp(&task, arguments[0], &actions_, &attributes_, arguments.data(), environ);
        if (error != 0) Fail(error, "cannot start '" + words.front() + "'");
        return task;
    }

private:
    posix_spawnattr_t attributes_{};
    posix_spawn_file_actions_t actions_{};
};

/// A program that has ended stays in the system's tables until somebody takes note of it.
void TakeNoteOfTheEnd(pid_t task) noexcept {
    // The signals of this program are for its own threads.
    sigset_t all;
    sigset_t before;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_BLOCK, &all, &before);
    try {
        std::thread([task] {
            while (::waitpid(task, nullptr, 0) < 0 && errno == EINTR) {
            }
        }).detach();
    } catch (const std::system_error&) {
        // Without a thread an entry in a table is left over until this program ends; the other one runs.
    }
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

class PosixPrograms final : public Programs {
public:
    std::int32_t Start(const std::string& commandLine, const std::string& file) override {
        std::vector<std::string> words = SplitCommandLine(commandLine);
        if (words.empty() || words.front().empty() || words.front().find(FilePlace) != std::string::npos)
            Fail(EINVAL, "cannot start '" + commandLine + "': it names no program");
        for (std::string& word : words) {
            PutFile(word, file);
            if (word.find('\0') != std::string::npos) Fail(EINVAL, "cannot start '" + words.front() + "'");
        }
        const pid_t task = Attributes{}.Spawn(words);
        TakeNoteOfTheEnd(task);
        return task;
    }

    std::string PrintCommand() override { return "soffice -p \"%1\""; }

    void ProcessEvents() override {}
    void Activate(std::int32_t) override { Fail(ENOTSUP, "cannot activate a window"); }
    void SendKeys(const std::string&) override { Fail(ENOTSUP, "cannot send keystrokes"); }

    /// In quotes, whatever it holds.
    std::string FirstProgram(const std::string& start) override {
        const std::filesystem::path path(start);
        std::string first;
        std::error_code error;
        for (std::filesystem::directory_iterator entry(path.parent_path(), error), end;
             !error && entry != end; entry.increment(error)) {
            const std::string name = entry->path().filename().string();
            std::error_code unknown;
            if (name.starts_with(path.filename().string()) && name.ends_with(".exe")
                && (first.empty() || name < first) && entry->is_regular_file(unknown))
                first = name;
        }
        std::string quoted = "\"";
        for (const char c : start + first) {
            if (c == '"') quoted += '\\';
            quoted += c;
        }
        return quoted + '"';
    }
};

/// There is no automation here.
class PosixAutomation final : public Automation {
public:
    std::shared_ptr<AutomationObject> Attach(const std::string& className) override {
        Fail(ENOTSUP, "cannot reach '" + className + "'");
    }
    std::shared_ptr<AutomationObject> Create(const std::string& className) override {
        Fail(ENOTSUP, "cannot create '" + className + "'");
    }
};

}  // namespace

std::shared_ptr<Automation> MakeAutomation() { return std::make_shared<PosixAutomation>(); }
std::shared_ptr<Programs> MakePrograms() { return std::make_shared<PosixPrograms>(); }

}  // namespace draftwick::platform
