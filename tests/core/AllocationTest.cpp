#include "tests/support/Documents.h"
#include "tests/support/Everything.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/TempFolder.h"

#include <cstdlib>
#include <new>

namespace {
thread_local long untilFailure = 0;  // counts down; 0: none fails
}

// The whole test program allocates here.
void* operator new(std::size_t size) {
    void* memory = untilFailure > 0 && --untilFailure == 0 ? nullptr : std::malloc(size + (size == 0));
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace draftwick::test {

namespace {

/// How many files the process has open, where that can be seen.
std::ptrdiff_t OpenHandles() {
    std::error_code none;
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd", none), {});
}

}  // namespace

// Real files: those in memory allocate themselves. Leaks of memory are found by the sanitizer. The host may go on to
// use what it has: it gets more refusals perhaps, but no crash. When it lets the document go nothing is left.
class FaultsOfAllocations : public testing::TestWithParam<std::string> {};

TEST_P(FaultsOfAllocations, ReachTheHost) {
    const auto is = [](std::string_view what) { return GetParam().find(what) != std::string::npos; };
    const bool toFunction = is("ToFunction");
    const TempFolder folder;
    const std::string bmp = folder / "a.bmp", jpg = folder / "a.jpg", file = folder / "out.rtf";
    WriteFile(bmp, PictureFile("sample/4.bmp"));
    WriteFile(jpg, MakeJpeg(8, 8, 1, 96, 96));
    platform::Platform services = platform::SystemPlatform();
    const auto environment = std::make_shared<FakeEnvironment>();
    environment->tempFolder = folder.Path();
    services.environment = environment;
    {
        // What a thread needs once is allocated by the language's own code, which does without if it must.
        const auto first = Document::Create(services);
        first->SetDiscardOnRelease(true);
        first->AddSection();
    }
    const std::ptrdiff_t handles = OpenHandles();
    bool failed = true;
    std::string delivered;
    for (long n = 1; failed && !HasFailure(); ++n) {
        std::shared_ptr<Document> document;
        untilFailure = n;
        try {
            document = Document::Create(services);
            document->SetDiscardOnRelease(true);
            document->SetBodyInMemory(is("Memory"));
            if (is("Once")) document->SetSpelling(dwSpellingStandard);  // the body goes to the file itself
            document->SetFilename(file);
            AddEverything(document, bmp, jpg, [](const std::function<Variant()>& step) { return step(); });
            if (toFunction) {
                std::string bytes;
                document->FinishTo([&](std::string_view more) { bytes += more; });
                delivered = bytes;
            } else {
                document->Finish();
            }
            EXPECT_GT(untilFailure, 0) << "the host did not hear of it";
            failed = false;
        } catch (const std::bad_alloc&) {
        }
        untilFailure = 0;
        try {
            if (document != nullptr) document->Finish();
        } catch (const Error&) {
        }
        document.reset();
        EXPECT_LE(OpenHandles(), handles) << n;  // a system closes some of its own now and then
        for (const auto& left : std::filesystem::directory_iterator(folder.Path())) {
            const std::string name = left.path().filename().string();
            EXPECT_FALSE(name.starts_with('~')) << name << " is left of " << n;
        }
    }
    EXPECT_EQ(CheckFile(toFunction ? delivered : ReadFile(file)), "");
}

INSTANTIATE_TEST_SUITE_P(Of, FaultsOfAllocations,
                         testing::Values("FileToFile", "FileToFunction", "MemoryToFile", "MemoryToFunction",
                                         "FileOnce"),
                         [](const auto& info) { return info.param; });

}  // namespace draftwick::test
