#pragma once

#include <string>

namespace draftwick::command {

/// Deletes the temporary files that processes left in the folder when they were killed: those of the library's names that
/// nobody has written to for a day, since younger ones may be in use. Says on standard output what it did with each.
/// Failure when the folder cannot be read or a file not be deleted.
void Clean(const std::string& folder);

}  // namespace draftwick::command
