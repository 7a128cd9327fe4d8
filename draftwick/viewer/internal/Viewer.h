#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/model/Object.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/viewer/AutomationObject.h>
#include <draftwick/viewer/ViewerKind.h>

#include <cstdint>
#include <memory>
#include <string>

namespace draftwick::detail {

/// Hands a finished document to a program that shows or prints it, and keeps which one it was. Never closes it.
class Viewer {
public:
    explicit Viewer(const platform::Platform& services) : platform_(services) {}

    /// Shows or prints `file`, as Document::Preview and PrintOut say, and returns what was used. `owner` is for the
    /// object that App then gives.
    dwViewer RunViewer(const Origin& owner, const std::string& file, dwViewer program, bool printIt);

    /// The word processor of the last call; empty if it used none.
    const std::shared_ptr<AutomationObject>& App() const noexcept { return app_; }
    /// The task of the viewer program of the last call; 0 if it used none.
    std::int32_t TaskID() const noexcept { return taskId_; }

private:
    using Word = std::shared_ptr<platform::AutomationObject>;
    struct Request {
        const Origin& owner;
        const std::string& file;
        bool printIt;
    };

    dwViewer ViewWithAnyViewer(const Request& request);
    void ViewWithWord97(const Request& request) { ViewWithWord(request, '8'); }
    void ViewWithWord2000(const Request& request) { ViewWithWord(request, '9'); }
    void ViewWithWord(const Request& request, char majorVersion);
    Word GetWordApplication(bool forceNew, char majorVersion);
    void ViewWithWordViewer97(const Request& request);
    std::string FindViewerCommand() const;
    std::string ProgramIn(const std::string& folder) const;

    const platform::Platform& platform_;
    std::shared_ptr<AutomationObject> app_;
    std::int32_t taskId_ = 0;
    bool wordStartedHere_ = false;  // the word processor in use was started on explicit request
};

}  // namespace draftwick::detail
