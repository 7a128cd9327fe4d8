// Kills a process that writes documents over an old one, at random moments. Under the name must be the old file or the
// whole new one; beside it and in the folder for temporary files may be what SECURITY.md names, and nothing else.
//
// usage: draftwick_kills COUNT [SEED]
#include "tests/fire/LongDocument.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <regex>
#include <sys/wait.h>
#include <unistd.h>

using namespace draftwick;
using namespace draftwick::test;

namespace {

constexpr long Paragraphs = 3000;
constexpr dwSpelling Spellings[] = {dwSpellingClassic, dwSpellingStandard};

using Clock = std::chrono::steady_clock;

[[noreturn]] void Fail(const std::string& what) {
    std::fprintf(stderr, "%s\n", what.c_str());
    std::exit(1);
}

/// Removes what lies in the folder beside `kept`, and counts it by its kind.
void Clear(const std::string& folder, const std::string& kept, std::map<std::string, int>& kinds) {
    static const std::regex known{"(~dw|~dwout|~DWGC)[0-9]+\\.tmp"};
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        std::smatch parts;
        if (name == kept) continue;
        if (!std::regex_match(name, parts, known)) Fail("a file that nobody announced: " + name);
        ++kinds[parts[1]];
        std::filesystem::remove(entry.path());
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 2) return 2;
    const int kills = std::atoi(arguments[1]);
    const auto seed = count > 2 ? static_cast<unsigned>(std::atoi(arguments[2])) : std::random_device{}();
    std::printf("seed %u\n", seed);
    std::mt19937 random(seed);
    const TempFolder out, temp;
    const std::string name = out / "a.rtf";
    const auto write = [&](dwSpelling spelling, const std::string& mark) {
        LongDocument(name, temp.Path(), spelling, mark, Paragraphs)->Finish();
    };

    std::string whole[2][2];  // by spelling and text
    Clock::duration shortest = std::chrono::hours{1};
    for (const dwSpelling spelling : Spellings) {
        for (int text = 0; text < 2; ++text) {
            const auto begin = Clock::now();
            write(spelling, text == 0 ? "one" : "two");
            shortest = std::min(shortest, Clock::now() - begin);
            whole[spelling == dwSpellingStandard][text] = ReadFile(name);
        }
    }
    WriteFile(name, "old");
    std::string old = "old";
    int late = 0, replaced = 0;
    std::map<std::string, int> left;
    for (int kill = 0; kill < kills;) {
        const dwSpelling spelling = Spellings[random() % 2];
        const int text = static_cast<int>(random() % 2);
        const pid_t child = ::fork();
        if (child == 0) {
            write(spelling, text == 0 ? "one" : "two");
            ::_exit(0);
        }
        // Finish is the last part of it, and gets half of the kills.
        std::uniform_real_distribution<> when(kill % 2 == 0 ? 0.0 : 0.8, 1.1);
        ::usleep(static_cast<useconds_t>(std::chrono::duration<double, std::micro>(shortest).count()
                                         * when(random)));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        const std::string now = ReadFile(name);
        const std::string& complete = whole[spelling == dwSpellingStandard][text];
        if (now != old && now != complete) Fail("neither the old file nor the new one: " + name);
        if (WIFSIGNALED(status)) {
            ++kill;
            replaced += now == complete ? 1 : 0;
        } else {
            ++late;
            if (now != complete) Fail("finished, but not there");
        }
        old = now;
        Clear(out.Path(), "a.rtf", left);
        Clear(temp.Path(), "", left);
        if (random() % 2 == 0) WriteFile(name, old = "old");
    }
    std::printf("%d killed, %d of them with the new file under its name; %d came too late; left behind:",
                kills, replaced, late);
    for (const auto& [kind, files] : left) std::printf(" %s %d", kind.c_str(), files);
    std::printf("\n");
    return 0;
}
