#include "adapters/headless/headless_ports.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "adapters/headless/xml_reader.h"
#include "platform/runtime_error.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::int32_t kInvalidHandle = 6;
constexpr std::uint32_t kRegKeyQueryValue = 1;

// A key as it is looked up.
std::string Folded(const std::string& key) {
  const std::string folded = ToLowerCp1252(key);
  return folded.substr(0, folded.find_last_not_of('\\') + 1);
}

}  // namespace

void MemoryRegistry::SetRaw(RegistryHive hive, const std::string& key, const std::string& name,
                            Value value) {
  keys_[{hive, Folded(key)}][ToLowerCp1252(name)] = std::move(value);
}

void MemoryRegistry::SetText(RegistryHive hive, const std::string& key, const std::string& name,
                             const std::string& bytes) {
  Value value{kRegString, {bytes.begin(), bytes.end()}};
  value.data.push_back(0);
  SetRaw(hive, key, name, std::move(value));
}

void MemoryRegistry::SetNumber(RegistryHive hive, const std::string& key, const std::string& name,
                               std::uint32_t value) {
  Value raw{kRegDword, {}};
  for (int i = 0; i < 4; ++i) raw.data.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
  SetRaw(hive, key, name, std::move(raw));
}

void MemoryRegistry::Remove(RegistryHive hive, const std::string& key, const std::string& name) {
  keys_[{hive, Folded(key)}].erase(ToLowerCp1252(name));
}

const MemoryRegistry::Value* MemoryRegistry::Find(RegistryHive hive, const std::string& key,
                                                  const std::string& name) const {
  const auto values = keys_.find({hive, Folded(key)});
  if (values == keys_.end()) return nullptr;
  const auto value = values->second.find(ToLowerCp1252(name));
  return value == values->second.end() ? nullptr : &value->second;
}

std::int32_t MemoryRegistry::OpenKey(RegistryHive hive, const std::string& path,
                                     std::uint32_t access, RegistryKey& key) {
  if (open_answer != kRegSuccess) return open_answer;
  // A key is there when it or one below it is.
  const Path wanted{hive, Folded(path)};
  const bool found = std::ranges::any_of(keys_, [&](const auto& row) {
    const auto& [in, name] = row.first;
    return in == hive && (wanted.second.empty() || name == wanted.second ||
                          name.starts_with(wanted.second + '\\'));
  });
  if (!found) return kRegFileNotFound;
  key = ++last_key_;
  opened_[key] = {wanted, access};
  return kRegSuccess;
}

std::int32_t MemoryRegistry::QueryValue(RegistryKey key, const std::string& name,
                                        std::uint32_t& type, std::vector<std::uint8_t>& data) {
  const auto opened = opened_.find(key);
  if (opened == opened_.end()) return kInvalidHandle;
  const auto& [path, access] = opened->second;
  if ((access & kRegKeyQueryValue) == 0) return kRegAccessDenied;
  const Value* value = Find(path.first, path.second, name);
  if (value == nullptr) return kRegFileNotFound;
  type = value->type;
  if (value->data.size() > data.size()) return kRegMoreData;
  data = value->data;
  return kRegSuccess;
}

std::int32_t MemoryRegistry::SetDword(RegistryKey key, const std::string& name,
                                      std::uint32_t value) {
  const auto opened = opened_.find(key);
  if (opened == opened_.end()) return kInvalidHandle;
  const auto& [path, access] = opened->second;
  if ((access & kRegKeySetValue) == 0) return kRegAccessDenied;
  SetNumber(path.first, path.second, name, value);
  return kRegSuccess;
}

std::int32_t MemoryRegistry::CreateKey(RegistryHive hive, const std::string& path,
                                       std::uint32_t access, RegistryKey& key) {
  if (create_answer != kRegSuccess) return create_answer;
  keys_[{hive, Folded(path)}];
  open_answer = kRegSuccess;
  return MemoryRegistry::OpenKey(hive, path, access, key);
}

void MemoryRegistry::CloseKey(RegistryKey key) { opened_.erase(key); }

std::intptr_t HeadlessMessageHook::OriginalProcedure::OnMessage(std::uintptr_t window,
                                                                std::uint32_t message,
                                                                std::uintptr_t wparam,
                                                                std::intptr_t lparam) {
  static_cast<void>(window);
  static_cast<void>(wparam);
  messages.push_back(message);
  return lparam + 1;  // something that a caller can tell from its own 0
}

std::uint32_t HeadlessMessageHook::RegisterMessage(const std::string& name) {
  registered_name = name;
  return message_id;
}

WindowProcedure* HeadlessMessageHook::SetProcedure(std::uintptr_t window,
                                                   WindowProcedure* procedure) {
  static_cast<void>(window);
  return std::exchange(current_, procedure);
}

std::intptr_t HeadlessMessageHook::CallProcedure(WindowProcedure* previous, std::uintptr_t window,
                                                 std::uint32_t message, std::uintptr_t wparam,
                                                 std::intptr_t lparam) {
  return chain_.PassOn(previous, original_, window, message, wparam, lparam);
}

std::intptr_t HeadlessMessageHook::Send(std::uint32_t message, std::uintptr_t wparam,
                                        std::intptr_t lparam) {
  return chain_.Deliver(*current_, kWindow, message, wparam, lparam);
}

void HeadlessMessageHook::Deliver() {
  for (std::size_t count = pending_.size(); count > 0 && !pending_.empty(); --count) {
    const std::int32_t status = pending_.front();
    pending_.pop_front();
    Send(message_id, 0, status);
  }
}

bool HeadlessProcess::FileExists(const std::string& path) {
  return std::ranges::find(files, path) != files.end();
}

bool HeadlessProcess::Start(const std::string& path, const std::string& arguments) {
  started.push_back(arguments.empty() ? path : path + " " + arguments);
  return starts;
}

void RecordingHelpViewer::Show(const std::string& help_file, HelpCommand command,
                               const std::string& key) {
  if (fails_with != 0) throw RuntimeError(fails_with, ErrorDescription(fails_with));
  calls.push_back({help_file, command, key});
}

bool TsTranslations::Open() {
  if (!opens) return false;
  constexpr std::pair<int, const char*> kFiles[] = {{kFrench, "lorimet_fr.ts"},
                                                    {kSpanish, "lorimet_es.ts"}};
  for (const auto& [language, file] : kFiles) {
    std::ifstream stream(folder_ + "/" + file, std::ios::binary);
    std::stringstream text;
    text << stream.rdbuf();
    const std::string xml = text.str();
    XmlReader reader(xml);
    std::string source;
    std::string value;
    while (reader.Next()) {
      if (reader.Kind() == XmlReader::Token::kStart) value.clear();
      if (reader.Kind() == XmlReader::Token::kText) value += reader.Text();
      if (reader.Kind() != XmlReader::Token::kEnd) continue;
      if (reader.Name() == "source") source = value;
      if (reader.Name() == "translation") rows_[language][source] = value;
    }
  }
  return !rows_.empty();
}

std::string TsTranslations::Lookup(int language, const std::string& key) {
  const auto& rows = rows_[language];
  const auto row = rows.find(key);
  return row == rows.end() ? std::string() : row->second;
}

}  // namespace lorimet
