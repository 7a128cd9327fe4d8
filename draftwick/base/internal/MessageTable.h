#pragma once

#include <string_view>

namespace draftwick {

/// The message with that number from the message table (base/messages.txt); empty when there is none.
std::string_view MessageText(int number);

}  // namespace draftwick
