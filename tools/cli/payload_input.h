// The payload of `korps render`: hexadecimal arguments (blanks allowed),
// @FILE for a file's raw bytes, or - for the raw bytes of standard input.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace cli {

std::vector<std::uint8_t> read_payload(const std::vector<std::string>& arguments);

// Hexadecimal text, blanks ignored; usage_error naming the argument otherwise.
std::vector<std::uint8_t> hex_bytes(const std::string& text, const std::string& what);

// The whole of a file or, for "-", of standard input.
std::string read_all(const std::string& path);

}   // namespace cli
