// Errors raised by zerbal.
//
// Every failure of the library reaches the client as a zerbal::Error: the
// number a client tests, the component that raised it, and a description.
// Numbers below 1000 are the language runtime's; numbers from 3000 are the
// database engine's.

#ifndef ZERBAL_ERROR_H_
#define ZERBAL_ERROR_H_

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace zerbal {

class Error : public std::exception {
 public:
  Error(int32_t number, std::string source, std::string description,
        std::string help_file = {}, int32_t help_context = 0);

  // Intentionally copyable: an error is a value.
  Error(const Error&) = default;
  Error& operator=(const Error&) = default;

  int32_t Number() const { return number_; }
  const std::string& Source() const { return source_; }
  const std::string& Description() const { return description_; }
  const std::string& HelpFile() const { return help_file_; }
  int32_t HelpContext() const { return help_context_; }

  // Puts `prefix` in front of the description; nothing else changes.
  void PrefixDescription(std::string_view prefix);

  const char* what() const noexcept override { return description_.c_str(); }

 private:
  int32_t number_;
  std::string source_;
  std::string description_;
  std::string help_file_;
  int32_t help_context_;
};

// The numbers a client may test.
namespace errc {
// Language runtime.
inline constexpr int32_t kInvalidProcedureCall = 5;
inline constexpr int32_t kOverflow = 6;
inline constexpr int32_t kOutOfMemory = 7;
inline constexpr int32_t kSubscriptOutOfRange = 9;
inline constexpr int32_t kTypeMismatch = 13;
inline constexpr int32_t kInternalError = 51;
inline constexpr int32_t kBadFileName = 52;
inline constexpr int32_t kFileNotFound = 53;
inline constexpr int32_t kFileAlreadyExists = 58;
inline constexpr int32_t kPathFileAccess = 75;
inline constexpr int32_t kPathNotFound = 76;
inline constexpr int32_t kObjectNotSet = 91;
inline constexpr int32_t kInvalidUseOfNull = 94;
inline constexpr int32_t kCannotCreateObject = 429;
inline constexpr int32_t kMemberNotFound = 438;
inline constexpr int32_t kWrongArgumentCount = 450;
// Database engine.
inline constexpr int32_t kNoCurrentRecord = 3021;
inline constexpr int32_t kDuplicateKey = 3022;
inline constexpr int32_t kDatabaseNotFound = 3024;
inline constexpr int32_t kDiskFull = 3026;
inline constexpr int32_t kReadOnly = 3027;
inline constexpr int32_t kDiskIo = 3043;
inline constexpr int32_t kInvalidPath = 3044;
inline constexpr int32_t kCannotOpen = 3051;
inline constexpr int32_t kSelectInExecute = 3065;
inline constexpr int32_t kSyntaxError = 3075;
inline constexpr int32_t kInvalidName = 3125;
inline constexpr int32_t kNotAStatement = 3129;
inline constexpr int32_t kTextAfterStatement = 3142;
inline constexpr int32_t kFieldTooSmall = 3163;
inline constexpr int32_t kFieldDefinedTwice = 3191;
inline constexpr int32_t kNullNotAllowed = 3314;
inline constexpr int32_t kZeroLengthString = 3315;
inline constexpr int32_t kInvalidOperation = 3219;
inline constexpr int32_t kLocked = 3260;
inline constexpr int32_t kItemNotFound = 3265;
inline constexpr int32_t kFieldInIndex = 3280;
inline constexpr int32_t kUnrecognizedFormat = 3343;
inline constexpr int32_t kNumericOverflow = 3349;
inline constexpr int32_t kObjectClosed = 3420;
inline constexpr int32_t kDataTypeMismatch = 3464;
}  // namespace errc

// The standard text of an error number ("Type mismatch" for 13); an empty
// view for a number the library never raises.
std::string_view ErrorText(int32_t number);

}  // namespace zerbal

#endif  // ZERBAL_ERROR_H_
