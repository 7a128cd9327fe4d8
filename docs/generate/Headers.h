#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::docs {

/// What the comments of the library's headers say, which the classes' descriptions do not hold. A comment is for the
/// declarations below it, up to the next comment or empty line; a value of an enumeration has its own behind it.
class Headers {
public:
    /// Reads all headers in a folder and below.
    explicit Headers(const std::filesystem::path& sources);

    /// "format/Fonts.h": the header that declares a class or enumeration. Throws std::out_of_range when none does.
    const std::string& FileOf(std::string_view type) const;
    /// What is said about a class or enumeration, with an empty line between paragraphs; empty: nothing.
    std::string CommentOf(std::string_view type) const;
    /// What is said about a property or method of a class, there or in one that it is derived from, all overloads
    /// together, or about a value of an enumeration: the names are those of the descriptions. Empty: nothing, of a
    /// property also where its enumeration tells what there is to tell.
    std::string CommentOf(std::string_view type, std::string_view member) const;

private:
    struct Declaration {
        std::string file;
        std::string comment;
        std::vector<std::string> bases;
        std::map<std::string, std::string, std::less<>> members;
    };

    void Read(std::istream& source, const std::string& file);
    std::string Find(std::string_view type, const std::string& member) const;

    std::map<std::string, Declaration, std::less<>> declarations_;
};

/// The sentences of a comment, with their full stops. A plain default ("Default 12.") is one of its own.
std::vector<std::string> SentencesOf(std::string_view comment);

}  // namespace draftwick::docs
