#pragma once

#include <draftwick/platform/Environment.h>
#include <draftwick/platform/EventLog.h>
#include <draftwick/platform/FileSystem.h>

#include <memory>

namespace draftwick::platform {

/// The services of the system that a document uses. A host can put its own in their place, for example files
/// that live in memory; every service must be set.
struct Platform {
    std::shared_ptr<FileSystem> files;
    std::shared_ptr<Environment> environment;
};

/// The system's own services. They hold no state and can be used from any thread.
Platform SystemPlatform();

/// The system's event log, used by LogError.
EventLog& SystemEventLog();

}  // namespace draftwick::platform
