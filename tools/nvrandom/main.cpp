// nvrandom: the demo, the scenario runner and the country-file tool.
#include <iostream>
#include <string>
#include <vector>

#include "countries_command.h"
#ifdef NVRANDOM_WITH_QT
#include "demo/demo_command.h"
#endif
#include "scenario_runner.h"

namespace {

int Usage() {
  std::cerr << "usage:\n"
#ifdef NVRANDOM_WITH_QT
               "  nvrandom demo [--sample business|individual|us|international] [--offscreen] "
               "[--out DIR]\n"
#endif
               "  nvrandom run [--transcript] FILE...\n"
               "  nvrandom countries encipher PLAIN ENCIPHERED\n"
               "  nvrandom countries decipher ENCIPHERED PLAIN\n"
               "  nvrandom countries list [ENCIPHERED]   (the sample list when none is given)\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) return Usage();
  if (args[0] == "run") {
    nvrandom::scenario::RunOptions options;
    std::vector<std::string> files;
    for (size_t i = 1; i < args.size(); ++i) {
      if (args[i] == "--transcript") {
        options.transcript = true;
      } else {
        files.push_back(args[i]);
      }
    }
    if (files.empty()) return Usage();
    return nvrandom::scenario::RunScenarioFiles(files, options, std::cout);
  }
#ifdef NVRANDOM_WITH_QT
  if (args[0] == "demo") return nvrandom::demo::DemoCommand(argc, argv, std::cout, std::cerr);
#endif
  if (args[0] == "countries") {
    return nvrandom::CountriesCommand({args.begin() + 1, args.end()}, std::cout, std::cerr);
  }
  return Usage();
}
