#include "support/printing.h"

#include "platform/page_printer.h"
#include "platform/process.h"
#include "support/file_names.h"
#include "support/text.h"

namespace lorimet {

std::string SendToPrinterOrFile(PagePrinter& printer, Process& process, const std::string& stem) {
  if (printer.HasPrinter()) return {};
  CheckFileName(stem);
  const std::string path = process.ProgramFolder() + kPathSeparator + stem;
  std::string file = path + ".pdf";
  for (int number = 2; process.FileExists(file); ++number)
    file = path + ' ' + std::to_string(number) + ".pdf";
  printer.PrintToFile(file);
  return file;
}

}  // namespace lorimet
