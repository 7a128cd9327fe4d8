// Succeeds when two files are the same whole RTF document; says what is wrong otherwise.

#include "tests/support/Rtf.h"
#include "tests/support/TempFolder.h"

#include <cstdio>

int main(int count, char** names) {
    if (count != 3) return 2;
    const std::string first = draftwick::test::ReadFile(names[1]);
    std::string complaint = draftwick::test::CheckFile(first);
    if (first != draftwick::test::ReadFile(names[2])) complaint += " The files differ.";
    if (!complaint.empty()) std::printf("%s, %s: %s\n", names[1], names[2], complaint.c_str());
    return complaint.empty() ? 0 : 1;
}
