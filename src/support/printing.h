// Where printed pages go on a machine that has a printer, and on one that has none.
#pragma once

#include <string>

namespace lorimet {

class PagePrinter;
class Process;

// Sends the next document to the default printer or, where the machine has none, to a PDF file in
// the program's folder: `stem`.pdf or, when that name is taken, `stem` 2.pdf and so on. Gives the
// whole path of the file, and an empty text for the printer. Error 52 for a stem that is no name
// for a file.
std::string SendToPrinterOrFile(PagePrinter& printer, Process& process, const std::string& stem);

}  // namespace lorimet
