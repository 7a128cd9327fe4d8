#include <draftwick/platform/Platform.h>
#include <draftwick/platform/posix/Posix.h>

#include <atomic>
#include <cstdlib>
#include <syslog.h>

namespace draftwick::platform {

namespace {

class PosixEnvironment final : public Environment {
public:
    std::string TempFolder() override {
        for (const char* variable : {"TEMP", "TMPDIR"}) {
            const char* value = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe)
            if (value != nullptr && *value != '\0') return value;
        }
        return "/tmp";
    }
};

class Syslog final : public EventLog {
public:
    void Report(std::string_view text) noexcept override {
        ::syslog(LOG_USER | LOG_ERR, "%.*s", static_cast<int>(text.size()), text.data());
    }
};

std::atomic<EventLog*> replacement{nullptr};

}  // namespace

Platform SystemPlatform() {
    static const Platform system{
        .files = posix::MakeFileSystem(),
        .environment = std::make_shared<PosixEnvironment>(),
        .pictures = SystemPictures(),
        .registry = posix::MakeRegistryStore(),
        .automation = posix::MakeAutomation(),
        .programs = posix::MakePrograms(),
    };
    return system;
}

EventLog& CurrentEventLog() {
    static Syslog system;
    EventLog* other = replacement.load();
    return other != nullptr ? *other : system;
}

void SetEventLog(EventLog* log) noexcept { replacement = log; }

std::string LocalTimeText(std::time_t time) {
    std::tm local{};
    ::localtime_r(&time, &local);
    char text[32] = "";
    (void)std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
    return text;
}

}  // namespace draftwick::platform
