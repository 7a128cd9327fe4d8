#pragma once

#include <draftwick/platform/Export.h>

#include <cstdint>
#include <string>

namespace draftwick::platform {

/// How other programs are found, started and spoken to. Failures are std::system_error with what failed in the
/// text.
class DRAFTWICK_API Programs {
public:
    virtual ~Programs() = default;

    /// Starts the program of a command line in a normal window that has the focus, and does not wait for it. Every
    /// "%1" in the line stands for `file`. Returns the number by which the system knows the task.
    ///
    /// On Windows the line is the system's, with "%1" replaced in it. On POSIX no shell sees it: it is divided at
    /// blanks that are not between double quotes (a quote itself is \"), and only then "%1" is replaced, so that
    /// any file name stays what it is.
    virtual std::int32_t Start(const std::string& commandLine, const std::string& file) = 0;

    /// The command line that prints the file "%1", where a viewer cannot be told to by keystrokes; empty where it
    /// can.
    virtual std::string PrintCommand() = 0;

    /// Handles the events that wait for this program's own windows.
    virtual void ProcessEvents() = 0;
    /// Brings the main window of a task to the front.
    virtual void Activate(std::int32_t task) = 0;
    /// Sends keystrokes to the window in front, without waiting: "^p" is Ctrl+P, "~" is Enter.
    virtual void SendKeys(const std::string& keys) = 0;

    /// The program of a command line for Start: `start`, a folder with its separator, and behind it the name
    /// of the first file that `start` and "*.exe" match. Without such a file it is `start` alone, which
    /// cannot be started.
    virtual std::string FirstProgram(const std::string& start) = 0;
};

}  // namespace draftwick::platform
