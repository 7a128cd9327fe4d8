#include "tests/support/Script.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <stdexcept>

namespace draftwick::test {

namespace {

/// "dwAlignCenter = 3" of all headers. The class descriptions do not know the names yet.
std::map<std::string, std::int32_t, std::less<>> ReadConstants() {
    std::map<std::string, std::int32_t, std::less<>> constants;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(DRAFTWICK_SOURCE_FOLDER)) {
        if (entry.path().extension() != ".h") continue;
        const std::string header = ReadFile(entry.path().string());
        for (std::size_t at = 0; (at = header.find(" dw", at)) != header.npos; ++at) {
            const std::size_t end = std::min(header.find(' ', at + 1), header.size());
            if (header.compare(end, 3, " = ") == 0
                && std::isdigit(static_cast<unsigned char>(header[end + 3])) != 0) {
                constants.emplace(header.substr(at + 1, end - at - 1), std::stoi(header.substr(end + 3, 9)));
            }
        }
    }
    return constants;
}

}  // namespace

std::int32_t ConstantNamed(std::string_view name) {
    static const auto constants = ReadConstants();
    const auto found = constants.find(name);
    if (found == constants.end()) throw std::invalid_argument("no constant: " + std::string{name});
    return found->second;
}

}  // namespace draftwick::test
