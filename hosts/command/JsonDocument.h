#pragma once

#include <draftwick/draftwick.h>

#include <istream>
#include <string>

namespace draftwick::command {

/// Fills a document with what a JSON text says by the names of the object model. Failure with its place for all that
/// is wrong in the text. The document is not finished.
/// The head is what was read of the input already.
void FillFromJson(std::istream& input, const std::string& name, const std::shared_ptr<Document>& document,
                  std::string_view head = {});

/// A JSON Schema for these texts, out of the descriptions of the classes.
std::string JsonSchema();

/// Whether a method can be called by its name as a member of an object: what adds content has a list of its own, and a
/// document is not finished, shown or printed by what it holds.
bool IsCallable(const Class& description, const ClassMethod& method);
/// The names of what a class can hold: "Paragraph" for a method AddParagraph.
inline constexpr std::string_view AddPrefix = "Add";
/// The member that lists what an object holds.
inline constexpr std::string_view ContentMember = "Content";
/// The files of a document are the command's own business.
bool IsSettable(const Class& description, const ClassProperty& property);

}  // namespace draftwick::command
