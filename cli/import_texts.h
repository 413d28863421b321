// What `zerbal import` says, in Spanish (the default) and Basque: one text
// for every error number that the import's checks record, and the words of
// the report around them.

#ifndef ZERBAL_CLI_IMPORT_TEXTS_H_
#define ZERBAL_CLI_IMPORT_TEXTS_H_

#include <cstdint>
#include <span>
#include <string_view>

namespace zerbal::cli {

enum class Lang { kEs, kEu };

struct ErrorText {
  int32_t number;
  std::string_view es;
  std::string_view eu;
};

// Every row, by number.
std::span<const ErrorText> ErrorTexts();

// The text of an error number; empty for a number the checks never record.
std::string_view TextOf(int32_t number, Lang lang);

// The words of the report.
enum class Word {
  kLine,            // "línea {n}, registro {t}" / "{n}. lerroa, {t} erregistroa"
  kNotStored,       // a line refused by its checks
  kStoredWithNotes, // a declarant line stored with errors (44)
  kDeclarationRefused,  // skipped: its declaration was refused
  kNoDeclarant,     // skipped: no declarant line before it
  kUnknownType,     // the first character is no record type
  kTooLong,         // longer than the tool reads
  kFailed,          // the library raised an error for the line
  kSummary,         // "Resumen de {n} líneas:"
  kDeclarants,      // "{a} nuevos, {b} reescritos, {c} sin cambios"
  kDeclarations,    // "{a} creadas, {b} rechazadas"
  kOperations,
  kRentals,
  kRefusedLines,
  kError,           // "error {n}"
};

// The word in `lang`, with "{n}", "{t}", "{a}", "{b}" and "{c}" where values go.
std::string_view WordOf(Word word, Lang lang);

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_IMPORT_TEXTS_H_
