#pragma once

#include <QString>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

class QMessageBox;
class QWidget;

namespace nvrandom::forms {
class Application;
class Form;
}  // namespace nvrandom::forms

namespace nvrandom::qt {
class QtView;
}

namespace nvrandom::demo {

// A person's session on the biller dialog, played with real Qt key and mouse events on its
// widgets: a picture of each step goes into `folder`; message boxes are pictured and answered
// with their default button; what happened is kept for the session's JSON.
class ScriptedSession {
 public:
  ScriptedSession(std::filesystem::path folder, forms::Application& forms, qt::QtView& view);

  // Runs the steps on the shown biller dialog; ends with the dialog closed.
  void Run();
  // A message box on screen: pictured, noted and answered.
  void Answer(QMessageBox& box);

  const nlohmann::json& steps() const { return steps_; }

 private:
  forms::Form* Find(std::string_view form_name) const;
  QWidget* Widget(std::string_view form_name, std::string_view control) const;
  void Picture(QWidget& window, const std::string& step);
  void TypeText(const QString& text);
  void Key(int key, const QString& text = {});
  void Click(QWidget& widget);
  // Clicks a button that opens another form modally: the form is pictured and closed.
  void ClickOpening(QWidget& button, std::string_view form_name, const std::string& step);

  std::filesystem::path folder_;
  forms::Application& forms_;
  qt::QtView& view_;
  int step_ = 0;
  nlohmann::json steps_ = nlohmann::json::array();
};

}  // namespace nvrandom::demo
