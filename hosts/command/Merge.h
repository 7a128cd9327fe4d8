#pragma once

#include "hosts/command/Options.h"

#include <cstdint>
#include <memory>
#include <string>

namespace draftwick::command {

/// A new document as the options want it, ready for its first section unless it comes from JSON.
std::shared_ptr<Document> NewDocument(const Options& options, const Style* style, const std::string& output);
/// Finishes a document; an output "-" is standard output.
void Deliver(Document& document, const std::string& output);
/// Writes a document of its own for a row; nullptr without any.
void WriteDocument(const Manuscript& manuscript, const Style& style, const Options& options,
                   const std::string& output, const Datum* row);

/// Writes a document for each row, or one for all. How many rows failed; messages say why. Failure when there is
/// nothing to go on with.
std::int64_t Merge(const Manuscript& manuscript, const Style& style, const Options& options);

}  // namespace draftwick::command
