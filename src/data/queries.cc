#include "data/queries.h"

#include "base/convert.h"
#include "data/buffers.h"
#include "zerbal/conexion_dao.h"

namespace zerbal {

Variant QueryBuffer(const std::string& sql, int16_t mode) {
  Recordset rs = Conexion().openRecordset(sql);
  Variant buffer = General::CargarArray(rs, mode);
  rs.Close();
  return buffer;
}

Variant QueryFirst(const std::string& sql, Variant none) {
  Recordset rs = Conexion().openRecordset(sql);
  Variant first = rs.Eof() ? std::move(none) : rs.Fields(0).Value();
  rs.Close();
  return first;
}

int32_t QueryNumber(const std::string& sql) {
  const Variant first = QueryFirst(sql, Variant::Null());
  return first.IsNull() ? 0 : CLng(first);
}

}  // namespace zerbal
