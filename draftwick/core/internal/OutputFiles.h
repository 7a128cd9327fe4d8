#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/rtf/BlockWriter.h>

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace draftwick {
class FileInMemory;
}

namespace draftwick::detail {

class Session;

/// Where a host wants a document to go in place of a file. What it throws is the host's.
struct Sink {
    std::function<void(std::string_view)> write;
    std::function<void()> end;  // after the last bytes; can be empty
};

/// The two files of a document: the temporary file, or the memory, that the body goes to while the document is built,
/// and the file or sink that gets the whole.
class OutputFiles {
public:
    OutputFiles();
    /// Closes the body file of a document that was let go, with the lines that it had written. Nothing fails.
    ~OutputFiles();
    OutputFiles(const OutputFiles&) = delete;
    OutputFiles& operator=(const OutputFiles&) = delete;

    /// Creates the body file and lets the output go there. Changes nothing when it fails.
    void OpenBody(Session& session);

    /// Ends the body, writes the header and the body to the output file and deletes the body file. When it fails it
    /// can be called again. The file gets its name when it is complete: until then an old one stays what it was.
    void AssembleOutputFile(Session& session);
    /// The same to a sink. It may do with the document what it likes while it is called.
    void AssembleInto(Session& session, const Sink& sink);
    /// Gives the body up.
    std::error_code Discard() noexcept;

    /// Whether the brace that closes the document is written.
    bool Ended() const noexcept { return ended_; }
    const std::string& ActualFileName() const noexcept { return actualFileName_; }
    /// The same file by the name that finds it whatever the current folder is by now.
    const std::string& FullFileName() const noexcept { return fullFileName_; }
    const std::string& BodyFileName() const noexcept { return bodyFileName_; }
    /// How many characters of the header the file could not hold.
    std::uint64_t LostInHeader() const noexcept { return lostInHeader_; }

private:
    void EndBody(Session& session);
    void DeleteBody();
    std::string CreateOutputFile(Session& session);
    void WriteHeader(Session& session, BlockWriter& output);
    void WriteOutput(Session& session, platform::File& body, BlockWriter output);

    std::unique_ptr<FileInMemory> memory_;
    platform::FileSystem* bodyFiles_ = nullptr;  // where the body is
    std::unique_ptr<BlockWriter> body_;
    std::string bodyFileName_;
    std::uint64_t lostInHeader_ = 0;
    std::string actualFileName_;
    std::string fullFileName_;
    bool ended_ = false;
};

}  // namespace draftwick::detail
