#pragma once

// What the parts for Windows share. Names and texts are UTF-8 outside and UTF-16 inside.

#include <draftwick/platform/internal/System.h>

#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <objbase.h>

namespace draftwick::platform::windows {

/// What is not UTF-8, or not UTF-16, becomes U+FFFD.
std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

inline std::error_code SystemError(unsigned long code) {
    return {static_cast<int>(code), std::system_category()};
}
inline std::error_code LastError() { return SystemError(::GetLastError()); }

/// A handle that closes itself.
class Handle {
public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    bool IsOpen() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }
    /// Whether that worked.
    bool Close() {
        const bool closed = !IsOpen() || ::CloseHandle(handle_) != 0;
        handle_ = nullptr;
        return closed;
    }
    operator HANDLE() const { return handle_; }

private:
    HANDLE handle_;
};

/// The thread's access to COM, for as long as this lives.
class Apartment {
public:
    Apartment() : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~Apartment() {
        // A thread that already has access of another kind keeps it, and ends it itself.
        if (SUCCEEDED(result_)) ::CoUninitialize();
    }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;

private:
    HRESULT result_;
};

/// Releases a COM object.
struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using ComPointer = std::unique_ptr<Interface, Release>;

}  // namespace draftwick::platform::windows
