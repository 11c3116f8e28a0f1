#include "scenario_runner.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "check_statement.h"
#include "component/context.h"
#include "forms/form.h"
#include "forms/user_input.h"
#include "installation_tree.h"
#include "platform/runtime_error.h"
#include "scenario_values.h"

namespace nvrandom::scenario {

// Records the events an instance raises to its host.
class ScenarioRun::EventRecorder final : public ClsRandomEvents {
 public:
  explicit EventRecorder(ScenarioRun& run) : run_(run) {}
  void CSBOK() override { Record("CSBOK", std::nullopt); }
  void CurrentFieldTop(int16_t Top) override { Record("CurrentFieldTop", Top); }
  void Cancel() override { Record("Cancel", std::nullopt); }
  void ViewSampleCheque() override { Record("ViewSampleCheque", std::nullopt); }

 private:
  void Record(const char* name, std::optional<int16_t> arg) {
    run_.events_.push_back({name, arg, false});
    std::string line = "event ";
    line += name;
    if (arg) {
      line += ' ';
      line += std::to_string(*arg);
    }
    run_.Transcript(line);
  }
  ScenarioRun& run_;
};

ScenarioRun::ScenarioRun(std::string file, std::vector<std::string> lines,
                         const InstallationTree& tree, const RunOptions& options, std::ostream& out)
    : file_(std::move(file)),
      lines_(std::move(lines)),
      tree_(tree),
      options_(options),
      out_(out),
      services_(headless::MakeHeadlessServices(tree.root() + "Windows", headless::kFixedNow,
                                               headless::OutsideComponents::kInstalled)) {
  services_.message_box->on_show = [this](const headless::ShownBox& box) {
    Transcript("msgbox " + Quote(box.text) + " caption " + Quote(box.caption) + " icon " +
               IconName(box.style) + " buttons " + ButtonsName(box.style) + " answer " +
               std::to_string(box.answer));
  };
  services_.shell->on_call = [this](const headless::ShellCall& call) {
    Transcript("shell " + call.verb + " " + Quote(call.file) + " answer " +
               std::to_string(services_.shell->result));
  };
  services_.help->on_call = [this](const headless::HelpCall& call) {
    Transcript("help " + Quote(call.help_path) + " topic " + std::to_string(call.topic));
  };
  ctx_ = std::make_unique<Context>(std::move(services_.services));
  ctx_->forms().SetModalDriver(this);
  ctx_->forms().AddObserver(this);
}

ScenarioRun::~ScenarioRun() {
  ctx_->forms().RemoveObserver(this);
  ctx_->forms().SetModalDriver(nullptr);
}

void ScenarioRun::Transcript(const std::string& line) {
  if (options_.transcript) out_ << line << '\n';
}

void ScenarioRun::Fail(const std::string& message) {
  ++failures_;
  out_ << file_ << ':' << current_line_ << ": " << message << '\n';
}

void ScenarioRun::FocusChanged(forms::Form&, forms::Control* now) {
  if (now != nullptr) Transcript("focus " + now->FullName());
}

void ScenarioRun::FocusRefused(forms::Control& control) {
  Transcript("focus refused " + control.FullName());
}

std::string ScenarioRun::Text(const Word& word) const {
  return word.quoted ? Expand(word.text, tree_.root(), tree_.install()) : word.text;
}

void ScenarioRun::NeedWords(const std::vector<Word>& w, size_t count) {
  if (w.size() < count) throw MalformedLine("'" + w[0].text + "' needs more words");
}

void ScenarioRun::NewInstance() {
  auto instance = std::make_unique<ClsRandom>(*ctx_);
  auto recorder = std::make_unique<EventRecorder>(*this);
  instance->Advise(*recorder);
  instances_.push_back(std::move(instance));
  recorders_.push_back(std::move(recorder));
}

FileResult ScenarioRun::Run() {
  NewInstance();
  while (Step()) {
  }
  if (!malformed_) {
    current_line_ = lines_.size();
    CheckPendingError();
    // A dialog left open is closed by code, and that is a failure of the file.
    for (const auto& form : ctx_->forms().LoadedForms()) {
      if (!form->Visible()) continue;
      Fail(form->Name() + " is still open at the end of the file");
      form->Unload(forms::unload_mode::kCode);
    }
  }
  return {failures_, malformed_};
}

bool ScenarioRun::Step() {
  while (!malformed_ && next_line_ < lines_.size()) {
    current_line_ = next_line_ + 1;
    const std::string& line = lines_[next_line_++];
    try {
      const std::vector<Word> words = SplitWords(line);
      if (words.empty()) continue;
      Execute(words);
    } catch (const MalformedLine& e) {
      out_ << file_ << ':' << current_line_ << ": " << e.what() << '\n';
      malformed_ = true;
      return false;
    }
    return true;
  }
  return false;
}

void ScenarioRun::RunModal(forms::Form& form) {
  while (form.IsLoaded() && form.Visible()) {
    if (!Step()) {
      if (!malformed_) Fail(form.Name() + " is still open at the end of the file");
      form.Unload(forms::unload_mode::kCode);
      return;
    }
  }
}

void ScenarioRun::CheckPendingError() {
  if (!pending_error_) return;
  const PendingError e = *pending_error_;
  pending_error_.reset();
  const size_t line = current_line_;
  current_line_ = e.line;
  Fail("run-time error " + std::to_string(e.number) + " (" + e.description + ")");
  current_line_ = line;
}

void ScenarioRun::Execute(const std::vector<Word>& w) {
  const std::string& verb = w[0].text;
  if (verb == "expect" && w.size() >= 2 && w[1].text == "error") {
    NeedWords(w, 3);
    const auto want = ParseInteger(w[2].text);
    if (!want) throw MalformedLine("expect error needs a number");
    if (!pending_error_) {
      Fail("expected error " + w[2].text + ", got none");
    } else if (pending_error_->number != *want) {
      Fail("expected error " + w[2].text + ", got " + std::to_string(pending_error_->number));
    }
    pending_error_.reset();
    return;
  }
  CheckPendingError();
  if (verb == "expect") {
    ExecuteExpect(w);
    return;
  }
  if (const HostStatement* statement = FindHostStatement(verb)) {
    NeedWords(w, statement->words);
    try {
      (this->*statement->run)(w);
    } catch (const RuntimeError& e) {
      pending_error_ = PendingError{e.number(), e.description(), current_line_};
    }
    return;
  }
  if (ExecutePerson(w)) return;
  throw MalformedLine("unknown statement '" + verb + "'");
}

const ScenarioRun::HostStatement* ScenarioRun::FindHostStatement(std::string_view verb) {
  static constexpr HostStatement kHostStatements[] = {
      {"let", 3, &ScenarioRun::Let},           {"get", 2, &ScenarioRun::Get},
      {"new", 1, &ScenarioRun::New},           {"show", 2, &ScenarioRun::Show},
      {"unload", 1, &ScenarioRun::Unload},     {"call", 2, &ScenarioRun::Call},
      {"file", 3, &ScenarioRun::WriteFile},    {"countries", 2, &ScenarioRun::ReadCountries},
      {"check", 2, &ScenarioRun::Check},       {"answer", 2, &ScenarioRun::Answer},
      {"close", 1, &ScenarioRun::CloseWindow}, {"shutdown", 1, &ScenarioRun::CloseWindow},
  };
  for (const HostStatement& statement : kHostStatements) {
    if (statement.verb == verb) return &statement;
  }
  return nullptr;
}

void ScenarioRun::Let(const std::vector<Word>& w) {
  instances_.back()->Let(w[1].text, HostValue(w[2], tree_.root(), tree_.install()));
}

void ScenarioRun::Get(const std::vector<Word>& w) {
  const Variant value = instances_.back()->Get(w[1].text);
  out_ << w[1].text << " = " << FormatValue(value) << '\n';
}

void ScenarioRun::New(const std::vector<Word>&) {
  NewInstance();
}

void ScenarioRun::Show(const std::vector<Word>& w) {
  ClsRandom& cls = *instances_.back();
  const std::string& how = w[1].text;
  if (how == "modal") {
    last_result_ = cls.ShowForm();
  } else if (how == "import") {
    last_result_ = cls.ShowForm_Import();
  } else if (how == "remote") {
    last_result_ = cls.ShowForm_Remote();
    return;
  } else {
    throw MalformedLine("show takes modal, import or remote");
  }
  out_ << "result " << *last_result_ << '\n';
}

void ScenarioRun::Unload(const std::vector<Word>&) {
  instances_.back()->Unload_From_Remote();
}

void ScenarioRun::Call(const std::vector<Word>& w) {
  ClsRandom& cls = *instances_.back();
  int32_t value = 0;
  if (w[1].text == "Get_hWnd") {
    value = cls.Get_hWnd();
  } else if (w[1].text == "Get_Height") {
    value = cls.Get_Height();
  } else if (w[1].text == "Get_Width") {
    value = cls.Get_Width();
  } else {
    throw MalformedLine("no method " + w[1].text);
  }
  out_ << w[1].text << " = " << value << '\n';
}

void ScenarioRun::WriteFile(const std::vector<Word>& w) {
  const std::filesystem::path target = tree_.root() + Text(w[1]);
  std::error_code ec;
  std::filesystem::create_directories(target.parent_path(), ec);
  std::ofstream file(target, std::ios::binary | std::ios::trunc);
  file << Text(w[2]);
  if (!file) Fail("cannot write " + Text(w[1]));
}

void ScenarioRun::Check(const std::vector<Word>& w) {
  std::vector<std::string> args;
  for (size_t i = 2; i < w.size(); ++i) args.push_back(Text(w[i]));
  CheckResult result;
  try {
    result = RunCheck(*ctx_, w[1].text, args);
  } catch (const std::invalid_argument& e) {
    throw MalformedLine(e.what());
  }
  checked_ = true;
  last_value_ = result.value;
  last_message_ = result.message;
  out_ << w[1].text << " = " << FormatValue(result.value) << '\n';
  if (result.message) out_ << "message = " << Quote(*result.message) << '\n';
}

void ScenarioRun::Answer(const std::vector<Word>& w) {
  const std::string& a = w[1].text;
  const int answer = a == "yes"      ? msgbox::kYes
                     : a == "no"     ? msgbox::kNo
                     : a == "ok"     ? msgbox::kOK
                     : a == "cancel" ? msgbox::kCancel
                                     : 0;
  if (answer == 0) throw MalformedLine("answer takes yes, no, ok or cancel");
  services_.message_box->QueueAnswer(answer);
}

void ScenarioRun::CloseWindow(const std::vector<Word>& w) {
  forms::Form* front = ctx_->forms().ActiveForm();
  if (front == nullptr) {
    Fail("no dialog is open");
  } else if (w[0].text == "close") {
    forms::user::CloseBox(*front);
  } else {
    forms::user::Shutdown(*front);
  }
}

void ScenarioRun::ReadCountries(const std::vector<Word>& w) {
  const std::string file = tree_.root() + Text(w[1]);
  std::string rows;
  bool ended = false;
  while (next_line_ < lines_.size()) {
    std::string row = lines_[next_line_++];
    if (!row.empty() && row.back() == '\r') row.pop_back();
    if (row == "end") {
      ended = true;
      break;
    }
    rows += row + "\n";
  }
  if (!ended) throw MalformedLine("countries without end");
  if (!WriteCountryFile(file, rows)) Fail("cannot write " + Text(w[1]));
}

forms::Control* ScenarioRun::FindControl(const Word& word, bool front_only) {
  std::string name = word.text;
  int index = -1;
  if (const size_t open = name.find('('); open != std::string::npos && name.back() == ')') {
    const auto n = ParseInteger(std::string_view(name).substr(open + 1, name.size() - open - 2));
    if (!n) throw MalformedLine("bad control index in " + name);
    index = static_cast<int>(*n);
    name.resize(open);
  }
  forms::Form* front = ctx_->forms().ActiveForm();
  if (front != nullptr) {
    if (forms::Control* c = front->Find(name, index)) return c;
  }
  if (front_only) return nullptr;
  for (const auto& form : ctx_->forms().LoadedForms()) {
    if (forms::Control* c = form->Find(name, index)) return c;
  }
  return nullptr;
}

forms::Control* ScenarioRun::PersonTarget(const Word& word) {
  forms::Control* c = FindControl(word, true);
  if (c == nullptr) {
    Fail(word.text + " is not available" +
         (ctx_->forms().ActiveForm() == nullptr ? " (no dialog is open)" : ""));
  }
  return c;
}

bool ScenarioRun::ExecutePerson(const std::vector<Word>& w) {
  const std::string& verb = w[0].text;
  const ControlStatement* statement = FindControlStatement(verb);
  if (statement == nullptr) return false;
  // Arguments first, so that a malformed line is reported as such whatever the dialog's state.
  const ControlArguments args = ReadArguments(*statement, w);
  forms::Control* c = PersonTarget(w[1]);
  if (c == nullptr) return true;
  switch (statement->act(*c, args)) {
    case Outcome::kDone:
      break;
    case Outcome::kNotAvailable:
      Fail(c->FullName() + " is not available");
      break;
    case Outcome::kNoSuchRow:
      Fail(c->FullName() + " has no row " + Quote(args.text));
      break;
  }
  return true;
}

ScenarioRun::ControlArguments ScenarioRun::ReadArguments(const ControlStatement& statement,
                                                         const std::vector<Word>& w) const {
  const size_t words = 2 + (statement.text ? 1 : 0) + statement.numbers;
  NeedWords(w, words);
  ControlArguments args;
  size_t next = 2;
  if (statement.text) args.text = Text(w[next++]);
  for (int i = 0; i < statement.numbers; ++i, ++next) {
    const auto n = ParseInteger(w[next].text);
    if (!n) throw MalformedLine(w[0].text + " needs a number, not '" + w[next].text + "'");
    args.numbers[static_cast<size_t>(i)] = static_cast<int>(*n);
  }
  return args;
}

namespace {

using Outcome = ScenarioRun::Outcome;
using Args = ScenarioRun::ControlArguments;

Outcome Done(bool done) {
  return done ? Outcome::kDone : Outcome::kNotAvailable;
}

int16_t Short(int n) {
  return static_cast<int16_t>(n);
}

// The person's statements on one control: the words they take and what they do.
const ScenarioRun::ControlStatement kControlStatements[] = {
    {"focus", false, 0, [](forms::Control& c, const Args&) { return Done(forms::user::Focus(c)); }},
    {"type", true, 0,
     [](forms::Control& c, const Args& a) { return Done(forms::user::Type(c, a.text)); }},
    {"key", false, 1,
     [](forms::Control& c, const Args& a) {
       return Done(forms::user::Key(c, Short(a.numbers[0])));
     }},
    {"keydown", false, 2,
     [](forms::Control& c, const Args& a) {
       return Done(forms::user::KeyDown(c, Short(a.numbers[0]), Short(a.numbers[1])));
     }},
    {"select", false, 2,
     [](forms::Control& c, const Args& a) {
       return Done(forms::user::Select(c, a.numbers[0], a.numbers[1]));
     }},
    {"menupaste", true, 0,
     [](forms::Control& c, const Args& a) { return Done(forms::user::MenuPaste(c, a.text)); }},
    {"mouse", false, 1,
     [](forms::Control& c, const Args& a) {
       return Done(forms::user::MouseDown(c, Short(a.numbers[0])));
     }},
    {"paste", true, 0,
     [](forms::Control& c, const Args& a) { return Done(forms::user::Paste(c, a.text)); }},
    {"clear", false, 0,
     [](forms::Control& c, const Args&) { return Done(forms::user::ClearText(c)); }},
    {"click", false, 0, [](forms::Control& c, const Args&) { return Done(forms::user::Click(c)); }},
    {"pick", true, 0,
     [](forms::Control& c, const Args& a) {
       if (!forms::Application::Available(c) && c.CanFocus()) return Outcome::kNotAvailable;
       return forms::user::Pick(c, a.text) ? Outcome::kDone : Outcome::kNoSuchRow;
     }},
};

}  // namespace

const ScenarioRun::ControlStatement* ScenarioRun::FindControlStatement(std::string_view verb) {
  for (const ControlStatement& statement : kControlStatements) {
    if (statement.verb == verb) return &statement;
  }
  return nullptr;
}

namespace {

std::vector<std::string> ReadLines(std::istream& in) {
  std::vector<std::string> lines;
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

// The file runs with its installation root as the current directory.
class WorkingDirectory {
 public:
  explicit WorkingDirectory(const std::string& dir) {
    std::error_code ec;
    previous_ = std::filesystem::current_path(ec);
    std::filesystem::current_path(dir, ec);
  }
  ~WorkingDirectory() {
    std::error_code ec;
    std::filesystem::current_path(previous_, ec);
  }
  WorkingDirectory(const WorkingDirectory&) = delete;
  WorkingDirectory& operator=(const WorkingDirectory&) = delete;

 private:
  std::filesystem::path previous_;
};

}  // namespace

int RunScenarioFiles(const std::vector<std::string>& files, const RunOptions& options,
                     std::ostream& out) {
  int passed = 0;
  int failed = 0;
  bool any_malformed = false;
  for (const std::string& file : files) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
      out << file << ":0: cannot be read\n";
      any_malformed = true;
      ++failed;
      continue;
    }
    if (options.transcript) out << "== " << file << '\n';
    InstallationTree tree;
    if (!tree.ok()) {
      out << file << ":0: no temporary installation tree could be made\n";
      ++failed;
      continue;
    }
    FileResult result;
    {
      WorkingDirectory cwd(tree.root());
      ScenarioRun run(file, ReadLines(in), tree, options, out);
      result = run.Run();
    }
    any_malformed = any_malformed || result.malformed;
    if (result.failures == 0 && !result.malformed) {
      ++passed;
    } else {
      ++failed;
    }
  }
  out << "scenarios: " << passed << " passed, " << failed << " failed\n";
  if (any_malformed) return 2;
  return failed > 0 ? 1 : 0;
}

}  // namespace nvrandom::scenario
