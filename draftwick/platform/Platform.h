#pragma once

#include <draftwick/platform/Automation.h>
#include <draftwick/platform/Environment.h>
#include <draftwick/platform/EventLog.h>
#include <draftwick/platform/FileSystem.h>
#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/Programs.h>
#include <draftwick/platform/RegistryStore.h>

#include <ctime>
#include <memory>
#include <string>

namespace draftwick::platform {

/// The services of the system that a document uses. A program can put its own in their place, for example files
/// that live in memory. One that is empty is refused by the call that needs it.
struct Platform {
    std::shared_ptr<FileSystem> files{};         ///< all files of documents and pictures
    std::shared_ptr<Environment> environment{};  ///< where temporary files go
    std::shared_ptr<Pictures> pictures{};        ///< how pictures are read and converted
    std::shared_ptr<RegistryStore> registry{};   ///< where viewers are looked up
    std::shared_ptr<Automation> automation{};    ///< for Preview and PrintOut
    std::shared_ptr<Programs> programs{};        ///< likewise
};

/// The system's own services. They hold no state and can be used from any thread.
DRAFTWICK_API Platform SystemPlatform();

/// The event log that errors are recorded in: the system's, unless another one was set.
DRAFTWICK_API EventLog& CurrentEventLog();
/// Puts another event log in the place of the system's; nullptr puts the system's back. Not owned.
DRAFTWICK_API void SetEventLog(EventLog* log) noexcept;

/// Date and time of day where the process runs, as yyyy-mm-dd hh:mm:ss.
DRAFTWICK_API std::string LocalTimeText(std::time_t time);

}  // namespace draftwick::platform
