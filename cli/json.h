// Writing JSON text: quoted strings and the few shapes the tool prints.
#pragma once

#include <string>

namespace cli {

/// \p text as a JSON string, quotes included. Bytes that are not valid
/// UTF-8 are written as U+FFFD, so the document stays valid.
std::string JsonString(const std::string& text);

}  // namespace cli
