#include "hosts/command/Options.h"

#include <getopt.h>

#include <algorithm>
#include <charconv>
#include <iterator>

namespace draftwick::command {

namespace {

enum Code : int {
    StyleCode = 1,
    DataCode,
    SetCode,
    PageCode,
    TocCode,
    NumbersCode,
    SpellingCode,
    GoOnCode,
    SchemaCode,
    CleanCode,
    QuietCode,
    VersionCode
};

const option longOptions[] = {{"output", required_argument, nullptr, 'o'},
                              {"style", required_argument, nullptr, StyleCode},
                              {"data", required_argument, nullptr, DataCode},
                              {"set", required_argument, nullptr, SetCode},
                              {"page", required_argument, nullptr, PageCode},
                              {"toc", no_argument, nullptr, TocCode},
                              {"number-sections", no_argument, nullptr, NumbersCode},
                              {"spelling", required_argument, nullptr, SpellingCode},
                              {"continue", no_argument, nullptr, GoOnCode},
                              {"jobs", required_argument, nullptr, 'j'},
                              {"quiet", no_argument, nullptr, QuietCode},
                              {"schema", no_argument, nullptr, SchemaCode},
                              {"clean", required_argument, nullptr, CleanCode},
                              {"help", no_argument, nullptr, 'h'},
                              {"version", no_argument, nullptr, VersionCode},
                              {nullptr, 0, nullptr, 0}};

/// "letter.md" gives "letter.rtf".
std::string OutputFor(const std::string& input) {
    const std::size_t slash = input.find_last_of("/\\");
    const std::size_t dot = input.rfind('.');
    const bool hasEnding = dot != input.npos && dot > 0 && (slash == input.npos || dot > slash + 1);
    return (hasEnding ? input.substr(0, dot) : input) + ".rtf";
}

}  // namespace

bool Options::Merging() const {
    constexpr std::string_view known[] = {"title",    "author",  "date",   "language", "subject",
                                          "keywords", "company", "header", "footer",   "toc-title"};
    return !data.empty() || std::any_of(settings.begin(), settings.end(), [&](const auto& setting) {
        return std::find(std::begin(known), std::end(known), setting.first) == std::end(known);
    });
}

Options ReadOptions(int argc, char** argv) {
    Options options;
    opterr = 0;
    for (int found; (found = getopt_long(argc, argv, ":o:j:h", longOptions, nullptr)) != -1;) {
        const std::string value = optarg == nullptr ? "" : optarg;
        const std::string asked = optind > 0 && optind <= argc ? argv[optind - 1] : "";
        switch (found) {
        case 'o': options.output = value; break;
        case StyleCode: options.styles.push_back(value); break;
        case DataCode: options.data = value; break;
        case SetCode: {
            const std::size_t mark = value.find('=');
            if (mark == value.npos || mark == 0)
                throw UsageError("--set wants name=value, not \"" + value + '"');
            options.settings[value.substr(0, mark)] = value.substr(mark + 1);
            break;
        }
        case PageCode: options.page = value; break;
        case TocCode: options.extras.contents = true; break;
        case NumbersCode: options.extras.sectionNumbers = true; break;
        case SpellingCode:
            if (value != "standard" && value != "classic")
                throw UsageError("--spelling is standard or classic, not \"" + value + '"');
            options.classic = value == "classic";
            break;
        case GoOnCode: options.goOn = true; break;
        case QuietCode: options.quiet = true; break;
        case 'j': {
            const char* end = value.data() + value.size();
            if (std::from_chars(value.data(), end, options.jobs).ptr != end || options.jobs == 0
                || options.jobs > 256)
                throw UsageError("--jobs is a number from 1 to 256, not \"" + value + '"');
            break;
        }
        case SchemaCode: options.task = Options::Task::Schema; return options;
        case CleanCode:
            options.task = Options::Task::Clean;
            options.input = value;
            return options;
        case 'h': options.task = Options::Task::Help; return options;
        case VersionCode: options.task = Options::Task::Version; return options;
        case ':': throw UsageError(asked + " wants a value");
        default: throw UsageError("there is no option " + asked);
        }
    }
    if (optind + 1 != argc)
        throw UsageError(optind == argc
                             ? "no input"
                             : std::string{"one input at a time; what is "} + argv[optind + 1] + "?");
    options.input = argv[optind];
    if (options.input == "-" && options.data == "-")
        throw UsageError("the input and the data cannot both come from standard input");
    if (options.output.empty()) options.output = options.input == "-" ? "-" : OutputFor(options.input);
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
