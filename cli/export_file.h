// Writing the whole declaration file of a fiscal year, as the treasury
// expects it: record 0 (the presenter and the counts) first, then for each
// declarant with a declaration of that year and currency (by identifier) its
// record 1, its records 2 and its records 3. One record per line, CR LF line
// ends, Windows-1252 text (or UTF-8).
//
// `zerbal export` and `zerbal demo` both write files through ExportYear.

#ifndef ZERBAL_CLI_EXPORT_FILE_H_
#define ZERBAL_CLI_EXPORT_FILE_H_

#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>

namespace zerbal::cli {

struct ExportOptions {
  std::filesystem::path data;    // the data database
  std::filesystem::path lookup;  // never written over; the data's neighbour when empty
  int32_t year = 0;
  std::string currency = "E";
  std::filesystem::path out;
  std::optional<std::filesystem::path> declarants;  // also write the declarants file
  bool utf8 = false;
  std::ostream* progress = nullptr;  // a terminal, to show a progress line on
};

struct ExportSummary {
  int32_t declarants = 0;
  int32_t records = 0;        // every line of the file, record 0 included
  int32_t replaced_chars = 0; // characters written as "?": not in Windows-1252
  std::filesystem::path file;
};

// A failure that the tool reports in words: no declarations, no presenter,
// a record that cannot be built (naming the field that does not fit), an
// output that cannot be written or must not be.
class ExportFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Writes the file, and the declarants file when asked, each replaced whole
// as export_target.h says; refuses, before any work, an output that is not
// a regular file or is one of the databases, and the same file named for
// both. Raises ExportFailure or the library's errors.
ExportSummary ExportYear(const ExportOptions& options);

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_EXPORT_FILE_H_
