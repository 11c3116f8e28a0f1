// The expectations of a scenario: what the dialogs, the host and the files show.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "component/context.h"
#include "forms/form.h"
#include "installation_tree.h"
#include "platform/ascii.h"
#include "platform/path.h"
#include "platform/runtime_error.h"
#include "platform/utf8.h"
#include "scenario_runner.h"
#include "scenario_values.h"

namespace nvrandom::scenario {

namespace {

namespace fs = std::filesystem;

std::optional<bool> ParseBool(const std::string& word) {
  if (word == "true") return true;
  if (word == "false") return false;
  return std::nullopt;
}

std::string Describe(bool value) {
  return value ? "true" : "false";
}

// The text a person reads off a control: its caption where it has one, the code of a data
// list's current row, the text of a text or combo box.
std::string ShownText(const forms::Control& c) {
  if (c.kind() == forms::ControlKind::kDataList && c.ListIndex() >= 0) return c.BoundText();
  return forms::IsTextKind(c.kind()) ? c.Text() : c.Caption();
}

// The value an `expect attr` word stands for: a quoted text or an integer.
forms::PropertyValue AttributeValue(const Word& word, const std::string& text) {
  if (word.quoted) return text;
  const auto n = ParseInteger(word.text);
  if (!n) throw MalformedLine("an attribute value is a quoted text or an integer");
  return static_cast<int64_t>(*n);
}

// Files under `root` whose name is `name` (ignoring case, as the platform's file system does).
std::vector<fs::path> FilesNamed(const std::string& root, std::string_view name) {
  std::vector<fs::path> found;
  std::error_code ec;
  for (auto it = fs::recursive_directory_iterator(root, ec); !ec && it != fs::end(it);
       it.increment(ec)) {
    if (it->is_regular_file(ec) && ascii::EqualsIgnoreCase(it->path().filename().string(), name)) {
      found.push_back(it->path());
    }
  }
  return found;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::string line = text.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) lines.push_back(line);
    start = end + 1;
  }
  return lines;
}

bool EndsWith(const std::string& s, const std::string& tail) {
  return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

}  // namespace

void ScenarioRun::ExecuteExpect(const std::vector<Word>& w) {
  NeedWords(w, 2);
  const std::string& what = w[1].text;
  const auto& boxes = services_.message_box->shown;
  if (what == "msg" || what == "msghas") {
    NeedWords(w, 3);
    if (w.size() == 4 || (w.size() == 5 && w[3].text != "caption")) {
      throw MalformedLine("expect " + what + " TEXT [caption TEXT]");
    }
    const std::string text = Text(w[2]);
    if (boxes_matched_ >= boxes.size()) {
      Fail("expected message box " + Quote(text) + ", got none");
      return;
    }
    const headless::ShownBox& box = boxes[boxes_matched_++];
    const bool ok = what == "msg" ? box.text == text : box.text.find(text) != std::string::npos;
    if (!ok) Fail("expected message box " + Quote(text) + ", got " + Quote(box.text));
    if (w.size() == 5 && box.caption != Text(w[4])) {
      Fail("expected caption " + Quote(Text(w[4])) + ", got " + Quote(box.caption));
    }
  } else if (what == "nomsg") {
    if (boxes_matched_ < boxes.size()) {
      Fail("expected no message box, got " + Quote(boxes[boxes_matched_].text));
      boxes_matched_ = boxes.size();
    }
  } else if (what == "event") {
    NeedWords(w, 3);
    std::optional<long long> arg;
    if (w.size() >= 4) {
      arg = ParseInteger(w[3].text);
      if (!arg) throw MalformedLine("an event argument is a number");
    }
    for (HostEvent& e : events_) {
      if (e.matched || e.name != w[2].text) continue;
      e.matched = true;
      if (arg && (!e.arg || *e.arg != *arg)) {
        Fail("expected event " + w[2].text + " " + w[3].text + ", got " + e.name +
             (e.arg ? " " + std::to_string(*e.arg) : ""));
      }
      return;
    }
    Fail("expected event " + w[2].text + ", got none");
  } else if (what == "noevent") {
    for (HostEvent& e : events_) {
      if (e.matched || (w.size() >= 3 && e.name != w[2].text)) continue;
      Fail("expected no event" + (w.size() >= 3 ? " " + w[2].text : std::string()) + ", got " +
           e.name);
      e.matched = true;
    }
  } else if (what == "result") {
    NeedWords(w, 3);
    const auto want = ParseInteger(w[2].text);
    if (!want) throw MalformedLine("expect result needs a number");
    if (!last_result_) {
      Fail("expected result " + w[2].text + ", got no show");
    } else if (*last_result_ != *want) {
      Fail("expected result " + w[2].text + ", got " + std::to_string(*last_result_));
    }
  } else if (what == "value") {
    NeedWords(w, 3);
    if (!checked_) {
      Fail("expected value, got no check");
    } else if (!ValueMatches(last_value_, w[2], tree_.root(), tree_.install())) {
      Fail("expected value " + (w[2].quoted ? Quote(Text(w[2])) : w[2].text) + ", got " +
           FormatValue(last_value_));
    }
  } else if (what == "message" || what == "messagehas") {
    NeedWords(w, 3);
    const std::string want = Text(w[2]);
    const std::string got = last_message_.value_or("");
    const bool ok = what == "message" ? got == want : got.find(want) != std::string::npos;
    if (!ok) Fail("expected message " + Quote(want) + ", got " + Quote(got));
  } else if (what == "prop") {
    NeedWords(w, 4);
    try {
      const Variant got = instances_.back()->Get(w[2].text);
      if (!ValueMatches(got, w[3], tree_.root(), tree_.install())) {
        Fail("expected " + w[2].text + " = " + (w[3].quoted ? Quote(Text(w[3])) : w[3].text) +
             ", got " + FormatValue(got));
      }
    } catch (const RuntimeError& e) {
      Fail("expected " + w[2].text + ", got run-time error " + std::to_string(e.number()));
    }
  } else if (what == "form") {
    NeedWords(w, 3);
    const forms::Form* front = ctx_->forms().ActiveForm();
    if (front == nullptr || front->Name() != w[2].text) {
      Fail("expected form " + w[2].text + ", got " + (front ? front->Name() : "none"));
    }
  } else if (what == "closed") {
    if (const forms::Form* front = ctx_->forms().ActiveForm()) {
      Fail("expected no open dialog, got " + front->Name());
    }
  } else if (what == "trace" || what == "notrace" || what == "log" || what == "file") {
    ExpectFiles(what, w);
  } else {
    ExpectControl(what, w);
  }
}

void ScenarioRun::ExpectFiles(const std::string& what, const std::vector<Word>& w) {
  if (what == "trace" || what == "notrace") {
    const auto files = FilesNamed(tree_.root(), "PBP.txt");
    if (what == "notrace" && w.size() < 3) {
      if (!files.empty()) Fail("expected no trace file, got " + files.front().string());
      return;
    }
    NeedWords(w, 3);
    const std::string ending = "NVRANDOM - " + Text(w[2]);
    bool found = false;
    for (const auto& file : files) {
      for (const std::string& line : Lines(path::ReadFile(file.string()).value_or("")))
        found = found || EndsWith(line, ending);
    }
    if (what == "trace" && !found) {
      Fail("expected trace line " + Quote(Text(w[2])) +
           (files.empty() ? ", got no trace file" : ", got none"));
    }
    if (what == "notrace" && found) Fail("expected no trace line " + Quote(Text(w[2])));
  } else if (what == "log") {
    NeedWords(w, 3);
    const std::string want = Text(w[2]);
    bool found = false;
    for (const auto& file : FilesNamed(tree_.root(), "error.log")) {
      for (const std::string& line : Lines(path::ReadFile(file.string()).value_or(""))) {
        found = found || line.find(want) != std::string::npos;
      }
    }
    if (!found) Fail("expected an error log line with " + Quote(want) + ", got none");
  } else {
    NeedWords(w, 4);
    const fs::path file = tree_.root() + Text(w[2]);
    std::error_code ec;
    if (!fs::is_regular_file(file, ec)) {
      Fail("expected file " + Text(w[2]) + ", got none");
    } else if (path::ReadFile(file.string()).value_or("").find(Text(w[3])) == std::string::npos) {
      Fail("expected " + Text(w[2]) + " to contain " + Quote(Text(w[3])));
    }
  }
}

namespace {

// The words an expectation on a control compares with what it reads.
enum class Wanted { kText, kTruth, kNumber, kTwoNumbers, kNumberAndText };

// The expectations on one control: what they read off it, described as the expected words are.
struct ControlReading {
  std::string_view what;
  Wanted wanted;
  std::string (*read)(const forms::Control& c, long long index);
};

const ControlReading kControlReadings[] = {
    {"text", Wanted::kText, [](const forms::Control& c, long long) { return Quote(ShownText(c)); }},
    {"visible", Wanted::kTruth,
     [](const forms::Control& c, long long) { return Describe(c.Visible()); }},
    {"enabled", Wanted::kTruth,
     [](const forms::Control& c, long long) { return Describe(c.Enabled()); }},
    {"masked", Wanted::kTruth,
     [](const forms::Control& c, long long) { return Describe(c.PasswordChar() == "*"); }},
    {"checked", Wanted::kTruth,
     [](const forms::Control& c, long long) {
       const bool ticked =
           c.kind() == forms::ControlKind::kCheckBox ? c.Value() == 1 : c.Value() != 0;
       return Describe(ticked);
     }},
    {"selected", Wanted::kTwoNumbers,
     [](const forms::Control& c, long long) {
       return std::to_string(c.SelStart()) + " " + std::to_string(c.SelLength());
     }},
    {"list", Wanted::kNumber,
     [](const forms::Control& c, long long) { return std::to_string(c.ListCount()); }},
    {"row", Wanted::kNumberAndText,
     [](const forms::Control& c, long long index) {
       if (index < 0 || index >= c.ListCount()) return "no row " + std::to_string(index);
       std::string joined;
       for (const std::string& column : c.Row(static_cast<int>(index))) {
         joined += (joined.empty() ? "" : ";") + column;
       }
       return std::to_string(index) + " " + Quote(joined);
     }},
};

}  // namespace

void ScenarioRun::ExpectControl(const std::string& what, const std::vector<Word>& w) {
  NeedWords(w, 3);
  if (what == "attr") {
    ExpectAttribute(w);
    return;
  }
  if (what == "focus") {
    const forms::Form* front = ctx_->forms().ActiveForm();
    const forms::Control* focused = front != nullptr ? front->ActiveControl() : nullptr;
    if (focused == nullptr || focused->FullName() != w[2].text) {
      Fail("expected focus " + w[2].text + ", got " + (focused ? focused->FullName() : "none"));
    }
    return;
  }
  const ControlReading* reading = nullptr;
  for (const ControlReading& r : kControlReadings) {
    if (r.what == what) reading = &r;
  }
  if (reading == nullptr) throw MalformedLine("unknown expectation '" + what + "'");

  const auto number = [&](size_t i) {
    NeedWords(w, i + 1);
    const auto n = ParseInteger(w[i].text);
    if (!n) throw MalformedLine("expected a number, not '" + w[i].text + "'");
    return *n;
  };
  std::string want;
  long long index = 0;
  switch (reading->wanted) {
    case Wanted::kText:
      NeedWords(w, 4);
      want = Quote(Text(w[3]));
      break;
    case Wanted::kTruth: {
      NeedWords(w, 4);
      const auto b = ParseBool(w[3].text);
      if (!b) throw MalformedLine("expected true or false, not '" + w[3].text + "'");
      want = Describe(*b);
      break;
    }
    case Wanted::kNumber:
      want = std::to_string(number(3));
      break;
    case Wanted::kTwoNumbers:
      want = std::to_string(number(3)) + " " + std::to_string(number(4));
      break;
    case Wanted::kNumberAndText:
      index = number(3);
      NeedWords(w, 5);
      want = std::to_string(index) + " " + Quote(Text(w[4]));
      break;
  }

  // A form's own caption, by the form's name.
  if (what == "text") {
    for (const auto& form : ctx_->forms().LoadedForms()) {
      if (form->Name() != w[2].text) continue;
      if (Quote(form->Caption()) != want) {
        Fail("expected " + w[2].text + " caption " + want + ", got " + Quote(form->Caption()));
      }
      return;
    }
  }
  const forms::Control* c = FindControl(w[2], false);
  if (c == nullptr) {
    Fail("expected " + what + " of " + w[2].text + ", got no such control on an open dialog");
    return;
  }
  const std::string got = reading->read(*c, index);
  if (got != want) Fail("expected " + c->FullName() + " " + what + " " + want + ", got " + got);
}

// A property read by name, as the restyler sets it; the form's own when the name is a form's.
void ScenarioRun::ExpectAttribute(const std::vector<Word>& w) {
  NeedWords(w, 5);
  const forms::PropertyValue want = AttributeValue(w[4], Text(w[4]));
  const std::string& property = w[3].text;
  forms::PropertyValue got;
  try {
    const forms::Form* form = nullptr;
    for (const auto& loaded : ctx_->forms().LoadedForms()) {
      if (loaded->Name() == w[2].text) form = loaded.get();
    }
    if (form != nullptr) {
      got = form->GetProperty(property);
    } else if (const forms::Control* c = FindControl(w[2], false)) {
      got = c->GetProperty(property);
    } else {
      Fail("expected " + property + " of " + w[2].text + ", got no such control on an open dialog");
      return;
    }
  } catch (const RuntimeError& e) {
    Fail("expected " + w[2].text + " " + property + " " + forms::DescribeValue(want) +
         ", got run-time error " + std::to_string(e.number()));
    return;
  }
  if (got != want) {
    Fail("expected " + w[2].text + " " + property + " " + forms::DescribeValue(want) + ", got " +
         forms::DescribeValue(got));
  }
}

}  // namespace nvrandom::scenario
