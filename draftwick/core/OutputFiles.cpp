#include <draftwick/base/Error.h>
#include <draftwick/base/internal/Required.h>
#include <draftwick/core/internal/OnePassFile.h>
#include <draftwick/core/internal/OutputFiles.h>
#include <draftwick/core/internal/Writers.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/rtf/FileInMemory.h>
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
        if (at == 0) {
            RaiseRuntimeError(dwRunInvalidCall, "a file name has at least four characters",
                              "Document.Filename '" + name
                                  + "': give a name with an extension, as in 'a.rtf'");
        }
        do {
            --at;
        } while (at > 0 && (static_cast<unsigned char>(name[at]) & 0xC0) == 0x80);
    }
    return name[at] == '.' ? at : name.size();
}

std::string TempFolder(const Session& session) {
    return Required(session.platform.environment, "environment").TempFolder();
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

/// A sink as a file. What the sink throws is kept, and from then on it is left in peace.
class SinkFile final : public platform::File {
public:
    SinkFile(const Sink& sink, std::exception_ptr& thrown) : sink_(sink), thrown_(thrown) {}

    std::size_t Write(const char* bytes, std::size_t size, std::error_code& error) override {
        return Try(error, [&] { sink_.write({bytes, size}); }) ? size : 0;
    }
    std::size_t Read(char*, std::size_t, std::error_code&) override { return 0; }
    void Close(std::error_code& error) override {
        Try(error, [&] {
            if (sink_.end) sink_.end();
        });
    }

private:
    template <class Action>
    bool Try(std::error_code& error, const Action& action) noexcept {
        error.clear();
        if (thrown_ == nullptr) {
            try {
                action();
                return true;
            } catch (...) {
                thrown_ = std::current_exception();
            }
        }
        error = std::make_error_code(std::errc::io_error);
        return false;
    }

    const Sink& sink_;
    std::exception_ptr& thrown_;
};

}  // namespace

OutputFiles::OutputFiles() = default;
OutputFiles::~OutputFiles() = default;

void OutputFiles::LetGo() noexcept {
    try {
        if (body_ != nullptr) body_->Close();
    } catch (...) {  // nobody is left to hear of it
    }
}

void OutputFiles::OpenBody(Session& session) {
    if (session.settings.bodyInMemory) {
        memory_ = std::make_unique<FileInMemory>();
        std::error_code none;
        UniqueFile body{"(memory)", memory_->Create({}, platform::Creation::Exclusive, none)};
        SetBody(*memory_, body, body.name);
    } else if (!OpenOnePass(session)) {
        platform::FileSystem& files = Required(session.platform.files, "files");
        const std::string& chosen = session.settings.tempPath;
        UniqueFile body = CreateUniqueFile(files, chosen.empty() ? TempFolder(session) : chosen, "~dw",
                                           ".tmp", platform::Creation::ExclusivePrivate);
        SetBody(files, body, body.name);
    }
    session.writer.output.SetStream(body_.get());
}

/// The output's own temporary file for the body, where that can become the output. A folder that is not there, or not
/// yet, is reported by Finish, as always.
bool OutputFiles::OpenOnePass(Session& session) {
    const DocumentSettings& settings = session.settings;
    if (settings.spelling != dwSpellingStandard || settings.filename.empty() || !settings.tempPath.empty())
        return false;
    platform::FileSystem& files = Required(session.platform.files, "files");
    if (!files.CanReplace(settings.filename)) return false;
    const std::string folder = FolderOf(files, settings.filename);
    auto onePass = std::make_unique<OnePassFile>([this, &session] { return Header(session); }, gap_);
    try {
        UniqueFile file = CreateUniqueFile(files, folder, "~dwout", ".tmp", platform::Creation::Exclusive);
        std::error_code error;
        file.file->Seek(0, error);
        if (error) {  // a file that cannot go back to its header
            file.file.reset();
            files.Delete(file.name, error);
            return false;
        }
        onePass->Open(std::move(file.file));
        OnePassFile* const opened = onePass.get();
        file.file = std::move(onePass);
        SetBody(files, file, settings.filename);
        onePass_ = opened;
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

/// Failures are reported with the name that the host knows.
void OutputFiles::SetBody(platform::FileSystem& files, UniqueFile& file, const std::string& knownName) {
    try {
        std::string fullName = files.FullName(file.name);
        body_ = std::make_unique<BlockWriter>(std::move(file.file), knownName);
        bodyFileName_ = std::move(fullName);
    } catch (...) {
        file.file.reset();
        std::error_code ignored;
        files.Delete(file.name, ignored);
        throw;
    }
    bodyFiles_ = &files;
}

void OutputFiles::EndBody(Session& session) {
    body_->Checkpoint();
    if (!ended_) {
        session.writer.CloseGroup();
        session.writer.output.FlushLine();
        ended_ = true;
    }
    session.writer.output.SetStream(nullptr);
    if (onePass_ == nullptr && body_->Written() != 0) body_->Close();
}

void OutputFiles::DeleteBody() {
    body_->CloseUnwritten();
    std::error_code error;
    if (!bodyFileName_.empty()) bodyFiles_->Delete(bodyFileName_, error);
    if (error && error != std::errc::no_such_file_or_directory)
        RaiseFileError(error, "delete", bodyFileName_);
}

std::error_code OutputFiles::Discard() noexcept {
    std::error_code error;
    body_.reset();
    if (bodyFiles_ == nullptr) return error;
    bodyFiles_->Delete(bodyFileName_, error);
    if (error == std::errc::no_such_file_or_directory) error.clear();
    return error;
}

void OutputFiles::AssembleOutputFile(Session& session) {
    EndBody(session);
    platform::FileSystem& files = Required(session.platform.files, "files");
    if (actualFileName_.empty()) actualFileName_ = CreateOutputFile(session);
    if (fullFileName_.empty()) fullFileName_ = files.FullName(actualFileName_);
    if (session.settings.durable && files.CanReplace(actualFileName_)) {
        const std::string folder = FolderOf(files, fullFileName_);
        std::error_code error;
        files.SyncFolder(folder, error);
        if (error) RaiseFileError(error, "write", folder);
    }
    DeleteBody();
}

void OutputFiles::AssembleInto(Session& session, const Sink& sink) {
    EndBody(session);
    if (onePass_ != nullptr && body_->Written() != 0) body_->Close();
    onePass_ = nullptr;
    // All of the header first: a host's code must not run while its tables are walked.
    const std::string header = Header(session);
    std::exception_ptr thrown;
    try {
        const std::unique_ptr<platform::File> body = ReopenBody();
        WriteOutput(header, body.get(), {std::make_unique<SinkFile>(sink, thrown), "(stream)"}, false);
    } catch (...) {
        if (thrown != nullptr) std::rethrow_exception(thrown);
        throw;
    }
    DeleteBody();
}

/// Returns its name.
std::string OutputFiles::CreateOutputFile(Session& session) {
    platform::FileSystem& files = Required(session.platform.files, "files");
    const std::string& name = session.settings.filename;
    const bool durable = session.settings.durable;
    const std::size_t extension = name.empty() ? 0 : FindExtension(name);
    const std::string header = Header(session);
    if (CompleteOnePass(files, header, name, durable)) {
        std::string given = GiveName(files, bodyFileName_, name, extension);
        bodyFileName_.clear();
        return given;
    }
    const std::unique_ptr<platform::File> body = ReopenBody();
    if (!name.empty() && !files.CanReplace(name)) {
        std::error_code error;
        auto file = files.Create(name, platform::Creation::Overwrite, error);
        if (file == nullptr) RaiseFileError(error, "create", name);
        WriteOutput(header, body.get(), {std::move(file), name}, false);
        return name;
    }
    // The folder of a file that has no name yet is the environment's, not TempPath.
    const std::string folder = name.empty() ? TempFolder(session) : FolderOf(files, name);
    UniqueFile file = CreateTemporary(files, folder, name);
    try {
        // The host knows the file by the name that it gave.
        WriteOutput(header, body.get(), {std::move(file.file), name.empty() ? file.name : name}, durable);
        return name.empty() ? GiveNewName(files, file.name, folder)
                            : GiveName(files, file.name, name, extension);
    } catch (...) {
        std::error_code ignored;
        files.Delete(file.name, ignored);
        throw;
    }
}

/// Makes the body's file the whole output, if it is one that can be. That is tried once: after a failure, the body is
/// copied.
bool OutputFiles::CompleteOnePass(platform::FileSystem& files, const std::string& header,
                                  const std::string& name, bool durable) {
    if (onePass_ == nullptr) return false;
    OnePassFile& file = *std::exchange(onePass_, nullptr);
    const bool fits =
        !name.empty() && FolderOf(files, name) == FolderOf(files, bodyFileName_) && file.SetHeader(header);
    if (fits || body_->Written() != 0) body_->Close(fits && durable);
    return fits;
}

/// Empty when the body is in memory still.
std::unique_ptr<platform::File> OutputFiles::ReopenBody() const {
    if (body_->Written() == 0) return nullptr;
    std::error_code error;
    auto file = bodyFiles_->OpenForReading(bodyFileName_, error);
    if (file == nullptr) RaiseFileError(error, "read", bodyFileName_);
    return file;
}

/// Everything that stands before the body.
std::string OutputFiles::Header(const Session& session) {
    RtfWriter writer = session.writer.ForHeader();
    RegisterHeaderColors(writer, session.settings);
    writer.output.Keep();
    EmitHeader(writer, session.settings);
    lostInHeader_ = writer.output.Lost();
    return writer.output.TakeKept();
}

void OutputFiles::WriteOutput(const std::string& header, platform::File* body, BlockWriter output,
                              bool durable) {
    output.Append(header.data(), header.size());
    if (body != nullptr) {
        output.Checkpoint();
        output.AppendFile(*body, bodyFileName_, gap_, body_->Written());
    } else {
        output.Append(body_->Kept().data(), body_->Kept().size());
    }
    output.Close(durable);
}

}  // namespace draftwick
