// What every test needs: a temporary folder, a pair of databases made by the
// same code as `zerbal init`, a way to look at rows, and assertions on
// raised errors.

#ifndef ZERBAL_TESTS_TESTUTIL_H_
#define ZERBAL_TESTS_TESTUTIL_H_

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "zerbal/error.h"
#include "zerbal/variant.h"

namespace zerbal::test {

// A new empty folder, removed with everything in it at the end of the test.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

// A fixture with both databases freshly created in a temporary folder.
class DatabaseTest : public ::testing::Test {
 protected:
  DatabaseTest();
  TempDir dir_;
  std::string mod_;  // the data database
  std::string lec_;  // the lookup database
};

// A one-dimensional buffer 0 to values.size() - 1 + extra, as a record class
// takes or gives it.
Variant Buffer(const std::vector<Variant>& values, int extra = 0);

// A declarant's or presenter's buffer (0 to 17): these code, NIF and name,
// and an address in Donostia (postal code 20005, empty letter and telephone).
Variant PersonBuffer(int32_t code, const std::string& nif, const std::string& name);

// The error that `body` raises, if any.
std::optional<Error> ErrorOf(const std::function<void()>& body);

// Success when `body` raises error `number`; the failure says what it raised.
::testing::AssertionResult Raises(const std::function<void()>& body, int32_t number,
                                  const char* text);

// Every row of `sql` on the database at `path`, each column as its Variant,
// read through a connection of its own in the engine's own SQL (so a test
// may look at what the system's SQL may not: rowid, the catalogue, ...).
std::vector<std::vector<Variant>> Rows(const std::string& path, const std::string& sql);

// Runs statements in the engine's own SQL on the database at `path`,
// through a connection of its own.
void Exec(const std::string& path, const std::string& sql);

// Every byte of the file at `path` (nothing when there is no such file).
std::string Slurp(const std::filesystem::path& path);

}  // namespace zerbal::test

namespace zerbal {
// Failing expectations print variants as DebugString shows them.
inline void PrintTo(const Variant& value, std::ostream* os) { *os << DebugString(value); }
}  // namespace zerbal

// Asserts that `statement` raises error `number`; more context may be
// streamed in with <<.
#define EXPECT_RAISES(statement, number) \
  EXPECT_TRUE(::zerbal::test::Raises([&] { statement; }, number, #statement))

#endif  // ZERBAL_TESTS_TESTUTIL_H_
