// How the command line ends: 0 when all went well, 1 when a rendering, a parse
// or a check failed, 2 when the command itself was wrong.
#pragma once

#include <stdexcept>

namespace cli {

enum exit_code { success = 0, failed = 1, usage = 2 };

// A wrong argument: the message says which and why.
class usage_error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}   // namespace cli
