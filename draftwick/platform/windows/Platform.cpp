#include <draftwick/platform/internal/System.h>
#include <draftwick/platform/windows/Windows.h>

namespace draftwick::platform {

namespace windows {

std::wstring ToWide(std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int length =
        ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

std::string FromWide(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string narrow(text.size() * 3, '\0');
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(),
                                             static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(length));
    return narrow;
}

namespace {

class WindowsEnvironment final : public Environment {
public:
    std::string TempFolder() override {
        std::wstring value(32767, L'\0');  // the longest that a variable can be
        const DWORD length =
            ::GetEnvironmentVariableW(L"TEMP", value.data(), static_cast<DWORD>(value.size()));
        value.resize(length < value.size() ? length : 0);
        return FromWide(value);
    }
};

class EventLogOfSystem final : public EventLog {
public:
    void Report(std::string_view text) noexcept override try {
        const std::wstring wide = ToWide(text);
        const HANDLE source = ::RegisterEventSourceW(nullptr, L"Draftwick");
        if (source == nullptr) return;
        const wchar_t* texts[] = {wide.c_str()};
        ::ReportEventW(source, EVENTLOG_ERROR_TYPE, 0, 0, nullptr, 1, 0, texts, nullptr);
        ::DeregisterEventSource(source);
    } catch (const std::bad_alloc&) {
    }
};

}  // namespace

}  // namespace windows

std::shared_ptr<Environment> MakeEnvironment() { return std::make_shared<windows::WindowsEnvironment>(); }

EventLog& SystemEventLog() {
    static windows::EventLogOfSystem log;
    return log;
}

std::tm LocalTime(std::time_t time) {
    std::tm local{};
    ::localtime_s(&local, &time);
    return local;
}

}  // namespace draftwick::platform
