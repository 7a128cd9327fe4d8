#include "hosts/command/Options.h"

#include <getopt.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iterator>
#include <vector>

namespace draftwick::command {

namespace {

using Text = const std::string&;

struct Choice {
    const char* name;
    char letter;  // 0: none
    bool hasValue;
    void (*take)(Options& options, Text value);
};

void TakeSetting(Options& options, Text value) {
    const std::size_t mark = value.find('=');
    if (mark == value.npos || mark == 0) throw UsageError("--set wants name=value, not " + Quoted(value));
    options.settings.Text(value.substr(0, mark)) = value.substr(mark + 1);
}

void TakeSpelling(Options& options, Text value) {
    if (value != "standard" && value != "classic")
        throw UsageError("--spelling is standard or classic, not " + Quoted(value));
    options.classic = value == "classic";
}

void TakeJobs(Options& options, Text value) {
    const char* const end = value.data() + value.size();
    if (std::from_chars(value.data(), end, options.jobs).ptr != end || options.jobs == 0
        || options.jobs > 256) {
        throw UsageError("--jobs is a number from 1 to 256, not " + Quoted(value));
    }
}

const Choice choices[] = {
    {"output", 'o', true, [](Options& options, Text value) { options.output = value; }},
    {"style", 0, true, [](Options& options, Text value) { options.styles.push_back(value); }},
    {"data", 0, true, [](Options& options, Text value) { options.data = value; }},
    {"set", 0, true, TakeSetting},
    {"page", 0, true, [](Options& options, Text value) { options.page = value; }},
    {"toc", 0, false, [](Options& options, Text) { options.extras.contents = true; }},
    {"number-sections", 0, false, [](Options& options, Text) { options.extras.sectionNumbers = true; }},
    {"spelling", 0, true, TakeSpelling},
    {"continue", 0, false, [](Options& options, Text) { options.goOn = true; }},
    {"jobs", 'j', true, TakeJobs},
    {"quiet", 0, false, [](Options& options, Text) { options.quiet = true; }},
    {"schema", 0, false, [](Options& options, Text) { options.task = Options::Task::Schema; }},
    {"clean", 0, true,
     [](Options& options, Text value) {
         options.task = Options::Task::Clean;
         options.input = value;
     }},
    {"help", 'h', false, [](Options& options, Text) { options.task = Options::Task::Help; }},
    {"version", 0, false, [](Options& options, Text) { options.task = Options::Task::Version; }},
};

/// What tells choices apart: the letter, or a number that is none.
int Code(const Choice& choice) {
    constexpr int Letters = 256;
    return choice.letter != 0 ? choice.letter : Letters + static_cast<int>(&choice - choices);
}

}  // namespace

bool Options::Merging() const {
    constexpr std::string_view known[] = {"title",    "author",  "date",   "language", "subject",
                                          "keywords", "company", "header", "footer",   "toc-title"};
    const auto names = settings.Names();
    return !data.empty() || std::any_of(names.begin(), names.end(), [&](std::string_view name) {
        return std::find(std::begin(known), std::end(known), name) == std::end(known);
    });
}

Options ReadOptions(int argc, char** argv) {
    Options options;
    std::string letters = ":";
    std::vector<option> names;
    for (const Choice& choice : choices) {
        if (choice.letter != 0) letters.append(1, choice.letter).append(choice.hasValue ? ":" : "");
        names.push_back({choice.name, choice.hasValue, nullptr, Code(choice)});
    }
    names.push_back({});
    opterr = 0;
    for (int found; (found = getopt_long(argc, argv, letters.c_str(), names.data(), nullptr)) != -1;) {
        const std::string asked = argv[optind - 1];
        if (found == ':') throw UsageError(asked + " wants a value");
        if (found == '?') throw UsageError("there is no option " + asked);
        const Choice* choice = std::find_if(std::begin(choices), std::end(choices),
                                            [found](const Choice& one) { return Code(one) == found; });
        choice->take(options, choice->hasValue ? optarg : "");
        if (options.task != Options::Task::Write) return options;
    }
    if (optind + 1 != argc)
        throw UsageError(optind == argc
                             ? "no input"
                             : std::string{"one input at a time; what is "} + argv[optind + 1] + "?");
    options.input = argv[optind];
    if (options.input == "-" && options.data == "-")
        throw UsageError("the input and the data cannot both come from standard input");
    if (options.output.empty()) {
        options.output = options.input;
        if (options.input != "-")
            options.output = std::filesystem::path(options.input).replace_extension(".rtf").string();
    }
    if (options.output == options.input && options.input != "-")
        throw UsageError("the output would replace the input " + options.input);
    return options;
}

std::string_view HelpText() {
    return R"(Usage: draftwick INPUT [-o OUTPUT.rtf] [OPTION]...
Writes Markdown, or a document in JSON, as RTF that word processors open.

  -o, --output FILE     the document; default: INPUT with the ending .rtf; - is standard
                        output. With --data, {column} in it makes one file for each row
      --style STYLE     a look (plain, report, letter, manuscript) or a style file in JSON;
                        can be given more than once, what comes later counts
      --page SIZE       a3, a4, a5, letter or legal, or WIDTHxHEIGHT as in 20cmx15cm
      --set NAME=VALUE  as in the front matter: title, author, date, language, subject,
                        keywords, company, header, footer, toc-title, and names of your own
      --toc             a table of contents
      --number-sections numbers in front of headings
      --data FILE       rows in CSV or JSON for {{column}}, {{#items}} ... {{/items}} and
                        {{^column}} ... {{/column}} in the text; - is standard input
      --continue        go on with the rows behind one that failed
  -j, --jobs NUMBER     threads for the rows; default: one for each processor
      --quiet           no progress
      --spelling NAME   standard (default), or classic for readers that need it
      --schema          print the JSON Schema of documents in JSON
      --clean FOLDER    delete what killed processes left there of documents, and nobody
                        has written to for a day: ~dw1.tmp, ~dwout1.tmp, ~DWGC1.tmp ...
  -h, --help            print this
      --version         print the version

INPUT is - for standard input. What begins with an object in braces is JSON.
Exit status: 0; 1 when an input is wrong or a file fails; 2 for a wrong command line.
)";
}

}  // namespace draftwick::command
