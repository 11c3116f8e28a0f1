#include "countries_command.h"

#include <fstream>
#include <iostream>

#include "installation_tree.h"
#include "platform/country_file_source.h"
#include "platform/path.h"

namespace nvrandom {

namespace {

// The text of an enciphered country file, or a message on `err` saying why there is none.
std::optional<std::string> ReadEnciphered(const std::string& file, std::ostream& err) {
  if (!path::FileExists(file)) {
    err << "cannot read " << file << '\n';
    return std::nullopt;
  }
  auto plain = BuiltinCountryFileDecipher().Decipher(file);
  if (!plain) err << file << " is not an intact enciphered country file\n";
  return plain;
}

}  // namespace

int CountriesCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  if (args.size() == 3 && args[0] == "encipher") {
    const auto plain = path::ReadFile(args[1]);
    if (!plain) {
      err << "cannot read " << args[1] << '\n';
      return 1;
    }
    if (!scenario::WriteCountryFile(args[2], *plain)) {
      err << "cannot write " << args[2] << '\n';
      return 1;
    }
    return 0;
  }
  if (args.size() == 3 && args[0] == "decipher") {
    const auto plain = ReadEnciphered(args[1], err);
    if (!plain) return 1;
    // The one place a plain copy is written: the user asked for it by name.
    std::ofstream file(args[2], std::ios::binary | std::ios::trunc);
    if (!(file << *plain)) {
      err << "cannot write " << args[2] << '\n';
      return 1;
    }
    return 0;
  }
  if ((args.size() == 1 || args.size() == 2) && args[0] == "list") {
    if (args.size() == 1) {
      out << scenario::SampleCountries();
      return 0;
    }
    const auto plain = ReadEnciphered(args[1], err);
    if (!plain) return 1;
    out << *plain;
    return 0;
  }
  err << "usage: nvrandom countries encipher PLAIN ENCIPHERED | decipher ENCIPHERED PLAIN | list "
         "[ENCIPHERED]\n";
  return 2;
}

}  // namespace nvrandom
