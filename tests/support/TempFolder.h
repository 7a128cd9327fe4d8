#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace draftwick::test {

/// A new folder for one test, removed with all that is in it at the end.
class TempFolder {
public:
    TempFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("draftwick-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string Path() const { return path_.string(); }
    /// The full name of a file in the folder.
    std::string operator/(std::string_view name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

inline std::string ReadFile(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteFile(const std::string& name, std::string_view bytes) {
    std::ofstream file(name, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + name);
}

}  // namespace draftwick::test
