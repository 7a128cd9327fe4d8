// Long runs that must not grow: memory, descriptors and temporary files are looked at on the way and at the end.
//
// usage: draftwick_soak long PARAGRAPHS      one document
//        draftwick_soak many DOCUMENTS       small documents, some objects of which are kept for a random time
//        draftwick_soak large GIGABYTES      one file of that size; its length and its end are looked at
#include "tests/fire/LongDocument.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <unistd.h>
#include <vector>

using namespace draftwick;
using namespace draftwick::test;

namespace {

/// Of this process, in kB.
long Memory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + std::strlen("VmRSS:"));
    }
    throw std::runtime_error("no VmRSS");
}

std::ptrdiff_t Entries(const std::string& folder) {
    const std::filesystem::directory_iterator all(folder);
    return std::distance(begin(all), end(all));
}

/// What a run may take more at its end than after its first hundredth.
class Watch {
public:
    void Begin() {
        memory_ = Memory();
        descriptors_ = Entries("/proc/self/fd");
    }
    void End(const TempFolder& temp) const {
        const long more = Memory() - memory_;
        std::printf("memory %ld kB, then %+ld kB\n", memory_, more);
        if (more > 2048) throw std::runtime_error("memory grows");
        if (Entries("/proc/self/fd") != descriptors_) throw std::runtime_error("descriptors are left");
        if (Entries(temp.Path()) != 0) throw std::runtime_error("files are left in " + temp.Path());
    }

private:
    long memory_ = 0;
    std::ptrdiff_t descriptors_ = 0;
};

void Long(long paragraphs) {
    const TempFolder out, temp;
    Watch watch;
    watch.Begin();
    LongDocument(out / "a.rtf", temp.Path(), dwSpellingStandard, "soak", paragraphs / 100)->Finish();
    watch.Begin();
    LongDocument(out / "a.rtf", temp.Path(), dwSpellingStandard, "soak", paragraphs)->Finish();
    watch.End(temp);
}

void Many(long documents) {
    const TempFolder out, temp;
    std::mt19937 random(1);
    std::vector<std::shared_ptr<Object>> kept(1000);
    Watch watch;
    for (long number = 0; number < documents; ++number) {
        if (number == documents / 100) watch.Begin();
        const auto document = LongDocument(out / "a.rtf", temp.Path(),
                                           random() % 2 == 0 ? dwSpellingClassic : dwSpellingStandard, "many",
                                           static_cast<long>(random() % 12), false);
        document->SetDiscardOnRelease(true);
        const auto keep = [&](std::shared_ptr<Object> object) {
            kept[random() % kept.size()] = std::move(object);
        };
        keep(document->CurrentSection());
        keep(document->Fonts());
        if (number % 10 == 0) keep(document->CurrentSection()->AddParagraph());
        if (random() % 4 != 0) document->Finish();  // the others are given up
    }
    kept.clear();
    watch.End(temp);
}

void Large(long gigabytes) {
    const TempFolder out, temp;
    const std::string name = out / "a.rtf";
    const auto document = Document::Create();
    document->SetFilename(name);
    document->SetTempPath(temp.Path());
    const std::uint64_t size = static_cast<std::uint64_t>(gigabytes) << 30U;
    const std::string text(std::size_t{1} << 20U, 'x');
    const auto section = document->AddSection();
    for (std::uint64_t written = 0; written < size; written += text.size())
        section->AddParagraph()->AddTextItem(text);
    document->Finish();
    const std::uint64_t length = std::filesystem::file_size(name);
    std::ifstream file(name, std::ios::binary);
    file.seekg(-300, std::ios::end);
    const std::string end{std::istreambuf_iterator<char>(file), {}};
    std::printf("%llu bytes\n", static_cast<unsigned long long>(length));
    if (length < size || !end.ends_with("}\r\n") || end.find("xxx") == end.npos)
        throw std::runtime_error("the file is not whole");
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) return 2;
    const std::string what = arguments[1];
    const long number = std::atol(arguments[2]);
    try {
        if (what == "long") {
            Long(number);
        } else if (what == "many") {
            Many(number);
        } else {
            Large(number);
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", what.c_str(), error.what());
        return 1;
    }
    return 0;
}
