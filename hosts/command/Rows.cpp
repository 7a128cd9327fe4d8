#include "hosts/command/Rows.h"

#include "hosts/command/Json.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace draftwick::command {

namespace {

/// One record of CSV.
class Records {
public:
    Records(std::istream& input, char separator, std::int64_t line)
        : buffer_(*input.rdbuf()), separator_(static_cast<unsigned char>(separator)), line_(line) {}

    /// The fields of the next record that is no empty line. False at the end. The fault is set where quotation marks
    /// are wrong.
    bool Next(std::vector<std::string>& fields, std::string& fault) {
        while (Peek() == '\n' || Peek() == '\r') Get();
        fields.assign(1, {});
        fault.clear();
        begin_ = line_;
        if (Peek() == End) return false;
        bool afterQuotes = false;
        for (int letter; (letter = Get()) != End && letter != '\n';) {
            if (letter == separator_) {
                fields.emplace_back();
                afterQuotes = false;
            } else if (letter == '"' && fields.back().empty() && !afterQuotes) {
                Quoted(fields.back(), fault);
                afterQuotes = true;
            } else if (letter != '\r' || Peek() != '\n') {
                if (afterQuotes) fault = "text behind a quotation mark";
                fields.back() += static_cast<char>(letter);
            }
        }
        return true;
    }

    std::int64_t Line() const { return begin_; }

private:
    static constexpr int End = std::char_traits<char>::eof();

    int Peek() { return buffer_.sgetc(); }
    int Get() {
        const int letter = buffer_.sbumpc();
        line_ += letter == '\n';
        return letter;
    }

    void Quoted(std::string& field, std::string& fault) {
        for (;;) {
            const int letter = Get();
            if (letter == End) {
                fault = "a quotation mark without its end";
                return;
            }
            if (letter == '"' && Peek() != '"') return;
            if (letter == '"') Get();
            field += static_cast<char>(letter);
        }
    }

    std::streambuf& buffer_;
    int separator_;
    std::int64_t line_, begin_ = 0;
};

class RowBuilder final : public JsonEvents {
public:
    explicit RowBuilder(const RowSink& sink) : sink_(sink) {}

    struct Stopped {};

    void Value(const Scalar& value) override {
        if (open_.empty()) throw std::invalid_argument("a row is an object, in braces");
        // What is false or null counts as absent.
        std::string text{value.text};
        if (value.kind == Scalar::Kind::Boolean && value.truth) text = "true";
        Put({Datum::Kind::Text, std::move(text)});
    }
    void Key(std::string_view name) override { key_ = name; }
    void Begin(bool object) override {
        constexpr std::size_t Deepest = 50;
        if (open_.size() == Deepest) throw std::invalid_argument("nested too deeply");
        if (open_.empty() && !object) {
            if (inArray_) throw std::invalid_argument("a row is an object, in braces");
            inArray_ = true;
            return;
        }
        if (open_.empty()) {
            row_ = Row{++rows_, Where().line};
            open_.push_back(&row_.data);
        } else {
            open_.push_back(Put({object ? Datum::Kind::Row : Datum::Kind::List}));
        }
    }
    void End() override {
        if (open_.empty()) {
            inArray_ = false;
            return;
        }
        open_.pop_back();
        if (open_.empty() && !sink_(std::move(row_))) throw Stopped{};
    }

private:
    Datum* Put(Datum value) {
        auto& members = open_.back()->members;
        members.emplace_back(std::exchange(key_, {}), std::move(value));
        return &members.back().second;
    }

    const RowSink& sink_;
    Row row_;
    std::vector<Datum*> open_;  // a parent takes no member while one of its members is open
    std::string key_;
    bool inArray_ = false;
    std::int64_t rows_ = 0;
};

}  // namespace

const Datum* Datum::Find(std::string_view name) const {
    for (const auto& [own, value] : members) {
        if (own == name) return &value;
    }
    return nullptr;
}

void ReadCsv(std::istream& input, const std::string& name, const RowSink& sink) {
    std::string head;
    std::getline(input, head);
    if (head.starts_with("\xEF\xBB\xBF")) head.erase(0, 3);
    if (head.ends_with('\r')) head.pop_back();
    const auto count = [&head](char mark) { return std::count(head.begin(), head.end(), mark); };
    char separator = ',';
    for (const char mark : {';', '\t'}) {
        if (count(mark) > count(separator)) separator = mark;
    }
    std::istringstream line(head);
    std::vector<std::string> names, fields;
    std::string fault;
    if (!Records(line, separator, 1).Next(names, fault) || !fault.empty())
        throw Failure({name, 1}, "no names of columns");
    Records records(input, separator, 2);
    for (std::int64_t number = 1; records.Next(fields, fault); ++number) {
        Row row{number, records.Line()};
        if (fault.empty() && fields.size() != names.size()) {
            fault =
                std::to_string(fields.size()) + " values for " + std::to_string(names.size()) + " columns";
        }
        row.fault = fault;
        for (std::size_t i = 0; fault.empty() && i < names.size(); ++i)
            row.data.members.emplace_back(names[i], Datum{Datum::Kind::Text, std::move(fields[i])});
        if (!sink(std::move(row))) return;
    }
    if (input.bad()) throw Failure({name}, "cannot be read");
}

void ReadJsonRows(std::istream& input, const std::string& name, const RowSink& sink) {
    RowBuilder builder(sink);
    try {
        ReadJson(input, name, builder, true);
    } catch (const RowBuilder::Stopped&) {
    }
}

bool BeginsObject(std::string_view beginning) {
    if (beginning.starts_with("\xEF\xBB\xBF")) beginning.remove_prefix(3);
    const std::size_t first = beginning.find_first_not_of(" \t\r\n");
    if (first == beginning.npos) return false;
    // "{{name}}" begins a letter, "{" and a name an object.
    const std::size_t second = beginning.find_first_not_of(" \t\r\n", first + 1);
    return beginning[first] == '{' && second != beginning.npos
           && (beginning[second] == '"' || beginning[second] == '}');
}

}  // namespace draftwick::command
