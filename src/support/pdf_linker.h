// The reserved link to a manual in a PDF viewer; no command uses it yet.
#pragma once

#include <string>

namespace lorimet {

class Dictionary;

namespace pdf_linker {

// The viewer's file name under the application paths, and its exchange service and topic.
inline constexpr const char* kViewer = "AcroRd32.exe";
inline constexpr const char* kServiceAndTopic = "acroview|control";

// The commands of the exchange.
std::string OpenDocument(const std::string& path);
std::string GoToNamedDestination(const std::string& name);

// The reasons why the viewer could not be started, in lines, in the current language.
std::string LaunchFailureText(const Dictionary& dictionary);

}  // namespace pdf_linker
}  // namespace lorimet
