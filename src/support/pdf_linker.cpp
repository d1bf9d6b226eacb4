#include "support/pdf_linker.h"

#include "support/dictionary.h"
#include "support/text.h"

namespace lorimet::pdf_linker {

std::string OpenDocument(const std::string& path) { return "[DocOpen(" + path + ")]"; }

std::string GoToNamedDestination(const std::string& name) {
  return "[DocGoToNameDest(NULL," + name + ")]";
}

std::string LaunchFailureText(const Dictionary& dictionary) {
  return dictionary.Translate(
             "Failed to launch Adobe Acrobat Reader due to one of the following reasons:") +
         kCrLf +
         dictionary.Translate("1.  Path to the executable contained in the registry is invalid.") +
         kCrLf + dictionary.Translate("2.  Adobe Acrobat Reader version is not 4.0 or higher.") +
         kCrLf + dictionary.Translate("3.  Adobe Acrobat Reader has not been installed.");
}

}  // namespace lorimet::pdf_linker
