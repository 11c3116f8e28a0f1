// Runs a fuzz target over saved inputs (files, or every file of a folder) without libFuzzer, so
// the targets are built and exercised by every build.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

void RunFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::vector<char> bytes((std::istreambuf_iterator<char>(in)),
                                std::istreambuf_iterator<char>());
  LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  size_t runs = 0;
  LLVMFuzzerTestOneInput(nullptr, 0);
  ++runs;
  for (int i = 1; i < argc; ++i) {
    const std::filesystem::path arg(argv[i]);
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_directory(arg)) {
      for (const auto& entry : std::filesystem::directory_iterator(arg)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
      }
      std::sort(files.begin(), files.end());
    } else {
      files.push_back(arg);
    }
    for (const auto& file : files) {
      RunFile(file);
      ++runs;
    }
  }
  std::printf("replayed %zu inputs\n", runs);
  return 0;
}
