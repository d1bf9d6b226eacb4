// The ports that a program is put together from.
#pragma once

namespace lorimet {

class Clock;
class Desktop;
class HelpViewer;
class LinkLibrary;
class MessageHook;
class PagePrinter;
class Process;
class ProfileFile;
class Registry;
class TextFiles;
class TranslationSource;

struct Ports {
  Desktop& desktop;
  Clock& clock;
  Registry& registry;
  MessageHook& hook;
  Process& process;
  LinkLibrary& link;
  HelpViewer& help_viewer;
  TranslationSource& translations;
  ProfileFile& profile_file;
  TextFiles& text_files;
  PagePrinter& printer;
};

}  // namespace lorimet
