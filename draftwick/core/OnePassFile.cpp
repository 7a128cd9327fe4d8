#include <draftwick/core/internal/OnePassFile.h>

#include <string_view>
#include <utility>

namespace draftwick {

namespace {

/// What a header may grow by after the first block of the body: a colour takes some twenty bytes.
constexpr std::size_t Reserve = 2048;
/// Blocks of the body begin where those of the disk do.
constexpr std::size_t Page = 4096;

/// Makes the header so long. What is odd is a blank behind its first word, "{\rtf1", where it ends that and nothing else.
void FillWithLineEnds(std::string& header, std::size_t size) {
    header.reserve(size);
    if ((size - header.size()) % 2 != 0) header.insert(std::string_view{"{\\rtf1"}.size(), " ");
    while (header.size() < size) header += "\r\n";
}

}  // namespace

bool OnePassFile::SetHeader(std::string header) {
    if (gap_ == 0) {
        gap_ = header.size();
        front_ = std::move(header);
        return true;
    }
    if (header.size() > gap_) return false;
    FillWithLineEnds(header, static_cast<std::size_t>(gap_));
    header_ = std::move(header);
    return true;
}

std::size_t OnePassFile::Write(const char* bytes, std::size_t size, std::error_code& error) {
    error.clear();
    try {
        if (gap_ == 0) {
            front_ = headerSoFar_();
            FillWithLineEnds(front_, (front_.size() + Reserve + Page - 1) / Page * Page);
            gap_ = front_.size();
        }
        if (front_.empty()) return file_->Write(bytes, size, error);
        // In one go: it is all that there is of a small document.
        front_.reserve(front_.size() + size);
    } catch (...) {  // nothing else is refused here
        error = std::make_error_code(std::errc::not_enough_memory);
        return 0;
    }
    const std::size_t before = front_.size();
    const std::size_t done = file_->Write(front_.append(bytes, size).data(), before + size, error);
    front_.resize(before);
    front_.erase(0, done);
    if (front_.empty()) front_.shrink_to_fit();
    return done < before ? 0 : done - before;
}

void OnePassFile::WriteHeader(std::error_code& error) {
    error.clear();
    if (header_.empty()) return;
    file_->Seek(0, error);
    if (!error) file_->Write(header_.data(), header_.size(), error);
    if (!error) header_.clear();
}

void OnePassFile::Sync(std::error_code& error) {
    WriteHeader(error);
    if (!error) file_->Sync(error);
}

void OnePassFile::Close(std::error_code& error) {
    WriteHeader(error);
    if (!error) file_->Close(error);
}

}  // namespace draftwick
