// The key a save reads back. The system reads a new row's key as the
// highest key of its table right after the insert; with other processes
// saving into the same table that highest key may be theirs. So the query
// "SELECT MAX(k) FROM t" that follows a one-row insert into t on the same
// connection, k being t's counter, answers the key of that insert: for a
// single user the same value, and with many users still its own.

#ifndef ZERBAL_DATA_INSERTED_KEY_H_
#define ZERBAL_DATA_INSERTED_KEY_H_

#include <sqlite3.h>

#include <cstdint>
#include <optional>
#include <string>

#include "data/sql_lexer.h"

namespace zerbal::data {

// What a statement has to do with keys, read once per shape.
struct KeyUse {
  std::string insert_table;  // INSERT INTO this table (lower case)
  std::string max_table;     // SELECT MAX(max_column) FROM this table
  std::string max_column;
  int counter = -1;          // whether max_column is the table's counter; -1 not yet known
};

KeyUse KeyUseOf(const Tokens& tokens);

class InsertedKey {
 public:
  // After each statement that ran to its end: remembers the key of a
  // one-row INSERT, forgets it after anything else.
  void AfterStatement(sqlite3* db, const KeyUse& use);

  // The remembered key when `use` is the query that reads it back; it is
  // forgotten either way.
  std::optional<int64_t> ReadBack(sqlite3* db, KeyUse& use);

  void Forget() { table_.clear(); }

 private:
  std::string table_;  // lower case; empty when nothing is remembered
  int64_t key_ = 0;
};

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_INSERTED_KEY_H_
