// The small ports without a desktop, for the tests: everything is in memory and can be looked at.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/message_hook.h"
#include "platform/procedure_chain.h"
#include "platform/process.h"
#include "platform/registry.h"
#include "platform/translation_source.h"

namespace lorimet {

class MemoryRegistry : public Registry {
 public:
  struct Value {
    std::uint32_t type = kRegString;
    std::vector<std::uint8_t> data;
  };

  // Sets a value and creates its key.
  void SetText(RegistryHive hive, const std::string& key, const std::string& name,
               const std::string& bytes);
  void SetNumber(RegistryHive hive, const std::string& key, const std::string& name,
                 std::uint32_t value);
  void SetRaw(RegistryHive hive, const std::string& key, const std::string& name, Value value);
  void Remove(RegistryHive hive, const std::string& key, const std::string& name);
  // Null when there is none.
  const Value* Find(RegistryHive hive, const std::string& key, const std::string& name) const;
  int OpenKeys() const { return static_cast<int>(opened_.size()); }
  // What OpenKey answers instead of looking; kRegSuccess looks.
  std::int32_t open_answer = kRegSuccess;
  std::int32_t create_answer = kRegSuccess;

  std::int32_t OpenKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                       RegistryKey& key) override;
  std::int32_t QueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                          std::vector<std::uint8_t>& data) override;
  std::int32_t SetDword(RegistryKey key, const std::string& name, std::uint32_t value) override;
  std::int32_t CreateKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                         RegistryKey& key) override;
  void CloseKey(RegistryKey key) override;

 private:
  using Path = std::pair<RegistryHive, std::string>;
  std::map<Path, std::map<std::string, Value>> keys_;
  std::map<RegistryKey, std::pair<Path, std::uint32_t>> opened_;  // with their access rights
  RegistryKey last_key_ = 0;
};

class HeadlessMessageHook : public MessageHook {
 public:
  static constexpr std::uintptr_t kWindow = 0x1234;

  // Puts a status on its way; Deliver hands it over.
  void Post(std::int32_t status) { pending_.push_back(status); }
  void Deliver();
  // Sends any message to the window's procedure.
  std::intptr_t Send(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam);
  std::size_t Pending() const { return pending_.size(); }
  // Messages that reached the window's original procedure.
  const std::vector<std::uint32_t>& ReachedOriginal() const { return original_.messages; }
  WindowProcedure* Current() const { return current_; }
  WindowProcedure* Original() { return &original_; }
  std::uint32_t message_id = 0xC123;

  std::uint32_t RegisterMessage(const std::string& name) override;
  std::uintptr_t MainWindow() override { return kWindow; }
  WindowProcedure* SetProcedure(std::uintptr_t window, WindowProcedure* procedure) override;
  std::intptr_t CallProcedure(WindowProcedure* previous, std::uintptr_t window,
                              std::uint32_t message, std::uintptr_t wparam,
                              std::intptr_t lparam) override;
  void DropPending() override { pending_.clear(); }

  std::string registered_name;

 private:
  class OriginalProcedure : public WindowProcedure {
   public:
    std::intptr_t OnMessage(std::uintptr_t window, std::uint32_t message, std::uintptr_t wparam,
                            std::intptr_t lparam) override;
    std::vector<std::uint32_t> messages;
  };

  OriginalProcedure original_;
  WindowProcedure* current_ = &original_;
  ProcedureChain chain_;
  std::deque<std::int32_t> pending_;
};

class HeadlessProcess : public Process {
 public:
  bool ClaimSingleInstance() override { return single; }
  bool FileExists(const std::string& path) override;
  bool Start(const std::string& path, const std::string& arguments) override;
  std::string ProgramFolder() override { return folder; }

  bool single = true;
  bool starts = true;
  std::string folder = "/program";
  std::vector<std::string> files;
  std::vector<std::string> started;  // command lines
};

class RecordingHelpViewer : public HelpViewer {
 public:
  struct Call {
    std::string file;
    HelpCommand command;
    std::string key;
    bool operator==(const Call&) const = default;
  };
  // Raises the error of this number instead of opening, unless it is 0.
  int fails_with = 0;
  std::vector<Call> calls;

  void Show(const std::string& help_file, HelpCommand command, const std::string& key) override;
};

// The dictionary's texts, straight from the .ts files of a folder.
class TsTranslations : public TranslationSource {
 public:
  explicit TsTranslations(std::string folder) : folder_(std::move(folder)) {}
  bool Open() override;
  std::string Lookup(int language, const std::string& key) override;
  const std::map<std::string, std::string>& Rows(int language) { return rows_[language]; }
  bool opens = true;

 private:
  std::string folder_;
  std::map<int, std::map<std::string, std::string>> rows_;
};

}  // namespace lorimet
