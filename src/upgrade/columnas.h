// What the upgrade leaves to do in a data database: which groups' markers
// it has, and which columns of a new database it lacks. The command-line
// tool judges an upgrade by these, and refuses an earlier year's database
// everywhere else.

#ifndef ZERBAL_UPGRADE_COLUMNAS_H_
#define ZERBAL_UPGRADE_COLUMNAS_H_

#include <string>
#include <vector>

namespace zerbal::upgrade {

// For each group of kGrupos, in order, whether the database at `mdbmod`
// has its marker. Raises as opening the database does (3024, 3343, ...).
std::vector<bool> MarcadoresPresentes(const std::string& mdbmod);

// The columns of a new data database that the database at `mdbmod` lacks,
// as "table.column" in the new database's order; none for a current one.
// Raises as opening the database does.
std::vector<std::string> ColumnasQueFaltan(const std::string& mdbmod);

}  // namespace zerbal::upgrade

#endif  // ZERBAL_UPGRADE_COLUMNAS_H_
