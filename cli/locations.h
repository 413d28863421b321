// Where a command finds its two databases. --dir DIR names the usual files
// of a folder (DIR/347mod.db and DIR/347lec.db); --data and --lookup name
// either database directly and win over --dir: a file, an existing folder
// holding the usual file, or a PostgreSQL URI (postgresql://...).

#ifndef ZERBAL_CLI_LOCATIONS_H_
#define ZERBAL_CLI_LOCATIONS_H_

#include <optional>
#include <string>
#include <string_view>

namespace zerbal::cli {

struct Locations {
  std::string data;
  std::string lookup;
};

// The options --dir, --data and --lookup as a command reads them.
class LocationArgs {
 public:
  static bool IsOption(std::string_view name);

  // Takes "name value" for one of the three options; false for a name given
  // twice or an empty value.
  bool Take(const std::string& name, const std::string& value);

  bool Given() const { return !dir_.empty() || !data_.empty() || !lookup_.empty(); }

  // Both databases: what --data and --lookup name, else the usual file of
  // --dir; a lookup file left unnamed is the one beside a data file. Nothing
  // when the data database is not named, or the lookup database cannot be
  // told (a server data database without --lookup or --dir).
  std::optional<Locations> Resolve() const;

 private:
  std::string dir_, data_, lookup_;
};

// Creates both databases: the files, or the tables in a server's database.
// Without `replace`, refuses (58) when a database file is already at either
// place, before creating any (a server's database says so itself).
void CreateAt(const Locations& where, bool replace, int schema);

// Whether `location` names a database on a PostgreSQL server.
bool IsServerLocation(std::string_view location);

// Said in every command's usage text.
inline constexpr const char* kLocationUsage =
    "--data and --lookup name the data and lookup databases instead of the\n"
    "files of DIR: a file, a folder holding 347mod.db or 347lec.db, or a\n"
    "PostgreSQL URI (postgresql://user@host:port/dbname, or\n"
    "postgresql:///dbname?host=/socket/folder).\n";

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_LOCATIONS_H_
