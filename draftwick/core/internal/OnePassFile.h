#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/platform/FileSystem.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace draftwick::detail {

/// The file of a document that goes over the disk once: the body stands behind a gap, and when all of the header is
/// known, it goes into the gap. What it leaves of that is filled with line ends, which RTF ignores between words.
class OnePassFile final : public platform::File {
public:
    /// Gives the header as far as it is known.
    using HeaderSoFar = std::function<std::string()>;

    /// The gap is as wide as the header is when the first bytes of the body arrive, and more. `gap` tells how wide, and is 0
    /// before.
    OnePassFile(HeaderSoFar header, std::uint64_t& gap) : headerSoFar_(std::move(header)), gap_(gap) {}

    /// Everything is written here. Before the first Write.
    void Open(std::unique_ptr<platform::File> file) noexcept { file_ = std::move(file); }
    /// The whole header, which is written when the file is closed. False when it does not fit.
    bool SetHeader(std::string header);

    std::size_t Write(const char* bytes, std::size_t size, std::error_code& error) override;
    std::size_t Read(char*, std::size_t, std::error_code&) override { return 0; }
    void Sync(std::error_code& error) override;
    void Close(std::error_code& error) override;

private:
    void WriteHeader(std::error_code& error);

    HeaderSoFar headerSoFar_;
    std::uint64_t& gap_;
    std::unique_ptr<platform::File> file_;
    std::string front_;   // of what stands before the body, what is not written yet
    std::string header_;  // what is to be written over the gap
};

}  // namespace draftwick::detail
