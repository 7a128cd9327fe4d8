// Runs a fuzz target once over every file of the folders that are named: what the fuzzer's own main does, without
// the fuzzer.

#include "tests/support/TempFolder.h"

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** folders) {
    int files = 0;
    for (int i = 1; i < count; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(folders[i])) {
            const std::string bytes = draftwick::test::ReadFile(entry.path().string());
            std::printf("%s\n", entry.path().filename().string().c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++files;
        }
    }
    return files > 0 ? 0 : 1;
}
