// A program for the tests to start. It writes its arguments, each with a zero at its end, to the file that is named
// like its task in the folder DRAFTWICK_RECORDS. When the first is "--window" it opens a window and writes the keys
// that this gets instead, up to Enter: "^" is the control key.

#include <cstdio>
#include <string>
#include <windows.h>

#include <shellapi.h>

namespace {

std::string keys;

LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM parameter, LPARAM details) {
    switch (message) {
    case WM_KEYDOWN:
        if (parameter == VK_CONTROL) {
            keys += '^';
        } else {
            keys += static_cast<char>(parameter);
        }
        if (parameter == VK_RETURN) ::PostQuitMessage(0);
        return 0;
    case WM_TIMER:
    case WM_DESTROY: ::PostQuitMessage(0); return 0;
    default: return ::DefWindowProcW(window, message, parameter, details);
    }
}

void RecordKeys() {
    WNDCLASSW description{};
    description.lpfnWndProc = OnMessage;
    description.hInstance = ::GetModuleHandleW(nullptr);
    description.lpszClassName = L"Recorder";
    ::RegisterClassW(&description);
    const HWND window = ::CreateWindowW(L"Recorder", L"Recorder", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                                        100, nullptr, nullptr, description.hInstance, nullptr);
    ::SetTimer(window, 1, 20000, nullptr);
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) ::DispatchMessageW(&message);
}

}  // namespace

int main() {
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::string record;
    for (int i = 1; i < count; ++i) {
        char word[4096];
        ::WideCharToMultiByte(CP_UTF8, 0, words[i], -1, word, sizeof word, nullptr, nullptr);
        record += word;
        record += '\0';
    }
    if (count > 1 && std::wstring(words[1]) == L"--window") {
        RecordKeys();
        record = keys;
    }
    wchar_t folder[4096];
    ::GetEnvironmentVariableW(L"DRAFTWICK_RECORDS", folder, 4096);
    const std::wstring name = std::wstring(folder) + L"\\" + std::to_wstring(::GetCurrentProcessId());
    std::FILE* file = ::_wfopen((name + L".new").c_str(), L"wb");
    if (file == nullptr) return 1;
    std::fwrite(record.data(), 1, record.size(), file);
    std::fclose(file);
    return ::MoveFileW((name + L".new").c_str(), name.c_str()) ? 0 : 1;
}
