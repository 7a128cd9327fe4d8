#include <draftwick/base/Error.h>
#include <draftwick/rtf/BlockWriter.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace draftwick {

void RaiseFileError(std::error_code error, std::string_view action, const std::string& name) {
    if (error == std::errc::not_enough_memory) throw std::bad_alloc();
    std::string what = "cannot ";
    what += action;
    what += " '" + name + "'";
    throw FileError(error, what, name);
}

BlockWriter::BlockWriter(std::unique_ptr<platform::File> file, std::string name)
    : file_(std::move(file)), name_(std::move(name)), block_(new char[BlockSize]), capacity_(BlockSize) {}

void BlockWriter::AppendLarge(const char* bytes, std::size_t size) {
    const std::size_t fits = capacity_ - used_;
    std::memcpy(block_.get() + used_, bytes, fits);
    used_ += fits;
    bytes += fits;
    size -= fits;
    Flush();
    if (used_ == 0 && size >= capacity_) {
        // A text longer than a block goes straight to the file.
        const std::size_t done = file_->Write(bytes, size, failure_);
        written_ += done;
        bytes += done;
        size -= done;
    }
    if (size > capacity_ - used_) {
        // The file takes nothing at the moment: keep all of it.
        const std::size_t larger = std::max(capacity_ * 2, used_ + size);
        std::unique_ptr<char[]> grown(new char[larger]);
        std::memcpy(grown.get(), block_.get(), used_);
        block_ = std::move(grown);
        capacity_ = larger;
    }
    std::memcpy(block_.get() + used_, bytes, size);
    used_ += size;
}

void BlockWriter::AppendFile(platform::File& source, const std::string& sourceName,
                             std::uint64_t skipped, std::uint64_t expectedSize) {
    std::uint64_t total = 0;
    for (;;) {
        if (used_ == capacity_) {
            Flush();
            Report();
        }
        std::error_code error;
        const std::size_t size = source.Read(block_.get() + used_, capacity_ - used_, error);
        if (error) RaiseFileError(error, "read", sourceName);
        if (size == 0) break;
        const auto passed = static_cast<std::size_t>(std::min<std::uint64_t>(skipped, size));
        std::memmove(block_.get() + used_, block_.get() + used_ + passed, size - passed);
        skipped -= passed;
        used_ += size - passed;
        total += size - passed;
    }
    if (total != expectedSize) {
        RaiseFileError(std::make_error_code(std::errc::io_error), "read all of", sourceName);
    }
}

void BlockWriter::Flush() noexcept {
    std::error_code error;
    const std::size_t done = file_->Write(block_.get(), used_, error);
    std::memmove(block_.get(), block_.get() + done, used_ - done);
    used_ -= done;
    written_ += done;
    if (error) failure_ = error;
}

void BlockWriter::Report() {
    const std::error_code failure = std::exchange(failure_, {});
    if (failure) RaiseFileError(failure, "write", name_);
}

void BlockWriter::RetryAndReport() {
    // More than a block is kept only after a failure; try again before anything new is promised.
    if (!failure_ && used_ > BlockSize) Flush();
    Report();
}

void BlockWriter::Close(bool durable) {
    if (file_ == nullptr) return;
    Flush();
    Report();
    std::error_code error;
    if (durable) file_->Sync(error);
    if (error) RaiseFileError(error, "write", name_);
    file_->Close(error);
    file_.reset();
    if (error) RaiseFileError(error, "close", name_);
}

}  // namespace draftwick
