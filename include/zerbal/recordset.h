// Recordset: the rows of a query, with a current row.
//
// A Recordset is a handle: copies share the same rows and position. It holds
// every row of its query from the moment it opens, so RecordCount is exact
// at once. Closing it (or closing the database it was opened on) ends it:
// any later use raises 3420.

#ifndef ZERBAL_RECORDSET_H_
#define ZERBAL_RECORDSET_H_

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal {

namespace data {
struct RecordsetState;
class RecordsetStateAccess;
}  // namespace data

class Recordset;

// One column of a recordset, read on its current row.
class Field {
 public:
  const std::string& Name() const;
  // The value on the current row: Null, Long (whole numbers), Double or
  // String. Raises 3021 when there is no current row.
  Variant Value() const;

 private:
  friend class Recordset;
  Field(std::shared_ptr<data::RecordsetState> state, int32_t index)
      : state_(std::move(state)), index_(index) {}
  std::shared_ptr<data::RecordsetState> state_;
  int32_t index_;
};

class Recordset {
 public:
  // A recordset that was never opened: any use raises 91.
  Recordset() = default;

  // The number of rows.
  int32_t RecordCount() const;
  // Moving past either end raises 3021; on a recordset without rows every
  // move does.
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  // True past the last row (and on a recordset without rows).
  bool Eof() const;
  // True before the first row (and on a recordset without rows).
  bool Bof() const;

  int32_t FieldCount() const;
  // Column by 0-based position, or by name ignoring case; raise 3265 when
  // there is no such column.
  Field Fields(int32_t index) const;
  Field Fields(std::string_view name) const;

  // Ends the recordset; closing it again is allowed and does nothing.
  void Close();
  bool IsOpen() const;

 private:
  friend class data::RecordsetStateAccess;
  explicit Recordset(std::shared_ptr<data::RecordsetState> state) : state_(std::move(state)) {}
  std::shared_ptr<data::RecordsetState> state_;
};

}  // namespace zerbal

#endif  // ZERBAL_RECORDSET_H_
