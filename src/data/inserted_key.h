// The key a save reads back. The system reads a new row's key as the
// highest key of its table right after the insert; with other processes
// saving into the same table that highest key may be theirs. So the query
// "SELECT MAX(k) FROM t" that follows a one-row insert into t on the same
// connection, k being t's counter, answers the key of that insert: for a
// single user the same value, and with many users still its own.

#ifndef ZERBAL_DATA_INSERTED_KEY_H_
#define ZERBAL_DATA_INSERTED_KEY_H_

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
  // After each statement that ran to its end: remembers `key` when it was
  // a one-row INSERT (`rows` changed), forgets it after anything else.
  void AfterStatement(const KeyUse& use, int64_t rows, int64_t key) {
    if (!use.insert_table.empty() && rows == 1) {
      table_ = use.insert_table;
      key_ = key;
    } else {
      table_.clear();
    }
  }

  // The remembered key when `use` is the query that reads it back;
  // `is_counter(table, column)` says, once per shape, whether the column
  // read is the table's counter. The key is forgotten either way.
  template <typename IsCounter>
  std::optional<int64_t> ReadBack(KeyUse& use, IsCounter&& is_counter) {
    const bool match = !table_.empty() && use.max_table == table_;
    table_.clear();
    if (!match) return std::nullopt;
    if (use.counter < 0) use.counter = is_counter(use.max_table, use.max_column) ? 1 : 0;
    if (use.counter == 0) return std::nullopt;
    return key_;
  }

  void Forget() { table_.clear(); }

 private:
  std::string table_;  // lower case; empty when nothing is remembered
  int64_t key_ = 0;
};

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_INSERTED_KEY_H_
