#include <draftwick/platform/FileSystem.h>

namespace draftwick::platform {

void File::Seek(std::uint64_t, std::error_code& error) {
    error = std::make_error_code(std::errc::not_supported);
}

void File::Sync(std::error_code& error) { error = std::make_error_code(std::errc::not_supported); }

void FileSystem::SyncFolder(const std::string&, std::error_code& error) {
    error = std::make_error_code(std::errc::not_supported);
}

}  // namespace draftwick::platform
