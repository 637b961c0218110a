#include "tools/cli/terminal.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#define korps_isatty(fd) _isatty(fd)
#define korps_fileno(f) _fileno(f)
#else
#include <unistd.h>
#define korps_isatty(fd) isatty(fd)
#define korps_fileno(f) fileno(f)
#endif

namespace cli {

bool use_colour(const std::string& when)
{
    if (when == "always")
        return true;
    if (when == "never")
        return false;
    return korps_isatty(korps_fileno(stdout)) != 0;
}

std::string coloured(const std::string& text, std::uint32_t colour, bool enabled)
{
    if (!enabled)
        return text;
    char start[32];
    std::snprintf(start, sizeof start, "\x1b[38;2;%u;%u;%um", colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
    return start + text + "\x1b[0m";
}

}   // namespace cli
