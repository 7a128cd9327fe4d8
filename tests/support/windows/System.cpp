#include "tests/support/System.h"

#include <cstdlib>
#include <windows.h>

namespace draftwick::test {

namespace {

void Set(const std::string& name, const char* value) {
    ::SetEnvironmentVariableA(name.c_str(), value);
    ::_putenv_s(name.c_str(), value != nullptr ? value : "");
}

}  // namespace

EnvironmentValue::EnvironmentValue(std::string name, const std::string& value) : name_(std::move(name)) {
    if (const char* before = std::getenv(name_.c_str()); before != nullptr) before_ = before;
    Set(name_, value.c_str());
}

EnvironmentValue::~EnvironmentValue() { Set(name_, before_ ? before_->c_str() : nullptr); }

}  // namespace draftwick::test
