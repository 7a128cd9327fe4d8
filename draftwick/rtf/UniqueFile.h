#pragma once

#include <draftwick/platform/FileSystem.h>

#include <memory>
#include <string>
#include <string_view>

namespace draftwick {

/// A file that was created under a name that nobody had.
struct UniqueFile {
    std::string name;
    std::unique_ptr<platform::File> file;
};

/// Creates the first file of the names folder/prefix1.extension, folder/prefix2.extension, ... that does not exist.
/// Two processes that do this at the same time get two files. One separator at the end of the folder is dropped;
/// the extension gets its point if it has none. std::system_error when the file cannot be created.
UniqueFile CreateUniqueFile(platform::FileSystem& files, std::string folder, std::string_view prefix,
                            std::string_view extension, platform::Creation mode);

}  // namespace draftwick
