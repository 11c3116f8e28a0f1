#include "qt_services.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFontDatabase>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QUrl>
#include <vector>

#include "qt_units.h"

namespace nvrandom::qt {

namespace {

QMessageBox::Icon IconOf(int style) {
  switch (style & msgbox::kIconMask) {
    case msgbox::kCritical:
      return QMessageBox::Critical;
    case msgbox::kQuestion:
      return QMessageBox::Question;
    case msgbox::kExclamation:
      return QMessageBox::Warning;
    case msgbox::kInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

struct Choice {
  QMessageBox::StandardButton button;
  int answer;
};

std::vector<Choice> ButtonsOf(int style) {
  switch (style & msgbox::kButtonsMask) {
    case msgbox::kOKCancel:
      return {{QMessageBox::Ok, msgbox::kOK}, {QMessageBox::Cancel, msgbox::kCancel}};
    case 2:
      return {{QMessageBox::Abort, msgbox::kAbort},
              {QMessageBox::Retry, msgbox::kRetry},
              {QMessageBox::Ignore, msgbox::kIgnore}};
    case msgbox::kYesNoCancel:
      return {{QMessageBox::Yes, msgbox::kYes},
              {QMessageBox::No, msgbox::kNo},
              {QMessageBox::Cancel, msgbox::kCancel}};
    case msgbox::kYesNo:
      return {{QMessageBox::Yes, msgbox::kYes}, {QMessageBox::No, msgbox::kNo}};
    case 5:
      return {{QMessageBox::Retry, msgbox::kRetry}, {QMessageBox::Cancel, msgbox::kCancel}};
    default:
      return {{QMessageBox::Ok, msgbox::kOK}};
  }
}

}  // namespace

int QtMessageBoxService::Show(std::string_view text, int style, std::string_view caption) {
  // Owned through a guard: the window it opens over may be destroyed while it waits (the host
  // unloads the dialog), and takes the box with it.
  const QPointer<QMessageBox> box =
      new QMessageBox(IconOf(style), ToQString(caption), ToQString(text), QMessageBox::NoButton,
                      QApplication::activeWindow());
  const std::vector<Choice> choices = ButtonsOf(style);
  for (const Choice& choice : choices) box->addButton(choice.button);
  const size_t default_index = static_cast<size_t>((style & msgbox::kDefaultMask) >> 8);
  box->setDefaultButton(choices[default_index < choices.size() ? default_index : 0].button);
  // Escape answers Cancel (or No) where the box has it, as the platform's box does.
  for (const Choice& choice : choices) {
    if (choice.answer == msgbox::kCancel) box->setEscapeButton(choice.button);
  }
  if (on_shown) {
    QTimer::singleShot(0, box, [this, box] {
      if (box) on_shown(*box);
    });
  }
  box->exec();
  const auto clicked = box ? box->standardButton(box->clickedButton()) : QMessageBox::NoButton;
  delete box.data();
  for (const Choice& choice : choices) {
    if (choice.button == clicked) return choice.answer;
  }
  // Closed without a button, or gone with its window: the box's escape answer, else its default.
  for (const Choice& choice : choices) {
    if (choice.answer == msgbox::kCancel) return choice.answer;
  }
  return DefaultAnswer(style);
}

std::string QtClipboardService::Text() {
  return ToUtf8(QGuiApplication::clipboard()->text());
}

void QtClipboardService::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setText(ToQString(text));
}

void QtClipboardService::Clear() {
  QGuiApplication::clipboard()->clear();
}

int32_t QtShellService::Execute(std::string_view verb, std::string_view file, int show_mode) {
  (void)verb;
  (void)show_mode;
  constexpr int32_t kOpened = 42;
  constexpr int32_t kNotFound = 2;
  constexpr int32_t kNoProgram = 31;
  const QString target = ToQString(file).trimmed();
  if (target.isEmpty()) return kNotFound;
  const QUrl url = QUrl::fromUserInput(target);
  if (!url.isValid()) return kNotFound;
  if (url.isLocalFile() && !QFileInfo::exists(url.toLocalFile())) return kNotFound;
  return QDesktopServices::openUrl(url) ? kOpened : kNoProgram;
}

void QtHelpService::ShowTopic(std::string_view help_path, uint32_t topic) {
  (void)topic;  // a help file's viewer opens at its first page; topics are its own business
  QString file = ToQString(help_path);
  if (const qsizetype window = file.indexOf(u'>'); window >= 0) file.truncate(window);
  if (file.isEmpty() || !QFileInfo::exists(file)) return;
  QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

bool QtFontService::CopyFontFile(const std::string& source, const std::string& target) {
  return platform_ != nullptr && platform_->CopyFontFile(source, target);
}

int QtFontService::AddFontResource(const std::string& font_file) {
  const int added = platform_ != nullptr ? platform_->AddFontResource(font_file) : 0;
  if (added == 0) return 0;
  QFontDatabase::addApplicationFont(ToQString(font_file));
  return added;
}

}  // namespace nvrandom::qt
