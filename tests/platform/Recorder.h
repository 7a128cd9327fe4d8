#pragma once

#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

#include <draftwick/draftwick.h>
#include <draftwick/platform/Platform.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace draftwick::test {

using Words = std::vector<std::string>;

/// The name of a program that writes the words it is started with, each with a zero behind it, to a file that
/// is named like its task in the folder DRAFTWICK_RECORDS. It is in the folder, or beside the tests.
std::string RecorderIn(const TempFolder& folder);

class Recorder : public testing::Test {
protected:
    Recorder() { std::filesystem::create_directory(records); }

    TempFolder folder;
    std::string records = folder / "records";
    EnvironmentValue variable{"DRAFTWICK_RECORDS", records};
    std::string program = RecorderIn(folder);
    std::shared_ptr<platform::Programs> programs = platform::SystemPlatform().programs;

    std::string Record(std::int32_t task) const {
        const std::string name = (std::filesystem::path(records) / std::to_string(task)).string();
        for (int i = 0; i < 3000 && !std::filesystem::exists(name); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::string record = ReadFile(name);
        std::filesystem::remove(name);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(records), {}), 0) << "it ran twice";
        return record;
    }
    Words Recorded(std::int32_t task) const {
        const std::string record = Record(task);
        Words words;
        for (std::size_t at = 0; at < record.size(); at = record.find('\0', at) + 1) {
            words.push_back(record.c_str() + at);
        }
        return words;
    }
    Words Run(const std::string& arguments, const std::string& file) const {
        return Recorded(programs->Start("\"" + program + "\"" + arguments, file));
    }
};

}  // namespace draftwick::test
