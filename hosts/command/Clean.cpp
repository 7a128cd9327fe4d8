#include "hosts/command/Clean.h"

#include "hosts/command/Message.h"

#include <chrono>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <system_error>

namespace draftwick::command {

namespace {

/// "~dw1.tmp": the body of a document; "~dwout1.tmp": a file before it gets its name; "~DWGC1.tmp": a converted picture.
bool IsTemporary(std::string_view name) {
    for (const std::string_view prefix : {"~dwout", "~dw", "~DWGC"}) {
        if (!name.starts_with(prefix) || !name.ends_with(".tmp")) continue;
        const std::size_t end = name.size() - 4;
        return end > prefix.size() && name.find_first_not_of("0123456789", prefix.size()) == end;
    }
    return false;
}

}  // namespace

void Clean(const std::string& folder) {
    namespace fs = std::filesystem;
    std::error_code error;
    const auto limit = fs::file_time_type::clock::now() - std::chrono::hours{24};
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const std::string file = at->path().string();
        if (!IsTemporary(at->path().filename().string()) || !fs::is_regular_file(at->symlink_status()))
            continue;
        const auto written = fs::last_write_time(at->path(), error);
        if (error == std::errc::no_such_file_or_directory) {  // its owner has just deleted it
            error.clear();
        } else if (!error && written > limit) {
            std::cout << file << ": left, since it may be in use\n";
        } else if (!error) {
            fs::remove(at->path(), error);
            if (error) throw Failure({file}, "cannot be deleted: " + error.message());
            std::cout << file << ": deleted\n";
        }
    }
    if (error) throw Failure({folder}, "cannot be read: " + error.message());
}

}  // namespace draftwick::command
