#pragma once

#include <draftwick/base/Error.h>
#include <draftwick/base/internal/Names.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace draftwick::test {

/// What an action was refused with; "accepted" when it was not.
inline std::string Refusal(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        EXPECT_NE(error.Advice(), error.what());
        return ErrorNumberText(error.Number()) + " " + error.what();
    }
    return "accepted";
}

/// What to do about the refusal of an action.
inline std::string Advice(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.Advice();
    }
    return "accepted";
}

/// What an object is refused with that is written already.
inline std::string Emitted(const std::string& object) {
    return "X109 Invalid operation.  Target already emitted " + object + ".";
}

/// The number of the refusal, 0 when there was none.
inline std::int32_t RefusalNumber(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        EXPECT_NE(error.Advice(), error.what());
        return error.Number();
    }
    return 0;
}

}  // namespace draftwick::test
