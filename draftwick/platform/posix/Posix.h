#pragma once

#include <draftwick/platform/FileSystem.h>

#include <memory>

namespace draftwick::platform::posix {

std::shared_ptr<FileSystem> MakeFileSystem();

}  // namespace draftwick::platform::posix
