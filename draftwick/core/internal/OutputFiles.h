#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/rtf/BlockWriter.h>

#include <memory>
#include <string>

namespace draftwick::detail {

class Session;

/// The two files of a document: the temporary file that the body goes to while the document is built, and the file
/// that Finish makes of it.
class OutputFiles {
public:
    OutputFiles() = default;
    /// Closes the body file of a document that was let go, with the lines that it had written. Nothing fails.
    ~OutputFiles();
    OutputFiles(const OutputFiles&) = delete;
    OutputFiles& operator=(const OutputFiles&) = delete;

    /// Creates the body file and lets the output go there. Changes nothing when it fails.
    void OpenBody(Session& session);

    /// Ends the body, writes the header and the body to the output file and deletes the body file. When it fails it
    /// can be called again. The file gets its name when it is complete: until then an old one stays what it was.
    void AssembleOutputFile(Session& session);

    /// Whether the brace that closes the document is written.
    bool Ended() const noexcept { return ended_; }
    const std::string& ActualFileName() const noexcept { return actualFileName_; }
    /// The same file by the name that finds it whatever the current folder is by now.
    const std::string& FullFileName() const noexcept { return fullFileName_; }

private:
    std::string CreateOutputFile(Session& session);
    void WriteOutput(Session& session, platform::File& body, BlockWriter output);

    std::unique_ptr<BlockWriter> body_;
    std::string bodyFileName_;
    std::string actualFileName_;
    std::string fullFileName_;
    bool ended_ = false;
};

}  // namespace draftwick::detail
