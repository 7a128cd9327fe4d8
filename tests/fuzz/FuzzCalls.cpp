// A libFuzzer target that makes calls of its bytes: properties and methods of whatever objects there are, by their
// run-time descriptions. It knows no class but Document. What must hold, whatever a host does: no undefined
// behaviour, only documented refusals, a refused setter changes nothing, every finished file is one whole document,
// no file stays open, and the same calls give the same bytes.

#include "tests/support/FakePlatform.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/Rtf.h"

#include <draftwick/draftwick.h>
#include <draftwick/text/Utf8.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <set>
#include <span>

namespace draftwick::test {

namespace {

using namespace std::string_literals;

using ObjectPointer = std::shared_ptr<Object>;

[[noreturn]] void Fail(const std::string& what) {
    std::fprintf(stderr, "%s\n", what.c_str());
    std::abort();
}

const std::string Pieces[] = {
    "A",        "b",        "a.bmp",  "a.gif",  "a.jpg",      "a.emf",
    "a.wmf",    "out.rtf",  "text",   "1;2",    " ",          "{",
    "}",        "\\",       "\t",     "\r\n",   "\r",         "\n",
    "\0"s,      "\xC3\xA9", "\xFF",   "\\L1",   ";",          "\\'",
    "\\par",    "\\bin",    "\\'e9 ", "%1|.-#", "2147483648", "\xF0\x9F\x98\x80",
    "\xD7\xA9",
};
constexpr std::int32_t Numbers[] = {-1,     255,   256,     32767,           32768,     -32768,
                                    -32769, 65536, 1 << 30, -2147483647 - 1, 2147483647};
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Reals[] = {-0.0,
                            -1.5,
                            0.5,
                            22.75,
                            1638.35,
                            32767.5,
                            -32769,
                            2147483647.5,
                            1e300,
                            5e-324,
                            Infinity,
                            -Infinity,
                            std::numeric_limits<double>::quiet_NaN()};
constexpr std::errc Failures[] = {std::errc::no_space_on_device, std::errc::permission_denied,
                                  std::errc::io_error};

/// What the documentation of the members says is written as it is given, but for raw text in the classic spelling alone.
const std::set<std::string_view> Unescaped{"Add",     "AddBookmark", "AddRawText", "AddSpecial",
                                           "AltName", "Caption",     "Format",     "Name"};

/// What the texts of a host may do to its files.
struct Harm {
    bool odd = false;     ///< line breaks or zeros stay in the file
    bool broken = false;  ///< braces or control words get into it as they are
};

/// One run of a sequence of calls.
class CallSequence {
public:
    explicit CallSequence(std::span<const std::uint8_t> bytes) : bytes_(bytes) {
        static const std::string bmp = PictureFile("sample/4.bmp"), gif = PictureFile("empty-screen.gif");
        files_->Put("a.bmp", bmp);
        files_->Put("a.gif", gif);
        files_->Put("a.jpg", MakeJpeg(8, 8, 1, 96, 96));
        files_->Put("a.emf", MakeEmf(0, 0, 2540, 2540));
        files_->Put("a.wmf", MakeWmf(0, 0, 10, 10, 96));
    }

    /// Everything that can be seen of it: the files, and what was refused.
    std::string Outcome() {
        while (!bytes_.empty()) Step();
        for (const auto& document : documents_) {
            for (int attempt = 0; attempt < 3; ++attempt) Try([&] { document->Finish(); });
        }
        CheckFinished();
        documents_.clear();
        objects_.clear();
        if (files_->OpenFiles() != 0) Fail("a file is still open");
        for (const std::string& name : files_->Names()) log_ += name + "\n" + files_->Bytes(name);
        return log_;
    }

private:
    std::uint8_t Byte() {
        if (bytes_.empty()) return 0;
        const std::uint8_t byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }
    template <class Table>
    auto& OneOf(Table& table) {
        return table[Byte() % std::size(table)];
    }

    void Step() {
        const std::uint8_t what = Byte();
        if (objects_.empty() || what >= 254) {
            documents_.push_back(Document::Create(MakeFakePlatform(files_)));
            if (what % 2 == 0) documents_.back()->SetSpelling(dwSpellingStandard);
            Keep(documents_.back());
        } else if (what < 240) {
            // Mostly one of the last: what comes of an object is worth more than one more of its kind.
            const std::size_t among =
                what < 160 ? std::min<std::size_t>(objects_.size(), 4) : objects_.size();
            Use(ObjectPointer{objects_[objects_.size() - 1 - what % among]});
        } else if (what < 244) {
            files_->FailAt(files_->Operations() + 1 + Byte() % 16, OneOf(Failures), Byte());
        } else if (what < 247) {
            const std::shared_ptr<Document> dropped = documents_.empty() ? nullptr : OneOf(documents_);
            std::erase(documents_, dropped);
            std::erase(objects_, ObjectPointer{dropped});
        } else {
            objects_.erase(objects_.begin() + Byte() % static_cast<std::ptrdiff_t>(objects_.size()));
        }
        CheckFinished();
    }

    /// Calls a method of the object, reads or sets a property, or goes to another object that it has.
    void Use(const ObjectPointer& object) {
        const Class& description = object->Description();
        const std::uint8_t form = Byte() % 4;
        if (form < 2 && !description.methods.empty()) {
            CallOne(*object, OneOf(description.methods));
        } else if (form < 3 && !description.properties.empty()) {
            SetOne(*object, OneOf(description.properties));
        } else {
            std::vector<const ClassProperty*> ways;
            for (const ClassProperty& property : CommonProperties()) ways.push_back(&property);
            for (const ClassProperty& property : description.properties) {
                if (property.type->kind == Kind::Object) ways.push_back(&property);
            }
            const ClassProperty& way = *OneOf(ways);
            const auto arguments = Arguments(way.arguments);
            Try([&] { Keep(Get(*object, way.name, arguments)); });
        }
    }

    std::vector<Variant> Arguments(const std::vector<Argument>& all) {
        std::vector<Variant> arguments;
        for (const Argument& argument : all) {
            if (Byte() % 16 == 0) continue;
            arguments.push_back(Value(argument.initial ? argument.type->kind : Kind::Any, {}));
        }
        return arguments;
    }

    void CallOne(Object& object, const ClassMethod& method) {
        const auto arguments = Arguments(method.arguments);
        const bool raw =
            method.name == "AddRawText"
            || (method.name == "AddTextItem" && arguments.size() > 1 && arguments[1] == Variant{true});
        for (const Variant& value : arguments) Note(value, Unescaped.contains(method.name), raw);
        Try([&] { Keep(Call(object, method.name, arguments)); });
    }

    void SetOne(Object& object, const ClassProperty& property) {
        const auto arguments = Arguments(property.arguments);
        const Variant value = Value(property.type->kind, property.rule);
        Variant before, after;
        const auto read = [&](Variant& into) {
            if (property.get != nullptr) Try([&] { into = Get(object, property.name, arguments); });
        };
        read(before);
        if (property.set == nullptr) return;
        Note(value, Unescaped.contains(property.name), false);
        if (Try([&] { Set(object, property.name, value, arguments); })) return;
        read(after);
        if (before != after) Fail("a refused setter changed " + std::string{property.name});
    }

    /// Runs an action of a host. Whether it was accepted.
    bool Try(const std::function<void()>& action) {
        try {
            action();
            return true;
        } catch (const Error& error) {
            log_ += error.what() + "\n"s;
            const std::int32_t number = error.Number();
            static const std::set<std::int32_t> Runtime{5, 6, 9, 11, 13, 28, 91, 429, 457, 481};
            if (!Runtime.contains(number)
                && (number < dwErrPropertyOutOfRange || number > dwErrItemNotFound)) {
                Fail("undocumented: "s + error.what());
            }
        } catch (const std::system_error& error) {
            log_ += error.what() + "\n"s;
            if (log_.find('\'') == log_.npos) Fail("no file name: "s + error.what());
        }
        return false;
    }

    void Keep(const Variant& value) {
        const auto* object = std::get_if<ObjectPointer>(&value);
        if (object == nullptr || *object == nullptr) return;
        if (objects_.size() == 100) objects_.erase(objects_.begin());
        objects_.push_back(*object);
    }

    /// Keeps in mind what a text may do to files.
    void Note(const Variant& value, bool unescaped, bool raw) {
        const auto* text = std::get_if<std::string>(&value);
        if (text == nullptr) return;
        const bool odd = text->find_first_of("\r\n\0"s) != text->npos;
        const bool broken = text->find_first_of("{}\\") != text->npos;
        classic_.odd |= odd;
        classic_.broken |= broken && (unescaped || raw);
        standard_.odd |= odd && raw;
        standard_.broken |= broken && raw;
    }

    Variant Value(Kind kind, const Rule& rule) {
        constexpr Kind Kinds[] = {Kind::Boolean, Kind::Number, Kind::Real,  Kind::Length,
                                  Kind::Text,    Kind::Value,  Kind::Object};  // of Value only a date
        const bool any = kind == Kind::Any || kind == Kind::Key || kind == Kind::Value;
        if (any || Byte() % 16 == 0) kind = Kinds[Byte() % std::size(Kinds)];
        const std::uint8_t byte = Byte();
        switch (kind) {
        case Kind::Boolean: return byte % 2 == 0;
        case Kind::Color:
        case Kind::Number:
            if (rule.limited) return rule.low - 1 + byte % (rule.high - rule.low + 3);
            return byte < 200 ? byte % 16 : OneOf(Numbers);
        case Kind::Length:
        case Kind::Real: return byte < 200 ? byte / 8.0 : OneOf(Reals);
        case Kind::Path:
        case Kind::Text: return Text(byte);
        case Kind::Value: return Date{1980 + byte, Byte(), Byte(), Byte(), Byte(), byte};
        case Kind::Object: return objects_[objects_.size() - 1 - byte % objects_.size()];
        default: return {};
        }
    }

    std::string Text(std::uint8_t form) {
        std::string text;
        for (int pieces = form % 4; pieces > 0; --pieces) {
            const std::uint8_t piece = Byte();
            if (piece < 192) {
                text += Pieces[piece % std::size(Pieces)];
            } else {
                for (int length = piece % 16; length > 0; --length) text += static_cast<char>(Byte());
            }
        }
        if (form < 248) return text;
        std::string longer;
        for (int times = 0; times < 1000; ++times) longer += text;
        return longer;
    }

    void CheckFinished() {
        for (const auto& document : documents_) {
            if (document->Finished() && checked_.insert(document).second)
                Check(document->ActualFileName(), document->Spelling() == dwSpellingStandard);
        }
    }

    void Check(const std::string& name, bool standard) {
        const std::string file = files_->Bytes(name);
        const Harm& harm = standard ? standard_ : classic_;
        std::string complaint;
        if (standard && SkipAscii(file, 0) != file.size()) {
            complaint = "not ASCII";
        } else if (harm.broken) {
            if (!file.starts_with("{\\rtf1") || !file.ends_with("\r\n"))
                complaint = "neither beginning nor end";
        } else if (harm.odd) {
            int depth = 0;
            for (std::size_t i = 0; i + 2 < file.size() && complaint.empty(); ++i) {
                if (file[i] == '\\')
                    ++i;
                else if (file[i] == '{')
                    ++depth;
                else if (file[i] == '}' && --depth == 0 && i + 3 != file.size())
                    complaint = "ends too early";
            }
            if (depth != 0) complaint = "group never ends";
        } else {
            complaint = CheckFile(file);
        }
        if (!complaint.empty()) Fail(name + ": " + complaint + "\n" + file);
    }

    std::span<const std::uint8_t> bytes_;
    std::shared_ptr<MemoryFiles> files_ = std::make_shared<MemoryFiles>();
    std::vector<std::shared_ptr<Document>> documents_;
    std::vector<ObjectPointer> objects_;
    std::set<std::weak_ptr<Document>, std::owner_less<>> checked_;
    Harm classic_, standard_;  // to documents of each spelling
    std::string log_;
};

}  // namespace

}  // namespace draftwick::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace draftwick::test;
    const auto run = [&] { return CallSequence({data, size}).Outcome(); };
    if (run() != run()) Fail("the second run gave other bytes");
    return 0;
}
