// The words of one command line, and the numbers and texts among them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet::simulator {

// The words of a line, in code page 1252. Blanks part them; double quotes hold a word together, in
// which \" \\ and \xNN stand for a character; '#' at the beginning of a word begins a comment.
// Nothing for quotes that do not end.
std::optional<std::vector<std::string>> SplitWords(std::string_view line);

// Whole texts only; 0x begins a hexadecimal integer. Nothing for anything else or out of range.
std::optional<double> ParseNumber(std::string_view text);
std::optional<std::int64_t> ParseInteger(std::string_view text, std::int64_t low,
                                         std::int64_t high);

// The part of UTF-8 that code page 1252 shares with Latin-1; any other character becomes "?".
std::string ToCodePage(std::string_view utf8);

}  // namespace lorimet::simulator
