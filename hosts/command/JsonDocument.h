#pragma once

#include "hosts/command/Input.h"

#include <draftwick/draftwick.h>

#include <memory>
#include <string>
#include <string_view>

namespace draftwick::command {

/// Fills a document with what a JSON text says by the names of the object model. Failure with its place for all that
/// is wrong in the text. The document is not finished.
void FillFromJson(Input& input, const std::shared_ptr<Document>& document);

/// A JSON Schema for these texts, out of the descriptions of the classes.
std::string JsonSchema();

/// The names of what a class can hold: "Paragraph" for a method AddParagraph.
inline constexpr std::string_view AddPrefix = "Add";
/// The member that lists what an object holds.
inline constexpr std::string_view ContentMember = "Content";

/// "Paragraph" of AddParagraph; empty for any other method, and for the Add of a collection.
std::string_view ContentName(const ClassMethod& method);
/// Whether a method can be called by its name as a member of an object: what adds content has a list of its own, and a
/// document is not finished, shown or printed by what it holds.
bool IsCallable(const Class& description, const ClassMethod& method);

}  // namespace draftwick::command
