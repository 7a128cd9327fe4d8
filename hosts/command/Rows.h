#pragma once

#include "hosts/command/Input.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace draftwick::command {

/// A value of a row: a text, a list of values, or a row of its own.
struct Datum {
    enum class Kind { Scalar, List, Row };
    Kind kind = Kind::Scalar;
    std::string text{};                                    ///< numbers as they were written; empty: absent
    std::vector<std::pair<std::string, Datum>> members{};  ///< of a list without names

    const Datum* Find(std::string_view name) const;
    /// The text of a member, which is added when there is none.
    std::string& Text(std::string_view name);
    std::vector<std::string_view> Names() const;
};

/// One row of the data, or why there is none.
struct Row {
    std::int64_t number = 0;  ///< from 1
    std::int64_t line = 0;    ///< where it begins
    Datum data{Datum::Kind::Row};
    std::string fault{};   ///< not empty: the row cannot be used
    std::string output{};  ///< the file that is to be written for it alone
};

/// The rows of an input.
class Rows {
public:
    virtual ~Rows() = default;
    /// The next row; false when there is none. Failure when what comes is no row.
    virtual bool Next(Row& row) = 0;
};

/// Rows of CSV (RFC 4180) with a line of names, or objects in JSON, in an array or one after the other. Values of CSV
/// are divided by commas, semicolons or tabs, whichever the line of names has most. Failure without a line of names.
std::unique_ptr<Rows> OpenRows(Input& input);

/// Whether a text begins with an object of JSON: a brace and a name, not "{{name}}" or a list.
bool BeginsObject(std::string_view text);

}  // namespace draftwick::command
