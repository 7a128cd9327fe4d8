#pragma once

#include "tests/support/FakeDesktop.h"

#include <draftwick/platform/Platform.h>

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace draftwick::test {

/// Files that live in memory, for one thread. There are no folders: a name is a name.
class MemoryFiles final : public platform::FileSystem, public std::enable_shared_from_this<MemoryFiles> {
public:
    std::string Bytes(const std::string& name) const { return *files_.at(name); }
    void Put(const std::string& name, std::string bytes) {
        files_[name] = std::make_shared<std::string>(std::move(bytes));
    }
    std::vector<std::string> Names() const;

    /// What a disk would have that was only told to write by Sync and SyncFolder; empty for nothing.
    std::string BytesAfterPowerCut(const std::string& name) const;

    /// Lets one operation fail, counted from 1 over every Create, OpenForReading, Write, Read, Seek, Sync, Close, Length,
    /// Delete, Rename and SyncFolder since the beginning. When it is a Write, the first `taken` bytes still get through. A Close that
    /// fails ends the use of the file nevertheless.
    void FailAt(int operation, std::errc error, std::size_t taken = 0);
    /// As FailAt, and nothing that comes after it does anything: as if the process had been killed.
    void StopAt(int operation, std::size_t taken);
    /// How many operations there were.
    int Operations() const { return operations_; }

    /// A locked file cannot be deleted or overwritten: std::errc::device_or_resource_busy.
    void Lock(const std::string& name) { locked_.insert(name); }

    /// What a program's own files may leave to the base class, which cannot do it.
    enum class Ability { None, Seek, Sync, SyncFolder };
    void BeWithout(Ability ability) { missing_ = ability; }

    /// How many files are open.
    int OpenFiles() const { return open_; }

    std::unique_ptr<platform::File> Create(const std::string& name, platform::Creation mode,
                                           std::error_code& error) override;
    std::unique_ptr<platform::File> OpenForReading(const std::string& name, std::error_code& error) override;
    bool Exists(const std::string& name) override { return files_.contains(name); }
    std::uint64_t Length(const std::string& name, std::error_code& error) override;
    void Delete(const std::string& name, std::error_code& error) override;
    bool CanReplace(const std::string&) override { return true; }
    void Rename(const std::string& from, const std::string& to, std::error_code& error) override;
    void SyncFolder(const std::string& folder, std::error_code& error) override;
    std::string FullName(const std::string& name) override { return name; }
    char Separator() const override { return '/'; }

private:
    class OpenFile;
    using Content = std::shared_ptr<std::string>;

    /// Counts an operation and gives its error if it is the one to fail.
    std::error_code Count();
    Content Find(const std::string& name, std::error_code& error);

    std::map<std::string, Content> files_;
    std::map<std::string, Content> syncedNames_;
    std::map<Content, std::string> synced_;
    std::set<std::string> locked_;
    int operations_ = 0;
    int open_ = 0;
    int failing_ = 0;
    bool stops_ = false;
    Ability missing_ = Ability::None;
    std::errc failure_{};
    std::size_t taken_ = 0;
};

class FakeEnvironment final : public platform::Environment {
public:
    std::string tempFolder = "/temp";
    std::string TempFolder() override { return tempFolder; }
};

/// A platform with these files, a FakeEnvironment, a FakeDesktop on which there is nothing and the system's pictures
/// service.
platform::Platform MakeFakePlatform(std::shared_ptr<MemoryFiles> files);
platform::Platform MakeFakePlatform(std::shared_ptr<MemoryFiles> files,
                                    std::shared_ptr<FakeEnvironment> environment);
platform::Platform MakeFakePlatform(std::shared_ptr<MemoryFiles> files, std::shared_ptr<FakeDesktop> desktop);

}  // namespace draftwick::test
