// Importing a whole declaration file, as `zerbal import` does: the file is
// streamed line by line (Windows-1252 or UTF-8; CR LF, LF or CR line ends),
// every line handed to cImpExp, and every line's outcome reported to the
// caller as it comes.

#ifndef ZERBAL_CLI_IMPORT_FILE_H_
#define ZERBAL_CLI_IMPORT_FILE_H_

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace zerbal::cli {

struct ImportOptions {
  std::filesystem::path data;    // the data database
  std::filesystem::path lookup;  // the lookup database
  std::filesystem::path file;
  bool utf8 = false;
  // The file is in the state agency's layout: every line is converted into
  // the treasury's before it is checked.
  bool state = false;
  int32_t year_min = 2002;
  int32_t year_max = 2002;
  // Adds the operation and rental lines to this existing declaration
  // (importOpeArr) instead of importing whole declarations (importSpte).
  std::optional<int32_t> declaration;
  uint8_t only = 2;  // with `declaration`: 0 operations, 1 rentals, 2 both
};

// What became of one line.
enum class Outcome {
  kStored,              // a declarant with its declaration, an operation, a rental
  kNothingToStore,      // a presenter line; a declarant line with --declaration
  kNotSelected,         // a kind that --only leaves out
  kRefused,             // its checks found errors (or the library refused it)
  kDeclarationRefused,  // skipped: its declaration was refused
  kNoDeclarant,         // skipped: no declarant line before it
  kUnknownType,         // the first character is not 0 to 3
  kTooLong,             // longer than the tool reads
};

struct LineError {
  int32_t number;
  std::string value;        // the text the check recorded
  std::string description;  // for an error the library raised: its description
};

struct LineOutcome {
  int64_t line = 0;  // 1-based
  std::string record;  // the first character
  Outcome outcome = Outcome::kStored;
  int subject = 5;  // Sujeto
  int result = 0;   // Resultado
  std::vector<LineError> errors;
};

struct ImportSummary {
  int64_t lines = 0;
  int64_t stored = 0;  // lines that stored something
  int64_t declarants_new = 0, declarants_rewritten = 0, declarants_kept = 0;
  int64_t declarations_created = 0, declarations_refused = 0;
  int64_t operations = 0, rentals = 0;
  int64_t refused = 0;  // lines not stored that should have been
  std::map<int32_t, int64_t> by_error;   // refused lines per error number
  std::map<Outcome, int64_t> by_reason;  // refused lines without an error number
};

// The import could not go on: the file cannot be read, a database is
// missing, or one stopped accepting writes. `summary` is what was done
// before.
class ImportStopped : public std::runtime_error {
 public:
  ImportStopped(const std::string& what, ImportSummary done, int64_t at_line)
      : std::runtime_error(what), summary(std::move(done)), line(at_line) {}
  ImportSummary summary;
  int64_t line;  // the line it stopped at (0: before the first)
};

// Counts the lines of a file (for a progress line).
int64_t CountLines(const std::filesystem::path& file);

// Whether a file looks like the state agency's layout: its first line is
// not a presenter record (the state layout has none), and most of its
// type-2 lines hold "D" or "I" (either case) at position 76, where a
// treasury record 2 holds a sign or a digit. A file without type-2 lines
// gives nothing to judge by, and is imported as asked.
enum class FileLayout { kEither, kTreasury, kState };
FileLayout LayoutOf(const std::filesystem::path& file, bool utf8);

// Imports the file; `each` (when given) receives every line's outcome.
// Raises ImportStopped, before any line is imported when the file does not
// look like the layout that `state` says.
ImportSummary ImportFile(const ImportOptions& options,
                         const std::function<void(const LineOutcome&)>& each = {});

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_IMPORT_FILE_H_
