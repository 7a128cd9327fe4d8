#pragma once

#include <draftwick/base/Error.h>

#include <cstdint>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::command {

/// A place in an input, as compilers name it.
struct Place {
    std::string file;
    std::int64_t line = 0;    ///< from 1; 0: the file as a whole
    std::int64_t column = 0;  ///< from 1, in bytes; 0: the line as a whole

    std::string Text() const;
};

/// What is wrong with an input, and where.
class Failure : public std::runtime_error {
public:
    Failure(const Place& place, const std::string& what)
        : std::runtime_error(place.Text() + ": error: " + what) {}
};

/// What is wrong, said by what does not know where it is. Whoever does makes a Failure of it with Locate.
[[noreturn]] void Refuse(const std::string& what);

/// A line on standard error for what does not keep the document from being written.
void Warn(const Place& place, const std::string& what);

/// The text of an exception, and what there is to do about it.
std::string Explain(const std::exception& error);

/// Runs an action. What is refused in it, here or by the library, is a Failure at the place that `where` gives.
template <class Where, class Action>
auto Locate(const Where& where, const Action& action) {
    try {
        return action();
    } catch (const std::invalid_argument& error) {
        throw Failure(where(), error.what());
    } catch (const Error& error) {
        throw Failure(where(), Explain(error));
    }
}

/// "x" with quotation marks.
std::string Quoted(std::string_view text);

/// What to say about a name that there is not: the one that was meant, if one is like it, else all of them.
std::string Alternatives(std::string_view name, const std::vector<std::string_view>& names);
/// The same for rows of a table; the member of a row is its name.
template <class Rows, class Name>
std::string Alternatives(std::string_view name, const Rows& rows, Name member) {
    std::vector<std::string_view> names;
    for (const auto& row : rows) names.push_back(row.*member);
    return Alternatives(name, names);
}

}  // namespace draftwick::command
