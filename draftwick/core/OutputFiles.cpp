#include <draftwick/base/Error.h>
#include <draftwick/base/internal/Required.h>
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

std::unique_ptr<platform::File> Open(platform::FileSystem& files, const std::string& name) {
    std::error_code error;
    auto file = files.OpenForReading(name, error);
    if (file == nullptr) RaiseFileError(error, "read", name);
    return file;
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

OutputFiles::~OutputFiles() {
    try {
        if (body_ != nullptr) body_->Close();
    } catch (...) {  // nobody is left to hear of it
    }
}

void OutputFiles::OpenBody(Session& session) {
    if (session.settings.bodyInMemory) {
        memory_ = std::make_unique<FileInMemory>();
        std::error_code none;
        const std::string name = "(memory)";
        body_ =
            std::make_unique<BlockWriter>(memory_->Create(name, platform::Creation::Exclusive, none), name);
        bodyFiles_ = memory_.get();
        bodyFileName_ = name;
    } else {
        platform::FileSystem& files = Required(session.platform.files, "files");
        const std::string& chosen = session.settings.tempPath;
        UniqueFile body = CreateUniqueFile(files, chosen.empty() ? TempFolder(session) : chosen, "~dw",
                                           ".tmp", platform::Creation::ExclusivePrivate);
        try {
            std::string fullName = files.FullName(body.name);
            body_ = std::make_unique<BlockWriter>(std::move(body.file), body.name);
            bodyFileName_ = std::move(fullName);
        } catch (...) {
            body.file.reset();
            std::error_code ignored;
            files.Delete(body.name, ignored);
            throw;
        }
        bodyFiles_ = &files;
    }
    session.writer.output.SetStream(body_.get());
}

void OutputFiles::EndBody(Session& session) {
    session.writer.output.Checkpoint();
    if (!ended_) {
        session.writer.CloseGroup();
        session.writer.output.FlushLine();
        ended_ = true;
    }
    body_->Close();
    session.writer.output.SetStream(nullptr);
}

void OutputFiles::DeleteBody() {
    std::error_code error;
    bodyFiles_->Delete(bodyFileName_, error);
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
    if (actualFileName_.empty()) {
        std::string name = CreateOutputFile(session);
        fullFileName_ = Required(session.platform.files, "files").FullName(name);
        actualFileName_ = std::move(name);
    }
    DeleteBody();
}

void OutputFiles::AssembleInto(Session& session, const Sink& sink) {
    EndBody(session);
    RegisterHeaderColors(session.writer, session.settings);
    // All of the header first: a host's code must not run while its tables are walked.
    FileInMemory header;
    std::error_code none;
    BlockWriter memory(header.Create({}, platform::Creation::Exclusive, none), "(memory)");
    WriteHeader(session, memory);
    memory.Close();
    std::exception_ptr thrown;
    try {
        const std::unique_ptr<platform::File> body = Open(*bodyFiles_, bodyFileName_);
        BlockWriter output(std::make_unique<SinkFile>(sink, thrown), "(stream)");
        output.Append(header.Bytes().data(), header.Bytes().size());
        output.Checkpoint();
        output.AppendFile(*body, bodyFileName_, body_->Written());
        output.Close();
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
    const std::size_t extension = name.empty() ? 0 : FindExtension(name);
    const std::unique_ptr<platform::File> body = Open(*bodyFiles_, bodyFileName_);
    RegisterHeaderColors(session.writer, session.settings);
    if (!name.empty() && !files.CanReplace(name)) {
        std::error_code error;
        auto file = files.Create(name, platform::Creation::Overwrite, error);
        if (file == nullptr) RaiseFileError(error, "create", name);
        WriteOutput(session, *body, {std::move(file), name});
        return name;
    }
    // The folder of a file that has no name yet is the environment's, not TempPath.
    const std::string folder = name.empty() ? TempFolder(session) : FolderOf(files, name);
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

void OutputFiles::WriteHeader(Session& session, BlockWriter& output) {
    const Redirection redirection(session.writer.output, &output);
    const std::uint64_t before = session.writer.output.Lost();
    EmitHeader(session.writer, session.settings);
    lostInHeader_ = session.writer.output.Lost() - before;
    session.writer.output.SetLost(before);  // the header can be written again
}

void OutputFiles::WriteOutput(Session& session, platform::File& body, BlockWriter output) {
    WriteHeader(session, output);
    output.Checkpoint();
    output.AppendFile(body, bodyFileName_, body_->Written());
    output.Close();
}

}  // namespace draftwick
