#pragma once

#include <draftwick/platform/Export.h>

#include <string>

namespace draftwick::platform {

/// What documents ask of the process's environment.
class DRAFTWICK_API Environment {
public:
    virtual ~Environment() = default;

    /// The folder for temporary files that the environment variable TEMP names; on POSIX, where TEMP is rarely
    /// set, then TMPDIR, then /tmp. Empty on Windows when TEMP is not set.
    virtual std::string TempFolder() = 0;
};

}  // namespace draftwick::platform
