#include <draftwick/base/Error.h>
#include <draftwick/core/internal/OutputFiles.h>
#include <draftwick/core/internal/Writers.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/rtf/UniqueFile.h>

#include <string>
#include <system_error>
#include <utility>

namespace draftwick {

namespace {

/// Where the extension of a file name begins: its last four characters, if they begin with a point.
std::size_t FindExtension(const std::string& name) {
    std::size_t at = name.size();
    for (int characters = 0; characters < 4; ++characters) {
        if (at == 0) RaiseRuntimeError(dwRunInvalidCall, "a file name has at least four characters");
        do {
            --at;
        } while (at > 0 && (static_cast<unsigned char>(name[at]) & 0xC0) == 0x80);
    }
    return name[at] == '.' ? at : name.size();
}

std::unique_ptr<platform::File> Open(Session& session, const std::string& name) {
    std::error_code error;
    auto file = session.platform.files->OpenForReading(name, error);
    if (file == nullptr) RaiseFileError(error, "read", name);
    return file;
}

void Delete(Session& session, const std::string& name) {
    std::error_code error;
    session.platform.files->Delete(name, error);
    if (error && error != std::errc::no_such_file_or_directory) RaiseFileError(error, "delete", name);
}

std::string FolderOf(platform::FileSystem& files, const std::string& name) {
    const std::string full = files.FullName(name);
    const std::size_t end = full.rfind(files.Separator());
    return end == full.npos ? "." : full.substr(0, end);
}

/// A file that is going to be `name`, in its folder. The host knows its own name only, so failures have that.
UniqueFile CreateTemporary(platform::FileSystem& files, const std::string& folder, const std::string& name) {
    try {
        return CreateUniqueFile(files, folder, "~dwout", ".tmp", platform::Creation::Exclusive);
    } catch (const std::system_error& failure) {
        if (name.empty()) throw;
        RaiseFileError(failure.code(), "create", name);
    }
}

/// Gives the file the name, in place of an old file. If that cannot be replaced, it is in use: then a number goes
/// before the extension. Returns the name.
std::string GiveName(platform::FileSystem& files, const std::string& file, const std::string& name,
                     std::size_t extension) {
    std::string candidate = name;
    for (int counter = 1;; ++counter) {
        std::error_code error;
        files.Rename(file, candidate, error);
        if (!error) return candidate;
        if (!files.Exists(candidate)) RaiseFileError(error, "create", candidate);
        candidate = name.substr(0, extension) + std::to_string(counter) + name.substr(extension);
    }
}

/// Gives the file a name that nobody has.
std::string GiveNewName(platform::FileSystem& files, const std::string& file, const std::string& folder) {
    UniqueFile taken = CreateUniqueFile(files, folder, "Draftwick", "rtf", platform::Creation::Exclusive);
    std::error_code error;
    taken.file->Close(error);
    if (!error) files.Rename(file, taken.name, error);
    if (error) {
        std::error_code ignored;
        files.Delete(taken.name, ignored);
        RaiseFileError(error, "create", taken.name);
    }
    return taken.name;
}

/// Lets the output go to another file as long as it lives.
class Redirection {
public:
    Redirection(Output& output, BlockWriter* stream) : output_(output), before_(output.SetStream(stream)) {}
    ~Redirection() { output_.SetStream(before_); }
    Redirection(const Redirection&) = delete;
    Redirection& operator=(const Redirection&) = delete;

private:
    Output& output_;
    BlockWriter* before_;
};

}  // namespace

OutputFiles::~OutputFiles() {
    try {
        if (body_ != nullptr) body_->Close();
    } catch (...) {  // nobody is left to hear of it
    }
}

void OutputFiles::OpenBody(Session& session) {
    const std::string& chosen = session.settings.tempPath;
    UniqueFile body = CreateUniqueFile(*session.platform.files,
                                       chosen.empty() ? session.platform.environment->TempFolder() : chosen,
                                       "~dw", ".tmp", platform::Creation::ExclusivePrivate);
    std::string fullName = session.platform.files->FullName(body.name);
    body_ = std::make_unique<BlockWriter>(std::move(body.file), std::move(body.name));
    bodyFileName_ = std::move(fullName);
    session.writer.output.SetStream(body_.get());
}

void OutputFiles::AssembleOutputFile(Session& session) {
    session.writer.output.Checkpoint();
    if (!ended_) {
        session.writer.CloseGroup();
        session.writer.output.FlushLine();
        ended_ = true;
    }
    body_->Close();
    session.writer.output.SetStream(nullptr);
    if (actualFileName_.empty()) {
        std::string name = CreateOutputFile(session);
        fullFileName_ = session.platform.files->FullName(name);
        actualFileName_ = std::move(name);
    }
    Delete(session, bodyFileName_);
}

/// Returns its name.
std::string OutputFiles::CreateOutputFile(Session& session) {
    platform::FileSystem& files = *session.platform.files;
    const std::string& name = session.settings.filename;
    const std::size_t extension = name.empty() ? 0 : FindExtension(name);
    const std::unique_ptr<platform::File> body = Open(session, bodyFileName_);
    RegisterHeaderColors(session.writer, session.settings);
    if (!name.empty() && !files.CanReplace(name)) {
        std::error_code error;
        auto file = files.Create(name, platform::Creation::Overwrite, error);
        if (file == nullptr) RaiseFileError(error, "create", name);
        WriteOutput(session, *body, {std::move(file), name});
        return name;
    }
    // The folder of a file that has no name yet is the environment's, not TempPath.
    const std::string folder =
        name.empty() ? session.platform.environment->TempFolder() : FolderOf(files, name);
    UniqueFile file = CreateTemporary(files, folder, name);
    try {
        // The host knows the file by the name that it gave.
        WriteOutput(session, *body, {std::move(file.file), name.empty() ? file.name : name});
        return name.empty() ? GiveNewName(files, file.name, folder)
                            : GiveName(files, file.name, name, extension);
    } catch (...) {
        std::error_code ignored;
        files.Delete(file.name, ignored);
        throw;
    }
}

void OutputFiles::WriteOutput(Session& session, platform::File& body, BlockWriter output) {
    {
        const Redirection redirection(session.writer.output, &output);
        EmitHeader(session.writer, session.settings);
    }
    output.Checkpoint();
    output.AppendFile(body, bodyFileName_, body_->Written());
    output.Close();
}

}  // namespace draftwick
