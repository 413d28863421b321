// What every test needs: a temporary folder, a pair of databases made by the
// same code as `zerbal init`, a way to look at rows, and assertions on
// raised errors.

#ifndef ZERBAL_TESTS_TESTUTIL_H_
#define ZERBAL_TESTS_TESTUTIL_H_

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
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

// Whether the tests' data databases are on a server (ZERBAL_TEST_ENGINE).
bool OnServer();

// A new empty database on the test server (ZERBAL_TEST_PG, the URI of a
// database where the tests may create others), dropped at the end; the test
// is skipped by the caller when there is no server (Uri() empty).
class ServerDatabase {
 public:
  ServerDatabase();
  ~ServerDatabase();
  ServerDatabase(const ServerDatabase&) = delete;
  ServerDatabase& operator=(const ServerDatabase&) = delete;
  const std::string& Uri() const { return uri_; }

  // `uri` (a server URI) naming the database `name` instead.
  static std::string WithDatabase(const std::string& uri, const std::string& name);

 private:
  std::string name_;
  std::string uri_;
};

// A fixture with both databases freshly created in a temporary folder. When
// the environment says ZERBAL_TEST_ENGINE=postgresql, the data database is
// instead a new database on the server of ZERBAL_TEST_PG (see ServerDatabase),
// so that the same tests run on both engines.
class DatabaseTest : public ::testing::Test {
 protected:
  DatabaseTest();
  ~DatabaseTest() override;
  TempDir dir_;
  std::unique_ptr<ServerDatabase> server_;  // the data database on a server
  std::string mod_;  // the data database: a path, or a server URI
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

// Every row of `sql` on the database at `path` (or server URI), each column
// as its Variant, read through a connection of its own in the engine's own
// SQL (so a test may look at what the system's SQL may not: rowid, the
// catalogue, ...).
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
