// The tables of a new data database and their fields, exactly as `zerbal
// init` makes them: what an upgraded database is measured against.

#ifndef ZERBAL_DATA_DATA_SCHEMA_H_
#define ZERBAL_DATA_DATA_SCHEMA_H_

#include <vector>

#include "data/table_schema.h"

namespace zerbal::data {

// Read from a database in memory built by the same script as a new file.
std::vector<TableSchema> NewDataSchema();

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_DATA_SCHEMA_H_
