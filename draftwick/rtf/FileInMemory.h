#pragma once

#include <draftwick/platform/FileSystem.h>

#include <string>
#include <utility>

namespace draftwick {

/// A file system with one file, which lives in memory and has every name. Writing beyond what memory there is gives
/// std::errc::not_enough_memory.
class FileInMemory final : public platform::FileSystem {
public:
    explicit FileInMemory(std::string bytes = {}) : bytes_(std::move(bytes)) {}

    const std::string& Bytes() const noexcept { return bytes_; }

    std::unique_ptr<platform::File> Create(const std::string& name, platform::Creation mode,
                                           std::error_code& error) override;
    std::unique_ptr<platform::File> OpenForReading(const std::string& name, std::error_code& error) override;
    bool Exists(const std::string&) override { return true; }
    std::uint64_t Length(const std::string&, std::error_code& error) override;
    void Delete(const std::string& name, std::error_code& error) override;
    bool CanReplace(const std::string&) override { return true; }
    void Rename(const std::string&, const std::string&, std::error_code& error) override { error.clear(); }
    std::string FullName(const std::string& name) override { return name; }
    char Separator() const override { return '/'; }

private:
    class Open;

    std::string bytes_;
};

}  // namespace draftwick
