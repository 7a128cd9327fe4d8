#include "tests/support/System.h"

#include <cstdlib>

namespace draftwick::test {

EnvironmentValue::EnvironmentValue(std::string name, const std::string& value) : name_(std::move(name)) {
    if (const char* before = std::getenv(name_.c_str()); before != nullptr) before_ = before;
    ::setenv(name_.c_str(), value.c_str(), 1);
}

EnvironmentValue::~EnvironmentValue() {
    if (before_) {
        ::setenv(name_.c_str(), before_->c_str(), 1);
    } else {
        ::unsetenv(name_.c_str());
    }
}

}  // namespace draftwick::test
