// The SQL that the system builds, made into SQL that the engine runs with
// the same meaning, in two steps.
//
// ShapeOf lifts the values out of a statement: the texts between
// apostrophes and the numbers become parameters, so statements that differ
// only in their values share one shape, translated and prepared once. It
// also refuses (3075) what the original engine would have rejected as text
// while the engine here would run it: comments, "||" and the other
// operators of its own, WITH, parameters, blobs, hexadecimal numbers, any
// catalogue table or function of the engine, and functions the original
// engine's SQL does not have. A value that breaks out of its apostrophes
// therefore fails, instead of running an altered statement.
//
// Translate then rewrites the shape:
//  - "SELECT [DISTINCT] TOP n ..." selects the first n rows (LIMIT n).
//  - "INSERT INTO t SELECT a, b FROM ..." without a column list fills the
//    columns named like the selected ones.
//  - "&" joins texts, as it does in the original engine.
//  - "col LIKE 'prefix*'" on an indexed text column also gets a range on
//    the column, so the index serves the search; the LIKE itself (the
//    original engine's wildcards, installed on the connection) still decides.

#ifndef ZERBAL_DATA_DIALECT_H_
#define ZERBAL_DATA_DIALECT_H_

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "data/sql_lexer.h"

namespace zerbal::data {

// Lower-case names of the text columns that an index starts with.
using IndexedTextColumns = std::set<std::string, std::less<>>;

// A value lifted out of a statement.
struct Literal {
  enum class Kind { kText, kInteger, kReal };
  Kind kind = Kind::kText;
  std::string text;  // the text, or the number as written
  int64_t integer = 0;
  double real = 0;
};

struct Shape {
  std::string text;             // the statement, each lifted value a "?"
  std::vector<Literal> values;  // the lifted values, in order
  std::string key;              // the text, and the kind of each value
  bool definition = false;      // CREATE, ALTER or DROP: nothing lifted
};

// Raises 3129 for a statement that is not SELECT, INSERT, UPDATE, DELETE or
// a table definition, 3142 for text after its end, 3075 for a value the
// original engine would not read (an unclosed text, a number that is not
// plain digits).
Shape ShapeOf(std::string_view sql);

// Raises 3075 for a shape (the tokens of its text) that the original engine
// would have rejected. What it looks at is all in the shape's key: once
// per key is enough.
void CheckShape(const Tokens& tokens, bool definition);

// The lifted values that a LIKE on an indexed text column compares with:
// a range can be added for each of them whose pattern has a fixed prefix.
std::vector<size_t> RangeCandidates(const Tokens& tokens, const std::vector<Literal>& values,
                                    const IndexedTextColumns& indexed);

// The fixed beginning of a LIKE pattern that a range can serve, and the
// texts that bound the range; false when there is none.
bool PrefixRange(std::string_view pattern, std::string* low, std::string* high);

// Where a parameter of the translated statement takes its value from.
struct Bind {
  // kPattern: a LIKE pattern made into a regular expression (PatternRegex);
  // kNegated: the value with the sign written before it.
  enum class Part { kValue, kLow, kHigh, kPattern, kNegated };
  size_t value;
  Part part;
};

struct Translation {
  std::string sql;          // parameters written ?1, ?2, ...
  std::vector<Bind> binds;  // parameter k + 1 is binds[k]
};

// `ranged[k]` says whether RangeCandidates' k-th value gets its range.
// Raises 3075 for an INSERT ... SELECT whose selected columns have no name.
Translation Translate(const Tokens& tokens, const std::vector<Literal>& values,
                      const IndexedTextColumns& indexed, const std::vector<bool>& ranged);

// "SELECT [DISTINCT] TOP n ..." made "SELECT ... LIMIT n".
void RewriteTop(Tokens& tokens);

// "INSERT INTO t SELECT a, b ..." given the column list "(a, b)"; raises
// 3075 for a selected column without a name.
void AddInsertColumns(Tokens& tokens);

// The same shape for a PostgreSQL server, parameters written $1, $2, ...:
// TOP, INSERT ... SELECT and "&" as in Translate; "x [NOT] LIKE ?" a
// case-blind regular expression match (the parameter's part kPattern); an
// INSERT into a table whose counter is `counter` (empty: none) returns the
// new key.
Translation TranslateForServer(const Tokens& tokens, const std::string& counter);

// The names of a SELECT's columns as the statement writes them (the last
// word of each item; empty when it ends otherwise), for engines that give
// them in another case.
std::vector<std::string> SelectedNames(const Tokens& tokens);

// The regular expression that matches exactly what the original engine's
// LIKE pattern does: * ? # [..] [!..], everything else literally.
std::string PatternRegex(std::string_view pattern);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_DIALECT_H_
