#include <new>
#include <string>
#include <utility>

#include "base/raise.h"
#include "zerbal/error.h"

namespace zerbal {
namespace {

struct NumberText {
  int32_t number;
  std::string_view text;
};

constexpr NumberText kTexts[] = {
    {errc::kInvalidProcedureCall, "Invalid procedure call or argument"},
    {errc::kOverflow, "Overflow"},
    {errc::kOutOfMemory, "Out of memory"},
    {errc::kSubscriptOutOfRange, "Subscript out of range"},
    {errc::kTypeMismatch, "Type mismatch"},
    {errc::kInternalError, "Internal error"},
    {errc::kBadFileName, "Bad file name or number"},
    {errc::kFileNotFound, "File not found"},
    {errc::kFileAlreadyExists, "File already exists"},
    {errc::kPathFileAccess, "Path/File access error"},
    {errc::kPathNotFound, "Path not found"},
    {errc::kObjectNotSet, "Object variable not set"},
    {errc::kInvalidUseOfNull, "Invalid use of Null"},
    {errc::kCannotCreateObject, "Component can't create object"},
    {errc::kMemberNotFound, "Object doesn't support this property or method"},
    {errc::kWrongArgumentCount, "Wrong number of arguments or invalid property assignment"},
    {errc::kNoCurrentRecord, "No current record."},
    {errc::kDuplicateKey, "The changes were not successful because they would create duplicate values in the index or primary key."},
    {errc::kDatabaseNotFound, "Could not find the database file."},
    {errc::kDiskFull, "Not enough space on disk."},
    {errc::kReadOnly, "Cannot update. Database or object is read-only."},
    {errc::kDiskIo, "Disk or network error."},
    {errc::kInvalidPath, "The path is not a valid path."},
    {errc::kCannotOpen, "The database engine cannot open the file."},
    {errc::kSelectInExecute, "Cannot execute a select query."},
    {errc::kSyntaxError, "Syntax error in query expression."},
    {errc::kInvalidName, "The name is not a valid name."},
    {errc::kNotAStatement, "Invalid SQL statement; expected 'DELETE', 'INSERT', 'SELECT' or 'UPDATE'."},
    {errc::kTextAfterStatement, "Characters found after end of SQL statement."},
    {errc::kFieldTooSmall, "The field is too small to accept the amount of data you attempted to add."},
    {errc::kFieldDefinedTwice, "Cannot define field more than once."},
    {errc::kNullNotAllowed, "The field cannot contain a Null value."},
    {errc::kZeroLengthString, "Field cannot be a zero-length string."},
    {errc::kInvalidOperation, "Invalid operation."},
    {errc::kLocked, "The database is locked by another user."},
    {errc::kItemNotFound, "Item not found in this collection."},
    {errc::kFieldInIndex, "Cannot delete a field that is part of an index or is needed by the system."},
    {errc::kUnrecognizedFormat, "Unrecognized database format."},
    {errc::kNumericOverflow, "Numeric field overflow."},
    {errc::kObjectClosed, "Object invalid or no longer set."},
    {errc::kDataTypeMismatch, "Data type mismatch in criteria expression."},
};

}  // namespace

Error::Error(int32_t number, std::string source, std::string description,
             std::string help_file, int32_t help_context)
    : number_(number),
      source_(std::move(source)),
      description_(std::move(description)),
      help_file_(std::move(help_file)),
      help_context_(help_context) {}

void Error::PrefixDescription(std::string_view prefix) {
  description_.insert(0, prefix);
}

std::string_view ErrorText(int32_t number) {
  for (const NumberText& entry : kTexts) {
    if (entry.number == number) return entry.text;
  }
  return {};
}

void Raise(int32_t number, std::string_view detail, std::string_view source) {
  std::string description(ErrorText(number));
  if (!detail.empty()) {
    if (!description.empty()) description += ": ";
    description += detail;
  }
  throw Error(number, std::string(source), std::move(description));
}

Error CurrentError() {
  try {
    throw;
  } catch (const Error& e) {
    return e;
  } catch (const std::bad_alloc&) {
    return Error(errc::kOutOfMemory, std::string(kRuntimeSource),
                 std::string(ErrorText(errc::kOutOfMemory)));
  } catch (const std::exception& e) {
    return Error(errc::kInternalError, std::string(kRuntimeSource),
                 std::string(ErrorText(errc::kInternalError)) + ": " + e.what());
  } catch (...) {
    return Error(errc::kInternalError, std::string(kRuntimeSource),
                 std::string(ErrorText(errc::kInternalError)));
  }
}

void RaiseAgainWithPrefix(std::string_view prefix) {
  Error error = CurrentError();
  error.PrefixDescription(prefix);
  throw error;
}

void RaiseAgainWithSource(std::string_view source) {
  const Error error = CurrentError();
  throw Error(error.Number(), std::string(source), error.Description(), error.HelpFile(),
              error.HelpContext());
}

}  // namespace zerbal
