#include "countries_command.h"

#include <iostream>

#include "installation_tree.h"
#include "platform/country_file_cipher.h"
#include "platform/path.h"

namespace nvrandom {

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
    if (!country_file::DecipherFile(args[1], args[2])) {
      err << args[1] << " is not an enciphered country file, or " << args[2]
          << " cannot be written\n";
      return 1;
    }
    return 0;
  }
  if ((args.size() == 1 || args.size() == 2) && args[0] == "list") {
    if (args.size() == 1) {
      out << scenario::SampleCountries();
      return 0;
    }
    const auto data = path::ReadFile(args[1]);
    const auto plain = data ? country_file::Decipher(*data) : std::nullopt;
    if (!plain) {
      err << args[1] << " is not an enciphered country file\n";
      return 1;
    }
    out << *plain;
    return 0;
  }
  err << "usage: nvrandom countries encipher PLAIN ENCIPHERED | decipher ENCIPHERED PLAIN | list "
         "[ENCIPHERED]\n";
  return 2;
}

}  // namespace nvrandom
