#include <QLineEdit>
#include <QMessageBox>

#include "tour/chapters.h"
#include "tour/hand.h"
#include "tour/script.h"

namespace lorimet {

void ShowHelp(Script& script) {
  script.Chapter("Help");
  script.Command("mnuHelp_0");
  script.Picture("frmHelp", "help-contents", "The contents of the help");
  script.Command("mnuHelp_1");
  script.Until("the help's search",
               [] { return FindIn<QLineEdit>("frmHelp", "txtHelpSearch") != nullptr; });
  script.Type("frmHelp", "txtHelpSearch", "ABS");
  script.Do([] { PressKey(*FindWindow("frmHelp"), Qt::Key_Return); });
  script.Picture("frmHelp", "help-search", "The pages that hold a word");
  script.Close("frmHelp");
  script.Command("mnuHelp_3");
  script.Picture("frmAbout", "about", "About the program");
  script.Press("frmAbout", "cmdOK");
  script.UntilGone("frmAbout");
  script.Tell("The help was opened and searched");
}

void ShowTheEnd(Script& script) {
  script.Chapter("The end");
  script.Command("tbrABS_exit");
  // There is no launcher to return to.
  script.Answer("Could not locate the Norvick Main executable.", QMessageBox::Ok);
}

}  // namespace lorimet
