// Creating the two database files: the data database, with every table and
// the one settings row, and the lookup database, with every table and its
// reference data.
//
// A file is built under a temporary name beside its final one and renamed
// into place when complete, so a failure never leaves a partial file.

#ifndef ZERBAL_DATABASES_H_
#define ZERBAL_DATABASES_H_

#include <filesystem>
#include <string_view>

namespace zerbal {

inline constexpr std::string_view kDataFileName = "347mod.db";
inline constexpr std::string_view kLookupFileName = "347lec.db";

// Which data database to make: the current one, or the one that the
// program of an earlier year left, for trying the upgrade (cTraspaso). 2007
// lacks every column that the upgrade adds and holds the country code paiso
// as a 16-bit number; 2008 has the cash and real-estate amounts and the
// rentals' province; 2011 has the quarterly amounts as well.
inline constexpr int kCurrentSchema = 0;

// Each raises 58 when a file is already at `path`, unless `replace` is true;
// 76 when the folder of `path` does not exist; 5 for a schema that is
// neither kCurrentSchema nor one of those years.
//
// `path` may instead be a postgresql:// (or postgres://) URI of a database
// on a server: the database must exist (createdb makes it; 3024 when it does
// not), and the tables are made in it in one transaction, the same tables
// and rows as a file's. 58 when one of them is already there, unless
// `replace` (which drops only those tables first).
void CreateDataDatabase(const std::filesystem::path& path, bool replace = false,
                        int schema = kCurrentSchema);
void CreateLookupDatabase(const std::filesystem::path& path, bool replace = false);

struct DatabasePaths {
  std::filesystem::path data;    // folder / 347mod.db
  std::filesystem::path lookup;  // folder / 347lec.db
};

// Creates both files in `folder`, creating the folder when missing. Without
// `replace`, refuses (58) when either file exists, before creating any.
DatabasePaths CreateDatabases(const std::filesystem::path& folder, bool replace = false,
                              int schema = kCurrentSchema);

}  // namespace zerbal

#endif  // ZERBAL_DATABASES_H_
