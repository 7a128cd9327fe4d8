#include <draftwick/base/Error.h>
#include <draftwick/base/UniqueFile.h>
#include <draftwick/base/WritingContext.h>
#include <draftwick/core/DocumentWriter.h>
#include <draftwick/core/OutputFiles.h>

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

std::unique_ptr<platform::File> Open(WritingContext& context, const std::string& name) {
    std::error_code error;
    auto file = context.platform.files->OpenForReading(name, error);
    if (file == nullptr) RaiseFileError(error, "read", name);
    return file;
}

void Delete(WritingContext& context, const std::string& name) {
    std::error_code error;
    context.platform.files->Delete(name, error);
    if (error && error != std::errc::no_such_file_or_directory) RaiseFileError(error, "delete", name);
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

void OutputFiles::OpenBody(WritingContext& context) {
    const std::string& chosen = context.settings.tempPath;
    UniqueFile body = CreateUniqueFile(*context.platform.files,
                                       chosen.empty() ? context.platform.environment->TempFolder() : chosen,
                                       "~dw", ".tmp", platform::Creation::ExclusivePrivate);
    body_ = std::make_unique<BlockWriter>(std::move(body.file), body.name);
    bodyFileName_ = std::move(body.name);
    context.output.SetStream(body_.get());
}

void OutputFiles::AssembleOutputFile(WritingContext& context) {
    context.output.Checkpoint();
    if (!ended_) {
        context.output.WriteGroupEnd();
        context.output.FlushLine();
        ended_ = true;
    }
    // Whatever can go wrong with the body goes wrong before the old output file is touched.
    body_->Close();
    context.output.SetStream(nullptr);
    {
        const std::unique_ptr<platform::File> body = Open(context, bodyFileName_);
        RegisterHeaderColors(context);
        const std::unique_ptr<BlockWriter> result = CreateOutput(context);
        try {
            {
                const Redirection redirection(context.output, result.get());
                WriteHeader(context);
            }
            result->Checkpoint();
            result->AppendFile(*body, bodyFileName_, body_->Written());
            result->Close();
        } catch (...) {
            // Half a document under the final name would look like a whole one.
            std::error_code ignored;
            context.platform.files->Delete(actualFileName_, ignored);
            actualFileName_.clear();
            throw;
        }
    }
    Delete(context, bodyFileName_);
}

std::unique_ptr<BlockWriter> OutputFiles::CreateOutput(WritingContext& context) {
    platform::FileSystem& files = *context.platform.files;
    if (context.settings.filename.empty()) {
        // The folder is the environment's, not TempPath.
        UniqueFile file = CreateUniqueFile(files, context.platform.environment->TempFolder(), "Draftwick",
                                           "rtf", platform::Creation::Exclusive);
        actualFileName_ = file.name;
        return std::make_unique<BlockWriter>(std::move(file.file), std::move(file.name));
    }
    ResolveOutputFileName(context);
    std::error_code error;
    auto file = files.Create(actualFileName_, platform::Creation::Overwrite, error);
    if (file == nullptr) RaiseFileError(error, "create", std::exchange(actualFileName_, {}));
    return std::make_unique<BlockWriter>(std::move(file), actualFileName_);
}

/// Deletes an old file of the name. If that fails, it is in use: then a number goes before the extension.
void OutputFiles::ResolveOutputFileName(WritingContext& context) {
    const std::string& name = context.settings.filename;
    const std::size_t extension = FindExtension(name);
    std::string candidate = name;
    for (int counter = 1; context.platform.files->Exists(candidate); ++counter) {
        std::error_code error;
        context.platform.files->Delete(candidate, error);
        if (!error) break;
        candidate = name.substr(0, extension) + std::to_string(counter) + name.substr(extension);
    }
    actualFileName_ = candidate;
}

}  // namespace draftwick
