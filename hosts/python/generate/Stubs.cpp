#include <hosts/python/generate/Stubs.h>

#include <hosts/python/Names.h>

#include <algorithm>
#include <ostream>
#include <sstream>

namespace draftwick::python {

namespace {

constexpr std::size_t Width = 110;

/// How Python writes a type: what a property gives, and what it takes.
struct Hint {
    std::string given;
    std::string taken;
};

Hint HintOf(const draftwick::Type* type) {
    const auto both = [](std::string hint) { return Hint{hint, hint}; };
    if (type == nullptr) return both("None");
    if (!type->values.empty()) return both(hosts::PlainName(*type));
    if (type->description != nullptr) return both(std::string{type->name});
    switch (type->kind) {
    case Kind::Boolean: return both("bool");
    case Kind::Number: return both("int");
    case Kind::Real: return both("float");
    case Kind::Length: return {"float", "_Length"};
    case Kind::Color: return {"str", "_Color"};
    case Kind::Text: return both("str");
    case Kind::Path: return {"str", "_Path"};
    case Kind::Bytes: return both("bytes");
    case Kind::Key: return both("int | str");
    case Kind::Value: return {"_Value", "_Value | date"};
    case Kind::Object: return both("Object");
    default: return both("Any");
    }
}

class Writer {
public:
    Writer(const Comments& comments, std::ostream& out) : comments_(comments), out_(out) {}

    void Enumeration(const draftwick::Type& type) {
        out_ << "\nclass " << hosts::PlainName(type) << "(IntEnum):\n";
        Comment(type.name, {}, "    ");
        for (const EnumerationValue& value : type.values) {
            out_ << "    " << hosts::ConstantName(type, value) << " = " << value.value << '\n';
            Comment(type.name, value.name, "    ");
        }
    }

    void Errors(const draftwick::Type& type) {
        for (const EnumerationValue& value : type.values) {
            const std::string_view relative = RelativeOf(value.value);
            out_ << "\nclass " << hosts::PlainValueName(type, value) << "(Error"
                 << (relative.empty() ? "" : ", ") << relative << "):\n";
            Comment(type.name, value.name, "    ");
            out_ << "    ...\n";
        }
    }

    void Class(const draftwick::Class& one, const std::string& additions) {
        out_ << (one.create == nullptr ? "\n@final" : "") << "\nclass " << one.name << "(Object):\n";
        Comment(one.name, {}, "    ");
        if (one.create != nullptr) Constructor(one);
        for (const ClassProperty& property : one.properties) Property(one, property);
        for (const ClassMethod& method : one.methods) {
            const bool isItems = one.items != nullptr && method.name == one.defaultMember;
            // What Python has of its own takes the place of what is described.
            if (additions.find("def " + MemberName(method.name) + "(") != additions.npos) continue;
            if (isItems)
                Items(one, method);
            else
                Method(one, method);
        }
        out_ << additions;
        if (one.properties.empty() && one.methods.empty()) out_ << "    ...\n";
    }

private:
    void Comment(std::string_view owner, std::string_view member, const std::string& indent) {
        const std::string text = comments_.Of(owner, member, Width - indent.size() - 6);
        if (text.empty()) return;
        std::string escaped;
        for (const char c : text) {
            if (c == '\\') escaped += '\\';
            escaped += c;
            if (c == '\n') escaped += indent;
        }
        if (escaped.ends_with('"')) escaped += ' ';
        out_ << indent << R"(""")" << escaped << R"(""")" << '\n';
    }

    void Property(const draftwick::Class& one, const ClassProperty& property) {
        const std::string name = MemberName(property.name);
        const Hint hint = HintOf(property.type);
        const bool isIndexed = !property.arguments.empty();
        if (property.set == nullptr || isIndexed) {
            std::string given = hint.given + (property.optional ? " | None" : "");
            if (isIndexed)
                given = "IndexedProperty[" + given + ", " + (property.set ? hint.taken : "_Never") + "]";
            out_ << "    @property\n    def " << name << "(self) -> " << given << ":\n";
            Comment(one.name, property.name, "        ");
            out_ << "        ...\n";
            return;
        }
        if (property.get == nullptr)
            out_ << "    " << name << ": _Setting[_Never, " << hint.taken << "]\n";
        else if (hint.given != hint.taken)
            out_ << "    " << name << ": _Setting[" << hint.given << ", " << hint.taken << "]\n";
        else
            out_ << "    " << name << ": " << hint.given << '\n';
        Comment(one.name, property.name, "    ");
    }

    /// ", *, width: _Length = ..., merge: CellMerge = ...": the properties that a call can set, but for those that are
    /// arguments.
    std::string Settings(const draftwick::Class& one, const std::vector<Argument>& arguments) {
        std::string text;
        for (const ClassProperty& property : one.properties) {
            const auto isTaken = [&](const Argument& argument) { return argument.name == property.name; };
            if (property.set == nullptr || !property.arguments.empty()) continue;
            if (std::any_of(arguments.begin(), arguments.end(), isTaken)) continue;
            text += std::string{text.empty() ? ", *" : ""} + ", " + MemberName(property.name) + ": "
                    + HintOf(property.type).taken + " = ...";
        }
        return text;
    }

    void Constructor(const draftwick::Class& one) {
        const auto isPath = [](const ClassProperty& property) {
            return property.set != nullptr && property.type->kind == Kind::Path;
        };
        const auto path = std::find_if(one.properties.begin(), one.properties.end(), isPath);
        out_ << "    def __init__(self";
        if (path != one.properties.end()) out_ << ", " << MemberName(path->name) << ": _Path | None = None";
        std::vector<Argument> arguments;
        if (path != one.properties.end()) arguments.push_back({path->name});
        out_ << Settings(one, arguments) << ") -> None: ...\n";
    }

    void Method(const draftwick::Class& one, const ClassMethod& method) {
        out_ << "    def " << MemberName(method.name) << "(self";
        for (const Argument& argument : method.arguments) {
            const bool isOptional = argument.initial && argument.initial->index() == 0;
            out_ << ", " << MemberName(argument.name) << ": " << HintOf(argument.type).taken
                 << (isOptional ? " | None" : "");
            if (!argument.initial) continue;
            // A constant is no text that inspect.signature could read.
            out_ << " = "
                 << (argument.type->values.empty() ? Literal(*argument.initial, argument.type) : "...");
        }
        if (method.result != nullptr && method.result->description != nullptr)
            out_ << Settings(method.result->description(), method.arguments);
        out_ << ") -> " << HintOf(method.result).given << (method.optional ? " | None" : "") << ":\n";
        Comment(one.name, method.name, "        ");
        out_ << "        ...\n";
    }

    void Items(const draftwick::Class& one, const ClassMethod& method) {
        const std::string item = HintOf(one.items).given;
        out_ << "    def __len__(self) -> int: ...\n"
             << "    def __getitem__(self, key: " << HintOf(method.arguments[0].type).taken << ", /) -> "
             << item << ": ...\n    def __iter__(self) -> Iterator[" << item << "]: ...\n"
             << "    def __contains__(self, item: object, /) -> bool: ...\n";
    }

    const Comments& comments_;
    std::ostream& out_;
};

constexpr std::string_view Head = R"("""Writes documents as RTF, in constant memory."""

from collections.abc import Callable, Iterable, Iterator, Mapping, Sequence
from datetime import date, datetime
from enum import IntEnum
from os import PathLike
from types import TracebackType
from typing import Any, Generic, NoReturn, Protocol, TypeAlias, TypeVar, final

_Never: TypeAlias = NoReturn

__version__: str

def __dir__() -> list[str]: ...

_Self = TypeVar("_Self")
_Given = TypeVar("_Given", covariant=True)
_Taken = TypeVar("_Taken", contravariant=True)

# A number in the document's unit, or a text with a unit: "2.5cm", "12pt", "1in", "3mm", "6pc", "240tw".
_Length: TypeAlias = float | str
# "#rrggbb", "#rgb", red, green and blue from 0 to 255, or a number with red in its lowest byte.
_Color: TypeAlias = str | tuple[int, int, int] | int
_Path: TypeAlias = str | bytes | PathLike[str] | PathLike[bytes]
_Value: TypeAlias = bool | int | float | str | datetime | None

class _Writes(Protocol):
    def write(self, data: bytes, /) -> object: ...

class _Setting(Generic[_Given, _Taken]):
    """A property that takes more kinds of value than it gives."""
    def __get__(self, object: object, owner: object = ...) -> _Given: ...
    def __set__(self, object: object, value: _Taken) -> None: ...

@final
class IndexedProperty(Generic[_Given, _Taken]):
    """A property with several values, by their numbers as the library counts them."""
    def __getitem__(self, index: int, /) -> _Given: ...
    def __setitem__(self, index: int, value: _Taken, /) -> None: ...

class Error(Exception):
    """What Draftwick refuses. Nothing has changed."""
    number: int
    """Of the refusal, the same in all languages."""
    advice: str
    """What was refused and what to do about it; empty when there is nothing to add."""
)";

constexpr std::string_view BaseOfClasses = R"(
class Object:
    """What all objects of the model are. Two of them are equal when they are the same object of the document."""
    @property
    def parent(self) -> "Object | None":
        """The object that this one belongs to; None for a document."""
        ...
    @property
    def document(self) -> "Document":
        """The document. What belongs to it keeps it."""
        ...
)";

}  // namespace

std::string Comments::Of(std::string_view owner, std::string_view member, std::size_t width) const {
    std::string result;
    std::istringstream paragraphs(
        InPython(member.empty() ? headers_.CommentOf(owner) : headers_.CommentOf(owner, member)));
    for (std::string paragraph; std::getline(paragraphs, paragraph);) {
        std::istringstream words(paragraph);
        std::size_t column = 0;
        for (std::string word; words >> word; column += word.size()) {
            const bool fits = column > 0 && column + 1 + word.size() <= width;
            if (column > 0) result += fits ? ' ' : '\n';
            column = fits ? column + 1 : 0;
            result += word;
        }
        result += '\n';
    }
    while (result.ends_with('\n')) result.pop_back();
    return result;
}

void WriteStubs(const Comments& comments, const std::string& document, std::ostream& out) {
    Writer writer(comments, out);
    out << Head;
    for (const draftwick::Type* type : Enumerations()) {
        if (hosts::AreErrorNumbers(*type)) writer.Errors(*type);
    }
    for (const draftwick::Type* type : Enumerations()) {
        if (!hosts::AreErrorNumbers(*type)) writer.Enumeration(*type);
    }
    out << BaseOfClasses;
    for (const Class* one : Classes())
        writer.Class(*one, one == &Document::Describe() ? document : std::string{});
}

}  // namespace draftwick::python
