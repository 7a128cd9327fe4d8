#include <draftwick/platform/windows/Windows.h>

#include <vector>

namespace draftwick::platform {

namespace {

using namespace windows;

constexpr DWORD LongestWait = 10000;  // milliseconds until a program must have a window

[[noreturn]] void Fail(std::error_code error, const std::string& what) {
    throw std::system_error(error, what);
}

/// The window of a program that stands for it: visible and nobody else's.
HWND MainWindow(DWORD task) {
    struct Search {
        DWORD task;
        HWND found;
    } search{task, nullptr};
    ::EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            DWORD owner = 0;
            ::GetWindowThreadProcessId(window, &owner);
            if (owner != wanted.task || ::GetWindow(window, GW_OWNER) != nullptr
                || !::IsWindowVisible(window))
                return TRUE;
            wanted.found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

INPUT Key(WORD code, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    return input;
}

class WindowsPrograms final : public Programs {
public:
    std::int32_t Start(const std::string& commandLine, const std::string& file) override {
        std::string line = commandLine;
        for (std::size_t at = line.find("%1"); at != std::string::npos; at = line.find("%1", at)) {
            line.replace(at, 2, file);
            at += file.size();
        }
        std::wstring wide = ToWide(line);
        if (wide.empty() || wide.find(L'\0') != std::wstring::npos)
            Fail(std::make_error_code(std::errc::invalid_argument), "cannot start '" + line + "'");
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESHOWWINDOW;
        startup.wShowWindow = SW_SHOWNORMAL;
        PROCESS_INFORMATION process{};
        if (!::CreateProcessW(nullptr, wide.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                              &process))
            Fail(LastError(), "cannot start '" + line + "'");
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
        return static_cast<std::int32_t>(process.dwProcessId);
    }

    /// Viewers are sent keystrokes.
    std::string PrintCommand() override { return {}; }

    void ProcessEvents() override {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                // The program's own loop is to see it.
                ::PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }

    void Activate(std::int32_t task) override {
        const auto id = static_cast<DWORD>(task);
        const Handle process(::OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, id));
        if (!process.IsOpen()) Fail(LastError(), "cannot activate a window of task " + std::to_string(id));
        // A program that was just started needs a while until it has a window.
        ::WaitForInputIdle(process, LongestWait);
        const ULONGLONG end = ::GetTickCount64() + LongestWait;
        HWND window = MainWindow(id);
        while (window == nullptr && ::GetTickCount64() < end
               && ::WaitForSingleObject(process, 50) == WAIT_TIMEOUT) {
            window = MainWindow(id);
        }
        if (window == nullptr)
            Fail(SystemError(ERROR_INVALID_WINDOW_HANDLE),
                 "cannot activate a window of task " + std::to_string(id));
        if (::IsIconic(window)) ::ShowWindow(window, SW_RESTORE);
        // Keystrokes go to whatever is in front, so it has to be this window before any is sent.
        do {
            ::SetForegroundWindow(window);
            ::Sleep(50);
        } while (::GetForegroundWindow() != window && ::GetTickCount64() < end);
        if (::GetForegroundWindow() != window)
            Fail(SystemError(ERROR_ACCESS_DENIED),
                 "cannot activate the window of task " + std::to_string(id));
    }

    void SendKeys(const std::string& keys) override {
        std::vector<INPUT> inputs;
        bool control = false;
        for (const char c : keys) {
            if (c == '^') {
                control = true;
                continue;
            }
            const auto code =
                static_cast<WORD>(c == '~' ? VK_RETURN : ::VkKeyScanW(static_cast<wchar_t>(c)) & 0xFF);
            if (control) inputs.push_back(Key(VK_CONTROL, false));
            inputs.push_back(Key(code, false));
            inputs.push_back(Key(code, true));
            if (control) inputs.push_back(Key(VK_CONTROL, true));
            control = false;
        }
        const auto count = static_cast<UINT>(inputs.size());
        if (::SendInput(count, inputs.data(), sizeof(INPUT)) != count)
            Fail(LastError(), "cannot send keystrokes");
    }

    /// Without quotes: the system itself tries where the name of the program ends.
    std::string FirstProgram(const std::string& start) override {
        WIN32_FIND_DATAW found{};
        const HANDLE search = ::FindFirstFileW(ToWide(start + "*.exe").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return start;
        std::string name;
        do {
            if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) name = FromWide(found.cFileName);
        } while (name.empty() && ::FindNextFileW(search, &found));
        ::FindClose(search);
        return start + name;
    }
};

}  // namespace

std::shared_ptr<Programs> MakePrograms() { return std::make_shared<WindowsPrograms>(); }

}  // namespace draftwick::platform
