#include "hosts/command/Clean.h"
#include "hosts/command/Json.h"
#include "hosts/command/JsonDocument.h"
#include "hosts/command/Merge.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace draftwick::command {

namespace {

/// Whether everything was written.
bool WriteMarkdown(const std::string& text, const std::string& name, const Options& options) {
    Manuscript manuscript(text, name, options.Merging());
    for (const auto& [setting, value] : options.settings) manuscript.Settings()[setting] = value;
    Style style;
    for (const std::string& one : options.styles) style.Add(one);
    if (!options.data.empty()) return Merge(manuscript, style, options) == 0;
    const auto document = NewDocument(options, &style, options.output);
    Writer(manuscript, style, options.extras, document).Write(nullptr);
    Deliver(*document, options.output);
    return true;
}

void WriteJson(std::istream& input, const std::string& name, const std::string& head,
               const Options& options) {
    if (!options.data.empty() || !options.styles.empty() || !options.settings.empty()
        || options.extras.contents || options.extras.sectionNumbers) {
        throw UsageError("a document in JSON says all of this itself: --style, --data, --set, --toc and "
                         "--number-sections are for Markdown");
    }
    const auto document = NewDocument(options, nullptr, options.output);
    FillFromJson(input, name, document, head);
    Deliver(*document, options.output);
}

bool Write(const Options& options) {
    const bool standard = options.input == "-";
    const std::string name = standard ? "<stdin>" : options.input;
    std::ifstream file;
    if (!standard) {
        if (std::filesystem::is_directory(options.input)) throw Failure({name}, "is a folder");
        file.open(options.input, std::ios::binary);
        if (!file) throw Failure({name}, "cannot be read: " + std::generic_category().message(errno));
    }
    std::istream& input = standard ? std::cin : file;
    std::string text(LargestHead, '\0');
    input.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(input.gcount()));
    if (BeginsObject(text)) {
        WriteJson(input, name, text, options);
        return true;
    }
    text.append(std::istreambuf_iterator<char>(input), {});
    if (input.bad()) throw Failure({name}, "cannot be read");
    return WriteMarkdown(text, name, options);
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
