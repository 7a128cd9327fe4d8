#include "tests/platform/Recorder.h"

#include <windows.h>

namespace draftwick::test {

std::string RecorderIn(const TempFolder&) {
    char name[MAX_PATH];
    ::GetModuleFileNameA(nullptr, name, MAX_PATH);
    return (std::filesystem::path(name).parent_path() / "draftwick_recorder.exe").string();
}

TEST_F(Recorder, IsSentKeys) {
    const HWND probe =
        ::CreateWindowW(L"STATIC", L"", WS_OVERLAPPED, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    if (probe == nullptr) GTEST_SKIP() << "there is no screen";
    ::DestroyWindow(probe);
    const std::int32_t task = programs->Start("\"" + program + "\" --window", "");
    programs->ProcessEvents();
    programs->Activate(task);
    programs->SendKeys("^p");
    programs->SendKeys("~");
    EXPECT_EQ(Record(task), "^P\r");
    EXPECT_THROW(programs->Activate(-1), std::system_error);
}

}  // namespace draftwick::test
