#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace draftwick::command {

/// A value of a row: a text, a list of values, or a row of its own.
struct Datum {
    enum class Kind { Text, List, Row };
    Kind kind = Kind::Text;
    std::string text{};                                    ///< numbers as they were written; empty: absent
    std::vector<std::pair<std::string, Datum>> members{};  ///< of a list without names

    const Datum* Find(std::string_view name) const;
};

/// One row of the data, or why there is none.
struct Row {
    std::int64_t number = 0;  ///< from 1
    std::int64_t line = 0;    ///< where it begins
    Datum data{Datum::Kind::Row};
    std::string fault{};   ///< not empty: the row cannot be used
    std::string output{};  ///< the file that is to be written for it alone
};

/// What is told about each row; false ends the reading.
using RowSink = std::function<bool(Row&&)>;

/// Reads CSV (RFC 4180) with a line of names; values are divided by commas, semicolons or tabs, whichever the line of
/// names has most. Failure when there is no line of names.
void ReadCsv(std::istream& input, const std::string& name, const RowSink& sink);
/// Reads objects, in an array or one after the other. Failure with its place for what is no JSON.
void ReadJsonRows(std::istream& input, const std::string& name, const RowSink& sink);
/// Whether a text begins with an object of JSON: a brace and a name, not "{{name}}" or a list.
bool BeginsObject(std::string_view beginning);

}  // namespace draftwick::command
