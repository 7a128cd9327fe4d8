#pragma once

#include <draftwick/platform/Platform.h>

#include <ctime>
#include <memory>

namespace draftwick::platform {

// What each system has of its own, in posix/ and windows/.

std::shared_ptr<FileSystem> MakeFileSystem();
std::shared_ptr<Environment> MakeEnvironment();
std::shared_ptr<RegistryStore> MakeRegistryStore();
std::shared_ptr<Automation> MakeAutomation();
std::shared_ptr<Programs> MakePrograms();
EventLog& SystemEventLog();
std::tm LocalTime(std::time_t time);

}  // namespace draftwick::platform
