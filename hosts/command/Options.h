#pragma once

#include "hosts/command/Writer.h"

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace draftwick::command {

/// What the command line asks for.
struct Options {
    enum class Task { Write, Clean, Schema, Help, Version };
    Task task = Task::Write;
    std::string input;   ///< "-": standard input; the folder to be cleaned
    std::string output;  ///< "-": standard output; with {column}: a name for each row
    std::string data;    ///< rows; empty: none
    std::vector<std::string> styles;
    std::map<std::string, std::string, std::less<>> settings;
    std::string page;  ///< the name of a size of paper; empty: what the style says
    Extras extras;
    bool classic = false;  ///< the spelling of old readers
    bool goOn = false;     ///< with the rows behind one that failed
    unsigned jobs = 0;     ///< threads; 0: one for each processor
    bool quiet = false;    ///< no progress

    /// Whether there are values for tags in the text: data, or settings that have no meaning of their own.
    bool Merging() const;
    /// Whether each row of the data has a file of its own.
    bool ManyFiles() const { return !data.empty() && output.find('{') != std::string::npos; }
};

/// A command line that cannot be understood.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

Options ReadOptions(int argc, char** argv);

/// What --help prints.
std::string_view HelpText();

}  // namespace draftwick::command
