#include "records/persona/persona_row.h"

#include "base/convert.h"
#include "base/text.h"
#include "data/buffers.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::records {
namespace {

enum class Rule { kNumber, kUnchanged, kBlank, kBlankProtected };

struct SlotRule {
  Rule rule;
  bool trimmed;  // on Load
};

constexpr std::array<SlotRule, kPersonaSlots> kRules = {{
    {Rule::kNumber, false},          // kCodigo
    {Rule::kBlank, true},            // kDniCif
    {Rule::kBlankProtected, true},   // kNombre
    {Rule::kBlank, true},            // kVia
    {Rule::kBlankProtected, true},   // kDomicilio
    {Rule::kNumber, false},          // kNumero
    {Rule::kBlankProtected, true},   // kLetra
    {Rule::kBlankProtected, true},   // kEscalera
    {Rule::kBlankProtected, true},   // kPiso
    {Rule::kBlankProtected, true},   // kMano
    {Rule::kNumber, false},          // kCod
    {Rule::kNumber, false},          // kCodPostal
    {Rule::kBlankProtected, true},   // kMunicipio
    {Rule::kNumber, false},          // kPrefijo
    {Rule::kUnchanged, false},       // kTelefono
    {Rule::kBlankProtected, false},  // kNombreP
    {Rule::kNumber, false},          // kPrefijoP
    {Rule::kUnchanged, false},       // kTelefonoP
}};

bool IsNumber(int slot) { return kRules[slot].rule == Rule::kNumber; }

}  // namespace

PersonaRow::PersonaRow(const PersonaTable& table) : table_(table) {
  for (int slot = 0; slot < kPersonaSlots; ++slot) {
    values_[slot] = IsNumber(slot) ? Variant(0) : Variant("");
  }
}

void PersonaRow::Let(PersonaSlot slot, const Variant& value) {
  const Rule rule = kRules[slot].rule;
  if (rule == Rule::kNumber) {
    values_[slot] = CLng(value);
    return;
  }
  std::string text = CStr(value);
  if (rule != Rule::kUnchanged && text.empty()) {
    text.assign(1, ' ');
  } else if (rule == Rule::kBlankProtected) {
    text = General::SustituirComilla(text);
  }
  values_[slot] = std::move(text);
}

void PersonaRow::FromBuffer(const Variant& buffer) {
  for (int slot = 0; slot < kPersonaSlots; ++slot) {
    const Variant& element = buffer(slot);
    if (slot == kCodPostal) {
      // The buffer carries the postal code's last three digits (20005 -> 5).
      Let(kCodPostal, Right(CStr(element), 3));
    } else {
      Let(static_cast<PersonaSlot>(slot), element);
    }
  }
}

Variant PersonaRow::ToBuffer() const {
  Variant buffer(Array(0, kPersonaSlots - 1));
  for (int slot = 0; slot < kPersonaSlots; ++slot) buffer(slot) = values_[slot];
  buffer(kCodPostal) = Right(CStr(values_[kCodPostal]), 3);
  return buffer;
}

void PersonaRow::Load(const Recordset& row, bool with_key) {
  for (int slot = with_key ? 0 : 1; slot < kPersonaSlots; ++slot) {
    const Variant value = row.Fields(table_.columns[slot]).Value();
    if (slot == kCodigo) {
      values_[slot] = CLng(Trim(CStr(value)));
    } else if (IsNumber(slot)) {
      values_[slot] = CLng(value);
    } else {
      values_[slot] = kRules[slot].trimmed ? Trim(CStr(value)) : CStr(value);
    }
  }
}

std::string PersonaRow::Value(PersonaSlot slot, bool quote) const {
  const std::string text = CStr(values_[slot]);
  return quote ? "'" + text + "'" : text;
}

std::string PersonaRow::InsertSql() const {
  std::string sql(table_.insert_head);
  for (int slot = 1; slot < kPersonaSlots; ++slot) {
    if (slot > 1) sql += ", ";
    // The postal code stands between apostrophes in this statement only.
    sql += Value(static_cast<PersonaSlot>(slot), !IsNumber(slot) || slot == kCodPostal);
  }
  return sql + ")";
}

std::string PersonaRow::UpdateSql() const {
  std::string sql = "UPDATE " + std::string(table_.table) + " SET ";
  for (int slot = 1; slot < kPersonaSlots; ++slot) {
    if (slot > 1) sql += ", ";
    sql += std::string(table_.columns[slot]) + "=" +
           Value(static_cast<PersonaSlot>(slot), !IsNumber(slot));
  }
  return sql + " WHERE " + std::string(table_.columns[kCodigo]) + " = " + Value(kCodigo, false);
}

bool PersonaRow::Insertar() {
  Conexion().execute(InsertSql());
  return true;
}

bool PersonaRow::Borrar() {
  Conexion().execute(DeleteSql());
  return true;
}

bool PersonaRow::Modificar() {
  Conexion().execute(UpdateSql());
  return true;
}

std::string PersonaRow::DeleteSql() const {
  return "DELETE FROM " + std::string(table_.table) + " WHERE " +
         std::string(table_.columns[kCodigo]) + " = " + Value(kCodigo, false);
}

}  // namespace zerbal::records
