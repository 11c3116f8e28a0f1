#include "demo_command.h"

#include <QApplication>
#include <QTimer>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "api/class_members.h"
#include "api/cls_random.h"
#include "app/thread_context.h"
#include "component/context.h"
#include "demo_samples.h"
#include "installation_tree.h"
#include "qt_integration.h"
#include "qt_services.h"
#include "scripted_session.h"

namespace nvrandom::demo {

namespace {

struct Options {
  std::string sample;
  bool offscreen = false;
  std::filesystem::path out = "nvrandom-demo";
};

bool HasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"}) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0') return true;
  }
  return false;
}

// The biller as the host reads it back: every property it may read, and the close result.
nlohmann::json BillerJson(ClsRandom& biller, int32_t result) {
  nlohmann::json properties = nlohmann::json::object();
#define NVRANDOM_DEMO_NUMBER_Integer 1
#define NVRANDOM_DEMO_NUMBER_Flag 1
#define NVRANDOM_DEMO_NUMBER_String 0
#define NVRANDOM_DEMO_NUMBER_Global 0
#define NVRANDOM_DEMO_NUMBER_Variant 0
#define NVRANDOM_DEMO_READ_LetGet(name, type)                                                    \
  properties[#name] = NVRANDOM_DEMO_NUMBER_##type ? nlohmann::json(ToInteger(biller.Get(#name))) \
                                                  : nlohmann::json(ToText(biller.Get(#name)));
#define NVRANDOM_DEMO_READ_Let(name, type)
#define NVRANDOM_DEMO_PROPERTY(dispid, name, type, access, trace) \
  NVRANDOM_DEMO_READ_##access(name, type)
#define NVRANDOM_DEMO_METHOD(dispid, name, result)
  NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_DEMO_PROPERTY, NVRANDOM_DEMO_METHOD)
#undef NVRANDOM_DEMO_METHOD
#undef NVRANDOM_DEMO_PROPERTY
#undef NVRANDOM_DEMO_READ_Let
#undef NVRANDOM_DEMO_READ_LetGet
  return {{"closeResult", result}, {"biller", properties}};
}

int Usage(std::ostream& err) {
  err << "usage: nvrandom demo [--sample business|individual|us|international] [--offscreen]"
         " [--out DIR]\n";
  return 2;
}

}  // namespace

int DemoCommand(int argc, char** argv, std::ostream& out, std::ostream& err) {
  Options options;
  for (int i = 2; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--sample" && i + 1 < argc && IsSample(argv[i + 1])) {
      options.sample = argv[++i];
    } else if (arg == "--offscreen") {
      options.offscreen = true;
    } else if (arg == "--out" && i + 1 < argc) {
      options.out = argv[++i];
    } else {
      return Usage(err);
    }
  }
  const bool scripted = options.offscreen || !HasDisplay();
  if (scripted && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  scenario::InstallationTree tree;
  if (!tree.ok()) {
    err << "nvrandom demo: cannot make a temporary installation folder\n";
    return 1;
  }
  qt::Integration integration;
  Context& ctx = app::ThreadContext();

  if (!scripted) {
    ClsRandom biller;
    LoadSample(biller, options.sample.empty() ? "business" : options.sample, tree.install());
    const int32_t result = biller.ShowForm();
    out << BillerJson(biller, result).dump(2) << "\n";
    return 0;
  }

  std::error_code ec;
  std::filesystem::create_directories(options.out, ec);
  const std::filesystem::path folder = std::filesystem::absolute(options.out, ec);
  auto* boxes = dynamic_cast<qt::QtMessageBoxService*>(ctx.services.message_box.get());
  std::vector<std::string_view> samples = SampleNames();
  if (!options.sample.empty()) samples = {options.sample};
  for (const std::string_view sample : samples) {
    const std::filesystem::path sample_folder = folder / sample;
    std::filesystem::create_directories(sample_folder, ec);
    if (ec) {
      err << "nvrandom demo: cannot write to " << sample_folder.string() << "\n";
      return 1;
    }
    ScriptedSession session(sample_folder, ctx.forms(), integration.view());
    if (boxes != nullptr) boxes->on_shown = [&session](QMessageBox& box) { session.Answer(box); };
    ctx.store = ComponentStore{};  // each sample is a biller of its own, from the defaults up
    ClsRandom biller;
    LoadSample(biller, sample, tree.install());
    QTimer::singleShot(0, [&session] { session.Run(); });
    const int32_t result = biller.ShowForm();
    nlohmann::json json = BillerJson(biller, result);
    json["sample"] = sample;
    json["steps"] = session.steps();
    std::ofstream(sample_folder / "biller.json") << json.dump(2) << "\n";
    if (boxes != nullptr) boxes->on_shown = nullptr;
    out << sample << ": " << session.steps().size() << " pictures and biller.json in "
        << sample_folder.string() << "\n";
  }
  out << "The scripted session's screenshots and billers are in " << folder.string() << "\n";
  return 0;
}

}  // namespace nvrandom::demo
