#include "adapters/headless/ui_design.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "adapters/headless/xml_reader.h"

namespace lorimet {
namespace {

// One open element on the way down to a property's value.
struct Frame {
  std::string tag;
  std::string name;
  std::string widget_class;
};

bool Holds(const std::string& text) { return text == "true"; }

void Apply(UiControl& control, const std::string& property, const std::string& value) {
  ControlDesign& design = control.design;
  const bool text_box = control.widget_class == "QLineEdit" ||
                        control.widget_class == "QPlainTextEdit" ||
                        control.widget_class == "QTextEdit";
  if (property == "text" || property == "plainText") {
    (text_box ? design.text : design.caption) = value;
  } else if (property == "title") {
    design.caption = value;
  } else if (property == "toolTip") {
    design.tool_tip = value;
  } else if (property == "enabled") {
    design.enabled = Holds(value);
  } else if (property == "visible") {
    design.visible = Holds(value);
  } else if (property == "checked") {
    design.value = Holds(value);
  } else if (property == "maxLength") {
    design.max_length = std::atoi(value.c_str());
  } else if (property == "minimum") {
    design.minimum = std::atoi(value.c_str());
  } else if (property == "maximum") {
    design.maximum = std::atoi(value.c_str());
  }
}

class Reader {
 public:
  UiDesign Read(const std::string& xml) {
    XmlReader reader(xml);
    while (reader.Next()) {
      switch (reader.Kind()) {
        case XmlReader::Token::kStart:
          Open(reader);
          break;
        case XmlReader::Token::kText:
          value_ += reader.Text();
          break;
        case XmlReader::Token::kEnd:
          Close(reader.Name());
          break;
      }
    }
    return design_;
  }

 private:
  void Open(const XmlReader& reader) {
    value_.clear();
    const std::string& tag = reader.Name();
    if (tag == "widget" || tag == "action") {
      const std::string name = reader.Attribute("name");
      const std::string widget_class = tag == "action" ? "QAction" : reader.Attribute("class");
      if (design_.name.empty()) design_.name = name;
      owners_.push_back(name);
      design_.controls[name].widget_class = widget_class;
    } else if (tag == "property" || tag == "attribute") {
      property_ = reader.Attribute("name");
      attribute_ = tag == "attribute";
    } else if (tag == "string") {
      translatable_ = reader.Attribute("notr") != "true";
    }
  }

  void Close(const std::string& tag) {
    if (tag == "widget" || tag == "action") {
      owners_.pop_back();
    } else if (tag == "property" || tag == "attribute") {
      property_.clear();
    } else if (!property_.empty() && !owners_.empty()) {
      Value(tag);
    }
    value_.clear();
  }

  void Value(const std::string& tag) {
    if (owners_.size() == 1 && tag == "width" && property_ == "geometry")
      design_.width = std::atoi(value_.c_str());
    if (owners_.size() == 1 && tag == "height" && property_ == "geometry")
      design_.height = std::atoi(value_.c_str());
    if (tag == "string" && translatable_ && !value_.empty()) design_.texts.push_back(value_);
    if (attribute_) return;  // the container's, such as the title of a page among others
    if (property_ == "windowTitle" && owners_.size() == 1) {
      design_.caption = value_;
    } else if (tag == "string" || tag == "bool" || tag == "number") {
      Apply(design_.controls[owners_.back()], property_, value_);
    }
  }

  UiDesign design_;
  std::vector<std::string> owners_;
  std::string property_;
  std::string value_;
  bool attribute_ = false;
  bool translatable_ = true;
};

std::optional<std::filesystem::path> FindUi(const std::string& name) {
  for (const auto& folder : std::filesystem::directory_iterator(LORIMET_SOURCE_DIR)) {
    const std::filesystem::path file = folder.path() / (name + ".ui");
    if (std::filesystem::exists(file)) return file;
  }
  return std::nullopt;
}

}  // namespace

UiDesign ReadUiDesign(const std::string& name) {
  const auto file = FindUi(name);
  if (!file) return {};
  std::stringstream text;
  text << std::ifstream(*file).rdbuf();
  UiDesign design = Reader().Read(text.str());
  if (design.name != name) throw std::runtime_error(file->string() + " is not the form " + name);
  return design;
}

std::vector<std::string> UiFormNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(LORIMET_SOURCE_DIR))
    if (entry.path().extension() == ".ui") names.push_back(entry.path().stem().string());
  return names;
}

}  // namespace lorimet
