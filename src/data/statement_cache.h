// Prepared statements kept per connection, one per shape of statement (the
// text with its values lifted out; see dialect.h), so that a statement the
// system builds again with other values is neither checked, translated nor
// prepared again.

#ifndef ZERBAL_DATA_STATEMENT_CACHE_H_
#define ZERBAL_DATA_STATEMENT_CACHE_H_

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "data/dialect.h"
#include "data/inserted_key.h"
#include "data/sqlite.h"

namespace zerbal::data {

class StatementCache;

// A statement with the values of one call bound, ready to step. Returns the
// statement to its cache, reset and unbound, when destroyed.
class BoundStatement {
 public:
  BoundStatement(BoundStatement&&) noexcept;
  BoundStatement& operator=(BoundStatement&&) = delete;
  BoundStatement(const BoundStatement&) = delete;
  ~BoundStatement();

  sqlite3_stmt* get() const { return stmt_; }
  bool definition() const { return definition_; }
  KeyUse& key_use() const { return *key_use_; }

 private:
  friend class StatementCache;
  BoundStatement() = default;

  std::vector<Literal> values_;  // holds the bound texts while the statement runs
  sqlite3_stmt* stmt_ = nullptr;
  Statement owned_;              // a statement kept by no cache: finalized here
  bool* in_use_ = nullptr;       // the cache entry's flag, or null
  bool definition_ = false;
  KeyUse* key_use_ = nullptr;
  std::unique_ptr<KeyUse> own_key_use_;
};

class StatementCache {
 public:
  // The statement for `sql` on `db` with its values bound. Raises what
  // ShapeOf, CheckShape, Translate and PrepareOne raise (3075, 3129, 3142).
  BoundStatement Prepare(sqlite3* db, std::string_view sql, const IndexedTextColumns& indexed);

  // Forgets every statement (after a change of the tables).
  void Clear() { entries_.clear(); }

 private:
  struct Prepared {
    Statement stmt;
    std::vector<Bind> binds;
    bool in_use = false;
  };
  struct Entry {
    Tokens tokens;
    std::vector<size_t> candidates;  // values that may get a LIKE range
    KeyUse key_use;
    std::unordered_map<std::string, std::unique_ptr<Prepared>> prepared;  // by ranges taken
  };
  std::unordered_map<std::string, std::unique_ptr<Entry>> entries_;
};

// The SQL text of the statement's translation with its values written in,
// as the engine would be given it without parameters (for plans and
// messages).
std::string InlinedSql(std::string_view sql, const IndexedTextColumns& indexed);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_STATEMENT_CACHE_H_
