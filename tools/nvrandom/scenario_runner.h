#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "api/cls_random.h"
#include "app/headless_services.h"
#include "forms/application.h"
#include "scenario_line.h"

namespace nvrandom {
class Context;
}

namespace nvrandom::scenario {

class InstallationTree;

struct RunOptions {
  bool transcript = false;
};

struct FileResult {
  int failures = 0;
  bool malformed = false;
};

// Runs one scenario file against a fresh component state and installation tree. It is the
// modal driver of the forms it opens: a modal show carries on with the file's next statements
// until the dialog closes, so nested dialogs follow the script naturally.
class ScenarioRun final : public forms::ModalDriver, public forms::FormObserver {
 public:
  ScenarioRun(std::string file, std::vector<std::string> lines, const InstallationTree& tree,
              const RunOptions& options, std::ostream& out);
  ~ScenarioRun() override;

  FileResult Run();

  // The person's statements that act on one control, as one table: the verb, whether a text
  // follows the control, how many numbers, and what it does.
  enum class Outcome { kDone, kNotAvailable, kNoSuchRow };
  struct ControlArguments {
    std::string text;
    std::array<int, 2> numbers{};
  };
  struct ControlStatement {
    std::string_view verb;
    bool text = false;
    int numbers = 0;
    Outcome (*act)(forms::Control& control, const ControlArguments& args);
  };

  // forms::ModalDriver
  void RunModal(forms::Form& form) override;
  // forms::FormObserver: the transcript.
  void FocusChanged(forms::Form& form, forms::Control* now) override;
  void FocusRefused(forms::Control& control) override;

 private:
  struct HostEvent {
    std::string name;
    std::optional<int16_t> arg;
    bool matched = false;
  };
  class EventRecorder;
  struct PendingError {
    int32_t number;
    std::string description;
    size_t line;
  };

  // The statements that act on the host, the module or the dialog as a whole, as one table: the
  // verb, the words it needs (the verb included), and what it does. A run-time error they raise
  // is what `expect error` matches.
  struct HostStatement {
    std::string_view verb;
    size_t words;
    void (ScenarioRun::*run)(const std::vector<Word>& w);
  };
  static const HostStatement* FindHostStatement(std::string_view verb);

  // Executes the next statement; false at the end of the file or once it is malformed.
  bool Step();
  void Execute(const std::vector<Word>& w);
  bool ExecutePerson(const std::vector<Word>& w);
  void Let(const std::vector<Word>& w);
  void Get(const std::vector<Word>& w);
  void New(const std::vector<Word>& w);
  void Show(const std::vector<Word>& w);
  void Unload(const std::vector<Word>& w);
  void Call(const std::vector<Word>& w);
  void WriteFile(const std::vector<Word>& w);
  void Check(const std::vector<Word>& w);
  void Answer(const std::vector<Word>& w);
  void CloseWindow(const std::vector<Word>& w);
  void ExecuteExpect(const std::vector<Word>& w);
  void ExpectControl(const std::string& what, const std::vector<Word>& w);
  void ExpectAttribute(const std::vector<Word>& w);
  void ExpectFiles(const std::string& what, const std::vector<Word>& w);
  void ReadCountries(const std::vector<Word>& w);

  static const ControlStatement* FindControlStatement(std::string_view verb);
  ControlArguments ReadArguments(const ControlStatement& statement,
                                 const std::vector<Word>& w) const;
  void NewInstance();
  forms::Control* PersonTarget(const Word& word);
  forms::Control* FindControl(const Word& word, bool front_only);
  void Fail(const std::string& message);
  void Transcript(const std::string& line);
  void CheckPendingError();
  std::string Text(const Word& word) const;
  static void NeedWords(const std::vector<Word>& w, size_t count);

  std::string file_;
  std::vector<std::string> lines_;
  const InstallationTree& tree_;
  RunOptions options_;
  std::ostream& out_;

  headless::HeadlessServices services_;
  std::unique_ptr<Context> ctx_;
  std::vector<std::unique_ptr<ClsRandom>> instances_;
  std::vector<std::unique_ptr<EventRecorder>> recorders_;
  std::vector<HostEvent> events_;
  size_t boxes_matched_ = 0;

  size_t next_line_ = 0;
  size_t current_line_ = 0;
  bool malformed_ = false;
  int failures_ = 0;
  std::optional<PendingError> pending_error_;
  std::optional<int32_t> last_result_;
  bool checked_ = false;
  Variant last_value_;
  std::optional<std::string> last_message_;
};

// Runs the files; returns the exit code: 0 every expectation held, 1 one failed, 2 a file was
// malformed.
int RunScenarioFiles(const std::vector<std::string>& files, const RunOptions& options,
                     std::ostream& out);

}  // namespace nvrandom::scenario
