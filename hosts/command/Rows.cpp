#include "hosts/command/Rows.h"

#include "hosts/command/Json.h"
#include "hosts/command/Text.h"

#include <algorithm>

namespace draftwick::command {

namespace {

class CsvRows final : public Rows {
public:
    explicit CsvRows(Input& input) : input_(input) {
        const std::string_view head = input.Ahead().substr(0, input.Ahead().find('\n'));
        for (const char mark : {';', '\t'}) {
            if (std::count(head.begin(), head.end(), mark) > std::count(head.begin(), head.end(), separator_))
                separator_ = mark;
        }
        Row row;
        if (head.find_first_not_of('\r') == head.npos || !Record(row) || !row.fault.empty())
            throw Failure({input.Name(), 1}, "no names of columns");
        names_ = std::move(fields_);
    }

    bool Next(Row& row) override {
        row = {++number_};
        if (!Record(row)) return false;
        if (row.fault.empty() && fields_.size() != names_.size()) {
            row.fault =
                std::to_string(fields_.size()) + " values for " + std::to_string(names_.size()) + " columns";
        }
        for (std::size_t i = 0; row.fault.empty() && i < names_.size(); ++i)
            row.data.members.emplace_back(names_[i], Datum{Datum::Kind::Scalar, std::move(fields_[i])});
        return true;
    }

private:
    /// Reads the fields of the next record that is no empty line. False at the end.
    bool Record(Row& row) {
        while (input_.Peek() == '\n' || input_.Peek() == '\r') input_.Take();
        fields_.assign(1, {});
        row.line = input_.Line();
        if (input_.AtEnd()) return false;
        for (bool afterQuotes = false; !input_.AtEnd();) {
            const char letter = input_.Take();
            if (letter == '\n') break;
            if (letter == separator_) {
                fields_.emplace_back();
                afterQuotes = false;
            } else if (letter == '"' && fields_.back().empty() && !afterQuotes) {
                if (!Quotation(fields_.back())) row.fault = "a quotation mark without its end";
                afterQuotes = true;
            } else if (letter != '\r' || input_.Peek() != '\n') {
                if (afterQuotes) row.fault = "text behind a quotation mark";
                fields_.back() += letter;
            }
        }
        return true;
    }

    /// Whether it has an end. Within it, two marks are one.
    bool Quotation(std::string& field) {
        while (!input_.AtEnd()) {
            const char letter = input_.Take();
            if (letter == '"' && (input_.Peek() != '"' || input_.AtEnd())) return true;
            if (letter == '"') input_.Take();
            field += letter;
        }
        return false;
    }

    Input& input_;
    char separator_ = ',';
    std::vector<std::string> names_, fields_;
    std::int64_t number_ = 0;
};

class JsonRows final : public Rows {
public:
    explicit JsonRows(Input& input) : input_(input), json_(input) { array_ = json_.Accept('['); }

    bool Next(Row& row) override {
        return Locate([this] { return json_.Where(); },
                      [&] {
                          if (array_ ? !json_.More(']', number_ == 0) : json_.Peek() == '\0') {
                              json_.End();
                              return false;
                          }
                          if (json_.Peek() != '{') Refuse("a row is an object, in braces");
                          row = {++number_, input_.Line(), Read()};
                          return true;
                      });
    }

private:
    Datum Read() {
        Datum datum;
        if (json_.Peek() == '{') {
            datum.kind = Datum::Kind::Row;
            json_.Object([&](const std::string& name) { datum.members.emplace_back(name, Read()); });
        } else if (json_.Peek() == '[') {
            datum.kind = Datum::Kind::List;
            json_.Array([&] { datum.members.emplace_back("", Read()); });
        } else {
            datum.text = json_.Text();
        }
        return datum;
    }

    Input& input_;
    JsonReader json_;
    bool array_;
    std::int64_t number_ = 0;
};

}  // namespace

const Datum* Datum::Find(std::string_view name) const {
    for (const auto& [own, value] : members) {
        if (own == name) return &value;
    }
    return nullptr;
}

std::string& Datum::Text(std::string_view name) {
    for (auto& [own, value] : members) {
        if (own == name) return value.text;
    }
    return members.emplace_back(name, Datum{}).second.text;
}

std::vector<std::string_view> Datum::Names() const {
    std::vector<std::string_view> names;
    for (const auto& member : members) names.push_back(member.first);
    return names;
}

std::unique_ptr<Rows> OpenRows(Input& input) {
    input.SkipBlanks();
    if (input.Peek() == '[' || input.Peek() == '{') return std::make_unique<JsonRows>(input);
    return std::make_unique<CsvRows>(input);
}

bool BeginsObject(std::string_view text) {
    text = Trimmed(text);
    if (!text.starts_with('{')) return false;
    // "{{name}}" begins a letter, "{" and a name an object.
    text = Trimmed(text.substr(1));
    return text.starts_with('"') || text.starts_with('}');
}

}  // namespace draftwick::command
