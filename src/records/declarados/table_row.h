// One row of a table as a gateway holds it: a list of typed columns with
// their write rules (written once, as data, by each gateway), a value per
// column, and the statements built from those values.
//
// A statement is written as its exact SQL text with "{property}" wherever a
// value goes, so the text reads as the statement that runs; Sql() fills the
// places in. Numbers take their invariant text (base/convert.h), which is
// always valid SQL.

#ifndef ZERBAL_RECORDS_DECLARADOS_TABLE_ROW_H_
#define ZERBAL_RECORDS_DECLARADOS_TABLE_ROW_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "zerbal/recordset.h"
#include "zerbal/variant.h"

namespace zerbal::records {

enum class Kind : uint8_t { kLong, kDouble, kText };

// What a text property does with the value it is given.
enum class Rule : uint8_t {
  kAsGiven,         // stored unchanged
  kBlank,           // an empty text is stored as one blank
  kBlankProtected,  // that, and every apostrophe becomes "´" (SustituirComilla)
};

struct Column {
  std::string_view property;  // as it is written between braces in statements
  Kind kind;
  Rule rule = Rule::kAsGiven;
};

class TableRow {
 public:
  // `columns` must outlive the row (gateways pass a constant table). Before
  // any write a number is 0 and a text empty.
  explicit TableRow(std::span<const Column> columns);

  // The property of `slot` (an index into the columns): a 32-bit integer, a
  // double or a string.
  const Variant& Get(int slot) const { return values_[slot]; }

  // The property's setter: converts to the column's kind (CLng, CDbl, CStr,
  // with their errors: 94 for Null, 13 for a text that is no number) and
  // applies the column's rule.
  void Let(int slot, const Variant& value);

  // Stores a value read from the database: converted to the column's kind
  // with no rule, a Null text as the empty text (Null numbers raise 94).
  void Store(int slot, const Variant& value);

  // Let of buffer element i into slot order[i], for i in order.
  void FromBuffer(const Variant& buffer, std::span<const int> order);

  // Store of field i of the current row into slot order[i].
  void FromRecord(const Recordset& record, std::span<const int> order);

  // `statement` with every "{property}" replaced by that property's text.
  // A text with an apostrophe (a column not protected by its rule) is
  // refused with 3075 before anything runs, as the engine would refuse the
  // broken statement, so that no value can change a statement's meaning.
  std::string Sql(std::string_view statement) const;

 private:
  int SlotOf(std::string_view property) const;
  std::string Text(int slot) const;

  std::span<const Column> columns_;
  std::vector<Variant> values_;
};

}  // namespace zerbal::records

#endif  // ZERBAL_RECORDS_DECLARADOS_TABLE_ROW_H_
