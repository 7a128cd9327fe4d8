#pragma once

#include <draftwick/platform/Export.h>

#include <string_view>

namespace draftwick::platform {

/// The system's application event log: the event log on Windows, syslog on POSIX.
class DRAFTWICK_API EventLog {
public:
    virtual ~EventLog() = default;

    /// Records one error entry. The text holds several lines. Failures are not reported.
    virtual void Report(std::string_view text) noexcept = 0;
};

}  // namespace draftwick::platform
