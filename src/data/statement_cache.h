// Prepared statements kept per connection, one per shape of statement (the
// text with its values lifted out; see dialect.h), so that a statement the
// system builds again with other values is neither parsed, translated nor
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
  const Shape& shape() const { return shape_; }

 private:
  friend class StatementCache;
  BoundStatement(Shape shape, sqlite3_stmt* stmt, Statement owned, bool* in_use);

  Shape shape_;            // holds the bound texts while the statement runs
  sqlite3_stmt* stmt_;
  Statement owned_;        // a statement kept by no cache: finalized here
  bool* in_use_;           // the cache entry's flag, or null
};

class StatementCache {
 public:
  // The statement for `sql` on `db` with its values bound. Raises what
  // ShapeOf, Translate and PrepareOne raise (3075, 3129, 3142).
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
    std::vector<size_t> candidates;  // values that may get a LIKE range
    std::unordered_map<std::string, std::unique_ptr<Prepared>> variants;  // by ranges taken
  };
  std::unordered_map<std::string, Entry> entries_;
};

// The SQL text of the translation with its values written in, as the
// engine would be given it without parameters (for plans and messages).
std::string InlinedSql(const Shape& shape, const IndexedTextColumns& indexed);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_STATEMENT_CACHE_H_
