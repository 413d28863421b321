// A new folder for a benchmark's databases, removed with everything in it
// when the benchmark program ends.

#ifndef ZERBAL_BENCH_BENCH_FOLDER_H_
#define ZERBAL_BENCH_BENCH_FOLDER_H_

#include <stdlib.h>

#include <filesystem>
#include <string>
#include <vector>

namespace zerbal::bench {

inline std::filesystem::path NewBenchFolder() {
  struct Made {
    std::vector<std::filesystem::path> folders;
    ~Made() {
      std::error_code ignored;
      for (const auto& folder : folders) std::filesystem::remove_all(folder, ignored);
    }
  };
  static Made made;
  std::string pattern =
      (std::filesystem::temp_directory_path() / "zerbal-bench-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) std::abort();
  made.folders.emplace_back(pattern);
  return pattern;
}

}  // namespace zerbal::bench

#endif  // ZERBAL_BENCH_BENCH_FOLDER_H_
