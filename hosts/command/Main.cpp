#include "hosts/command/Clean.h"
#include "hosts/command/JsonDocument.h"
#include "hosts/command/Merge.h"

#include <iostream>

namespace draftwick::command {

namespace {

/// Whether everything was written.
bool WriteMarkdown(Manuscript manuscript, const Options& options) {
    for (const auto& [name, value] : options.settings.members) manuscript.Settings().Text(name) = value.text;
    Style style;
    for (const std::string& one : options.styles) style.Add(one);
    if (!options.data.empty()) return Merge(manuscript, style, options) == 0;
    WriteDocument(manuscript, style, options, options.output, nullptr);
    return true;
}

void WriteJson(Input& input, const Options& options) {
    if (!options.data.empty() || !options.styles.empty() || !options.settings.members.empty()
        || options.extras.contents || options.extras.sectionNumbers) {
        throw UsageError("a document in JSON says all of this itself: --style, --data, --set, --toc and "
                         "--number-sections are for Markdown");
    }
    const auto document = NewDocument(options, nullptr, options.output);
    FillFromJson(input, document);
    Deliver(*document, options.output);
}

bool Write(const Options& options) {
    Input input(options.input);
    if (BeginsObject(input.Ahead())) {
        WriteJson(input, options);
        return true;
    }
    return WriteMarkdown(Manuscript(input.Rest(), input.Name(), options.Merging()), options);
}

int Run(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    try {
        const Options options = ReadOptions(argc, argv);
        switch (options.task) {
        case Options::Task::Help: std::cout << HelpText(); break;
        case Options::Task::Clean: Clean(options.input); break;
        case Options::Task::Schema: std::cout << JsonSchema(); break;
        case Options::Task::Version:
            std::cout << "draftwick " << VersionMajor << '.' << VersionMinor << '.' << VersionRevision
                      << '\n';
            break;
        case Options::Task::Write: return Write(options) ? 0 : 1;
        }
        return std::cout.flush() ? 0 : 1;
    } catch (const UsageError& error) {
        std::cerr << "draftwick: " << error.what() << "\nTry draftwick --help\n";
        return 2;
    } catch (const Failure& error) {
        std::cerr << error.what() << '\n';
    } catch (const std::exception& error) {
        std::cerr << "draftwick: error: " << Explain(error) << '\n';
    }
    return 1;
}

}  // namespace

}  // namespace draftwick::command

int main(int argc, char** argv) { return draftwick::command::Run(argc, argv); }
