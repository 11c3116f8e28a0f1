// Opening the biller dialog reads the whole country file: the built-in decipher service reads
// and deciphers the sample file (every ISO 3166-1 country), then the reader turns it into
// records. Measured whole and in its parts.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "dialogs/biller/country_file_reader.h"
#include "installation_tree.h"
#include "platform/country_file_cipher.h"
#include "platform/country_file_source.h"
#include "platform/path.h"

namespace nvrandom {
namespace {

namespace fs = std::filesystem;

// The sample country file as the runner installs it, in a temporary folder removed at the end.
class SampleCountryFile {
 public:
  SampleCountryFile() {
    const fs::path dir =
        fs::temp_directory_path() / ("nvrandom-bench-" + std::to_string(::getpid()));
    fs::create_directories(dir);
    file_ = (dir / "FXCountries").string();
    ok_ = scenario::WriteCountryFile(file_, scenario::SampleCountries());
  }
  ~SampleCountryFile() {
    std::error_code ignored;
    fs::remove_all(fs::path(file_).parent_path(), ignored);
  }
  SampleCountryFile(const SampleCountryFile&) = delete;
  SampleCountryFile& operator=(const SampleCountryFile&) = delete;
  bool ok() const { return ok_; }
  const std::string& file() const { return file_; }

 private:
  std::string file_;
  bool ok_ = false;
};

void BM_CountryFileDecipherAndRead(benchmark::State& state) {
  SampleCountryFile sample;
  if (!sample.ok()) return state.SkipWithError("cannot write the sample country file");
  BuiltinCountryFileDecipher service;
  size_t records = 0;
  for (auto _ : state) {
    const auto text = service.Decipher(sample.file());
    if (!text) return state.SkipWithError("the sample country file was refused");
    records = ReadCountryRecords(*text).size();
    benchmark::DoNotOptimize(records);
  }
  state.counters["records"] = static_cast<double>(records);
}
BENCHMARK(BM_CountryFileDecipherAndRead)->Unit(benchmark::kMicrosecond);

void BM_CountryFileDecipherInMemory(benchmark::State& state) {
  SampleCountryFile sample;
  const auto data = sample.ok() ? path::ReadFile(sample.file()) : std::nullopt;
  if (!data) return state.SkipWithError("cannot read the sample country file");
  for (auto _ : state) benchmark::DoNotOptimize(country_file::Decipher(*data));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * data->size()));
}
BENCHMARK(BM_CountryFileDecipherInMemory)->Unit(benchmark::kMicrosecond);

void BM_CountryRecordsRead(benchmark::State& state) {
  const std::string_view text = scenario::SampleCountries();
  for (auto _ : state) benchmark::DoNotOptimize(ReadCountryRecords(text));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_CountryRecordsRead)->Unit(benchmark::kMicrosecond);

// A hostile file of 10 MiB: how long the dialog would take to refuse or read it.
void BM_CountryRecordsReadTenMebibytes(benchmark::State& state) {
  std::string text = "Country,Code,Phone\n";
  while (text.size() < (10u << 20)) text += "\"Saint, Somewhere\",SS,1869\r\n";
  for (auto _ : state) benchmark::DoNotOptimize(ReadCountryRecords(text));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_CountryRecordsReadTenMebibytes)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace nvrandom
