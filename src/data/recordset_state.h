// What a Recordset handle shares: the rows of its query and its position.

#ifndef ZERBAL_DATA_RECORDSET_STATE_H_
#define ZERBAL_DATA_RECORDSET_STATE_H_

#include <memory>
#include <string>
#include <vector>

#include "zerbal/recordset.h"
#include "zerbal/variant.h"

namespace zerbal::data {

struct RecordsetState {
  std::vector<std::string> names;
  std::vector<Variant> values;  // row after row
  int32_t rows = 0;
  int32_t position = 0;  // current row; -1 before the first, `rows` past the last
  bool open = true;

  void Close() {
    open = false;
    values.clear();
    values.shrink_to_fit();
  }
};

// The door between the database, which makes recordsets, and the handle.
class RecordsetStateAccess {
 public:
  static Recordset Make(std::shared_ptr<RecordsetState> state) {
    return Recordset(std::move(state));
  }
  static const std::shared_ptr<RecordsetState>& State(const Recordset& rs) { return rs.state_; }
};

// The value of column `c` of the current row, read in place: what
// rs.Fields(c).Value() gives, without its copy, for an open recordset on a
// row (the caller has checked both).
inline const Variant& CurrentValue(const Recordset& rs, int32_t c) {
  const RecordsetState& s = *RecordsetStateAccess::State(rs);
  return s.values[static_cast<size_t>(s.position) * s.names.size() + static_cast<size_t>(c)];
}

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_RECORDSET_STATE_H_
