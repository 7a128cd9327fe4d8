#pragma once

#include <draftwick/platform/Automation.h>
#include <draftwick/platform/FileSystem.h>
#include <draftwick/platform/Programs.h>
#include <draftwick/platform/RegistryStore.h>

#include <memory>
#include <string>

namespace draftwick::platform::posix {

std::shared_ptr<FileSystem> MakeFileSystem();
std::shared_ptr<RegistryStore> MakeRegistryStore();
std::shared_ptr<Automation> MakeAutomation();
std::shared_ptr<Programs> MakePrograms();

/// Whether a program of that name can be started.
bool IsProgram(const std::string& name);

}  // namespace draftwick::platform::posix
