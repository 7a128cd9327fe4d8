#include <draftwick/platform/internal/System.h>

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

}  // namespace

std::shared_ptr<Environment> MakeEnvironment() { return std::make_shared<PosixEnvironment>(); }

EventLog& SystemEventLog() {
    static Syslog log;
    return log;
}

std::tm LocalTime(std::time_t time) {
    std::tm local{};
    ::localtime_r(&time, &local);
    return local;
}

}  // namespace draftwick::platform
