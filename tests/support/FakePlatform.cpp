#include "tests/support/FakePlatform.h"

#include <algorithm>
#include <utility>

namespace draftwick::test {

class MemoryFiles::OpenFile final : public platform::File {
public:
    OpenFile(std::shared_ptr<MemoryFiles> files, Content content)
        : files_(std::move(files)), content_(std::move(content)) {
        ++files_->open_;
    }
    ~OpenFile() override { Release(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::size_t Write(const char* bytes, std::size_t size, std::error_code& error) override {
        error = files_->Count();
        const std::size_t taken = error ? std::min(size, files_->taken_) : size;
        content_->replace(position_, std::min(taken, content_->size() - position_), bytes, taken);
        position_ += taken;
        return taken;
    }

    std::size_t Read(char* bytes, std::size_t size, std::error_code& error) override {
        error = files_->Count();
        const std::size_t taken = error ? 0 : content_->copy(bytes, size, position_);
        position_ += taken;
        return taken;
    }

    void Close(std::error_code& error) override {
        error.clear();
        if (!content_) return;
        error = files_->Count();
        Release();
    }

    void Seek(std::uint64_t position, std::error_code& error) override {
        if (files_->missing_ == Ability::Seek) return File::Seek(position, error);
        error = files_->Count();
        if (!error) position_ = static_cast<std::size_t>(position);
    }

    void Sync(std::error_code& error) override {
        if (files_->missing_ == Ability::Sync) return File::Sync(error);
        error = files_->Count();
        if (!error) files_->synced_[content_] = *content_;
    }

private:
    void Release() {
        if (content_) --files_->open_;
        content_.reset();
    }

    std::shared_ptr<MemoryFiles> files_;
    Content content_;
    std::size_t position_ = 0;
};

void MemoryFiles::SyncFolder(const std::string& folder, std::error_code& error) {
    if (missing_ == Ability::SyncFolder) return FileSystem::SyncFolder(folder, error);
    error = Count();
    if (!error) syncedNames_ = files_;
}

std::string MemoryFiles::BytesAfterPowerCut(const std::string& name) const {
    const auto file = syncedNames_.find(name);
    const auto bytes = file == syncedNames_.end() ? synced_.end() : synced_.find(file->second);
    return bytes == synced_.end() ? "" : bytes->second;
}

std::vector<std::string> MemoryFiles::Names() const {
    std::vector<std::string> names;
    for (const auto& file : files_) names.push_back(file.first);
    return names;
}

void MemoryFiles::FailAt(int operation, std::errc error, std::size_t taken) {
    failing_ = operation;
    failure_ = error;
    taken_ = taken;
}

void MemoryFiles::StopAt(int operation, std::size_t taken) {
    FailAt(operation, std::errc::io_error, taken);
    stops_ = true;
}

std::error_code MemoryFiles::Count() {
    ++operations_;
    const bool stopped = stops_ && operations_ > failing_;
    if (stopped) taken_ = 0;
    return stopped || operations_ == failing_ ? std::make_error_code(failure_) : std::error_code();
}

MemoryFiles::Content MemoryFiles::Find(const std::string& name, std::error_code& error) {
    error = Count();
    if (error) return nullptr;
    const auto found = files_.find(name);
    if (found != files_.end()) return found->second;
    error = std::make_error_code(std::errc::no_such_file_or_directory);
    return nullptr;
}

std::unique_ptr<platform::File> MemoryFiles::Create(const std::string& name, platform::Creation mode,
                                                    std::error_code& error) {
    error = Count();
    if (error) return nullptr;
    if (files_.contains(name) && mode != platform::Creation::Overwrite) {
        error = std::make_error_code(std::errc::file_exists);
        return nullptr;
    }
    if (locked_.contains(name)) {
        error = std::make_error_code(std::errc::device_or_resource_busy);
        return nullptr;
    }
    Put(name, {});
    return std::make_unique<OpenFile>(shared_from_this(), files_[name]);
}

std::unique_ptr<platform::File> MemoryFiles::OpenForReading(const std::string& name, std::error_code& error) {
    const Content content = Find(name, error);
    if (!content) return nullptr;
    return std::make_unique<OpenFile>(shared_from_this(), content);
}

std::uint64_t MemoryFiles::Length(const std::string& name, std::error_code& error) {
    const Content content = Find(name, error);
    return content ? content->size() : 0;
}

void MemoryFiles::Delete(const std::string& name, std::error_code& error) {
    if (!Find(name, error)) return;
    if (locked_.contains(name)) {
        error = std::make_error_code(std::errc::device_or_resource_busy);
    } else {
        files_.erase(name);
    }
}

void MemoryFiles::Rename(const std::string& from, const std::string& to, std::error_code& error) {
    const Content content = Find(from, error);
    if (!content) return;
    if (locked_.contains(to)) {
        error = std::make_error_code(std::errc::device_or_resource_busy);
    } else {
        files_[to] = content;
        files_.erase(from);
    }
}

platform::Platform MakeFakePlatform(std::shared_ptr<MemoryFiles> files) {
    return MakeFakePlatform(std::move(files), std::make_shared<FakeDesktop>());
}

platform::Platform MakeFakePlatform(std::shared_ptr<MemoryFiles> files,
                                    std::shared_ptr<FakeEnvironment> environment) {
    platform::Platform services = MakeFakePlatform(std::move(files));
    services.environment = std::move(environment);
    return services;
}

platform::Platform MakeFakePlatform(std::shared_ptr<MemoryFiles> files,
                                    std::shared_ptr<FakeDesktop> desktop) {
    return {
        .files = std::move(files),
        .environment = std::make_shared<FakeEnvironment>(),
        .pictures = platform::SystemPictures(),
        .registry = desktop,
        .automation = desktop,
        .programs = desktop,
    };
}

}  // namespace draftwick::test
