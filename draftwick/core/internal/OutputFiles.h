#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/rtf/BlockWriter.h>
#include <draftwick/rtf/UniqueFile.h>

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

class OnePassFile;

/// The two files of a document: the temporary file, or the memory, that the body goes to while the document is built,
/// and the file or sink that gets the whole. What fits in a block never goes to the temporary file. In the standard
/// spelling the two are one where the output has its name from the beginning: see OnePassFile.
class OutputFiles {
public:
    OutputFiles();
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
    /// Closes the body file of a document that was let go, with the lines that it had written. Nothing fails.
    void LetGo() noexcept;

    /// Whether the brace that closes the document is written.
    bool Ended() const noexcept { return ended_; }
    const std::string& ActualFileName() const noexcept { return actualFileName_; }
    /// The same file by the name that finds it whatever the current folder is by now.
    const std::string& FullFileName() const noexcept { return fullFileName_; }
    const std::string& BodyFileName() const noexcept { return bodyFileName_; }
    /// How many characters of the header the file could not hold.
    std::uint64_t LostInHeader() const noexcept { return lostInHeader_; }

private:
    bool OpenOnePass(Session& session);
    void SetBody(platform::FileSystem& files, UniqueFile& file, const std::string& knownName);
    void EndBody(Session& session);
    void DeleteBody();
    std::string CreateOutputFile(Session& session);
    bool CompleteOnePass(platform::FileSystem& files, const std::string& header, const std::string& name,
                         bool durable);
    std::unique_ptr<platform::File> ReopenBody() const;
    std::string Header(const Session& session);
    void WriteOutput(const std::string& header, platform::File* body, BlockWriter output, bool durable);

    std::unique_ptr<FileInMemory> memory_;
    platform::FileSystem* bodyFiles_ = nullptr;  // where the body is
    std::unique_ptr<BlockWriter> body_;
    OnePassFile* onePass_ = nullptr;  // the body's file, as long as it can become the output
    std::uint64_t gap_ = 0;           // so many bytes of the body file come before the body
    std::string bodyFileName_;        // empty when there is nothing to delete
    std::uint64_t lostInHeader_ = 0;
    std::string actualFileName_;
    std::string fullFileName_;
    bool ended_ = false;
};

}  // namespace draftwick::detail
