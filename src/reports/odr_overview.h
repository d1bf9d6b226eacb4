// The overview of the operating data recorder: its four counters, read from the ECU, and its two
// documents.
#pragma once

#include <ctime>
#include <string>

namespace lorimet {

class Dictionary;
class LinkLibrary;
class PagePrinter;

// As the screen shows it, in UTF-8: counts have a leading blank, one that the ECU did not give is
// "N/A".
struct OdrOverview {
  std::string vehicle;
  std::string abs;
  std::string stop_light;
  std::string level_1;
  std::string level_2;
};

// The texts of the counters; the vehicle stays empty. Error 6 for a word of 32768 or more.
OdrOverview ReadOdrCounters(LinkLibrary& link);

// The text of the file, in code page 1252. It is English whatever the language.
std::string OdrFileText(const OdrOverview& overview, const std::tm& now);

// Prints it as one document, in the dictionary's language.
void PrintOdrOverview(const OdrOverview& overview, const std::tm& now, PagePrinter& printer,
                      const Dictionary& dictionary);

}  // namespace lorimet
