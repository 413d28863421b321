// The eighteen columns that a declarant (TDeclarante) and the presenter
// (TPresentador) share, with their write rules, their buffer and the SQL
// that inserts, updates and deletes them. The two gateways differ in their
// table, their column names and their queries, which each one adds.

#ifndef ZERBAL_RECORDS_PERSONA_PERSONA_ROW_H_
#define ZERBAL_RECORDS_PERSONA_PERSONA_ROW_H_

#include <array>
#include <string>
#include <string_view>

#include "zerbal/recordset.h"
#include "zerbal/variant.h"

namespace zerbal::records {

// The columns, numbered as in the record's buffer (0 to 17).
enum PersonaSlot : int {
  kCodigo, kDniCif, kNombre, kVia, kDomicilio, kNumero, kLetra, kEscalera, kPiso, kMano,
  kCod, kCodPostal, kMunicipio, kPrefijo, kTelefono, kNombreP, kPrefijoP, kTelefonoP,
  kPersonaSlots
};

struct PersonaTable {
  std::string_view table;  // as it stands in the statements
  std::array<std::string_view, kPersonaSlots> columns;  // by slot; 0 is the key
  std::string_view insert_head;  // "INSERT INTO ... ) VALUES ( "
};

class PersonaRow {
 public:
  explicit PersonaRow(const PersonaTable& table);

  // A property: a 32-bit number or a string. Before any write a string is
  // empty and a number 0.
  const Variant& Get(PersonaSlot slot) const { return values_[slot]; }
  // Numbers are converted to 32 bits. Texts: the identifier and the street
  // type store an empty text as one blank; the telephones are stored
  // unchanged; the other texts store an empty text as one blank and protect
  // apostrophes (SustituirComilla).
  void Let(PersonaSlot slot, const Variant& value);

  // Writes all eighteen properties from a buffer (indexes 0 to 17); index
  // 11 contributes the last three characters of its text.
  void FromBuffer(const Variant& buffer);
  // A buffer 0 to 17: numbers as 32-bit integers, texts as strings, and
  // index 11 the last three characters of the postal-code number's text.
  Variant ToBuffer() const;

  // Stores the columns of the current row straight into the properties, with
  // no write rule: texts trimmed, except the telephones and the second
  // person's name; the key too when `with_key`.
  void Load(const Recordset& row, bool with_key);

  // The statements both tables take, run on the shared connection; errors
  // raised unchanged. Each returns true.
  bool Insertar();
  bool Borrar();
  bool Modificar();

 protected:
  const PersonaTable& table() const { return table_; }

 private:
  std::string Value(PersonaSlot slot, bool quote) const;
  std::string InsertSql() const;
  std::string UpdateSql() const;
  std::string DeleteSql() const;

  const PersonaTable& table_;
  std::array<Variant, kPersonaSlots> values_;
};

}  // namespace zerbal::records

#endif  // ZERBAL_RECORDS_PERSONA_PERSONA_ROW_H_
