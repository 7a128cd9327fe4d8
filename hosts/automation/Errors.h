#pragma once

#include "Com.h"

#include <draftwick/base/Error.h>

#include <string>

namespace draftwick::automation {

/// Refuses what a host sends, as the library refuses.
[[noreturn]] inline void Refuse(dwRuntimeError number, const std::string& what) {
    detail::RaiseRuntimeError(number, what);
}

/// Tells the host about the exception that is being handled: in `info`, or where there is none as the thread's error
/// object. Returns what the interface function must return.
HRESULT ReportException(EXCEPINFO* info) noexcept;

/// Does the work of an interface function, which no exception may leave.
template <class Work>
HRESULT Guarded(EXCEPINFO* info, Work work) noexcept {
    try {
        return work();
    } catch (...) {
        return ReportException(info);
    }
}

}  // namespace draftwick::automation
