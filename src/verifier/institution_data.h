#pragma once

#include <string_view>

namespace nvrandom::verifier {

// The texts of data/institutions.csv and data/institution_sources.csv, compiled in.
extern const std::string_view kInstitutionsCsv;
extern const std::string_view kInstitutionSourcesCsv;

}  // namespace nvrandom::verifier
