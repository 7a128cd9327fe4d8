#include <draftwick/platform/Platform.h>
#include <draftwick/platform/internal/System.h>

#include <atomic>

namespace draftwick::platform {

namespace {

std::atomic<EventLog*> replacement{nullptr};

}  // namespace

Platform SystemPlatform() {
    static const Platform system{
        .files = MakeFileSystem(),
        .environment = MakeEnvironment(),
        .pictures = SystemPictures(),
        .registry = MakeRegistryStore(),
        .automation = MakeAutomation(),
        .programs = MakePrograms(),
    };
    return system;
}

EventLog& CurrentEventLog() {
    EventLog* const other = replacement.load();
    return other != nullptr ? *other : SystemEventLog();
}

void SetEventLog(EventLog* log) noexcept { replacement = log; }

std::string LocalTimeText(std::time_t time) {
    const std::tm local = LocalTime(time);
    char text[32] = "";
    (void)std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
    return text;
}

}  // namespace draftwick::platform
