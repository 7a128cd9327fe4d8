#include <draftwick/rtf/BlockWriter.h>
#include <draftwick/rtf/UniqueFile.h>

namespace draftwick {

UniqueFile CreateUniqueFile(platform::FileSystem& files, std::string folder, std::string_view prefix,
                            std::string_view extension, platform::Creation mode) {
    if (!folder.empty() && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
    std::string start = folder + files.Separator();
    start += prefix;
    std::string end = extension.starts_with('.') ? "" : ".";
    end += extension;
    for (unsigned long number = 1;; ++number) {
        std::string name = start;
        name += std::to_string(number);
        name += end;
        std::error_code error;
        auto file = files.Create(name, mode, error);
        if (file != nullptr) return {std::move(name), std::move(file)};
        if (error != std::errc::file_exists) RaiseFileError(error, "create", name);
    }
}

}  // namespace draftwick
