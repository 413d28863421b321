#include "upgrade/grupos.h"

#include <string>

#include "base/convert.h"

namespace zerbal::upgrade {
namespace {

using data::FieldDef;

// A column a group creates. The defaults are engine literals: the empty
// text, which the group's statements then set, or 0.
struct Campo {
  std::string_view nombre;
  int tipo;
  int tamano;
  std::string_view predeterminado;
  bool requerido;
  bool longitud_cero;
};

constexpr std::string_view kCero = "0";
constexpr std::string_view kVacio = "''";

constexpr Campo kImportes[] = {
    {"impmet", data::kFieldDouble, 0, kCero, false, false},
    {"impinm", data::kFieldDouble, 0, kCero, false, false},
};

// Named as the current tables name them (impopeT1): names compare without
// regard to case, and an upgraded table then reads like a new one.
constexpr Campo kTrimestrales[] = {
    {"ejerimpmet", data::kFieldLong, 0, kCero, false, false},
    {"impopeT1", data::kFieldDouble, 0, kCero, false, false},
    {"impopeT2", data::kFieldDouble, 0, kCero, false, false},
    {"impopeT3", data::kFieldDouble, 0, kCero, false, false},
    {"impopeT4", data::kFieldDouble, 0, kCero, false, false},
    {"impmobT1", data::kFieldDouble, 0, kCero, false, false},
    {"impmobT2", data::kFieldDouble, 0, kCero, false, false},
    {"impmobT3", data::kFieldDouble, 0, kCero, false, false},
    {"impmobT4", data::kFieldDouble, 0, kCero, false, false},
};

constexpr Campo kIntracomunitarios[] = {
    {"siglaspaisintra", data::kFieldText, 2, kVacio, true, true},
    {"nifpaisintra", data::kFieldText, 15, kVacio, true, true},
    {"opeivacaja", data::kFieldText, 1, kVacio, true, true},
    {"opeinvsujpas", data::kFieldText, 1, kVacio, true, true},
    {"operegposadu", data::kFieldText, 1, kVacio, true, true},
    {"impanudevopecaj", data::kFieldDouble, 0, kCero, false, false},
};

constexpr Campo kProvincia = {"provi", data::kFieldLong, 0, kCero, true, false};

// The working column in which paiso becomes text.
constexpr Campo kTemp = {"temp", data::kFieldText, 3, kVacio, false, true};

// The column whose upper-cased name is `nombre`, or none.
const FieldDef* Buscar(const data::TableDef& tabla, std::string_view nombre) {
  for (const FieldDef& f : tabla.Fields()) {
    if (UCase(f.name) == nombre) return &f;
  }
  return nullptr;
}

// The ordinal position of the column named `nombre`; 0 when there is none.
int Posicion(const data::TableDef& tabla, std::string_view nombre) {
  const FieldDef* f = Buscar(tabla, nombre);
  return f != nullptr ? f->ordinal_position : 0;
}

// Creates `campo` at `posicion` (-1: the end) and appends it.
void Crear(data::TableDef& tabla, const Campo& campo, int posicion) {
  FieldDef f = data::CreateField(std::string(campo.nombre), campo.tipo, campo.tamano);
  f.default_value = std::string(campo.predeterminado);
  f.required = campo.requerido;
  f.allow_zero_length = campo.longitud_cero;
  f.ordinal_position = posicion;
  tabla.Append(std::move(f));
}

// paiso, a number in earlier years, becomes text of three characters, and
// a 0 one blank. A Long paiso is left as it is.
void ConvertirPaiso(data::Database& db, data::TableDef& tabla, const std::string& nombre) {
  const FieldDef* paiso = Buscar(tabla, "PAISO");
  if (paiso == nullptr || paiso->type == data::kFieldLong) return;
  Crear(tabla, kTemp, paiso->ordinal_position);
  db.Execute("Update " + nombre + " set temp = paiso");
  db.Execute("Update " + nombre + " set temp = ' ' where temp = '0'");
  tabla.Delete("paiso");
  tabla.Rename("temp", "paiso");
}

void Grupo1(data::Database& db, data::TableDef& tabla) {
  const int posicion = Posicion(tabla, "IMPORTE");
  for (const Campo& c : kImportes) {
    Crear(tabla, c, posicion);
    tabla.Refresh();
  }
  ConvertirPaiso(db, tabla, "toperadores");
  db.Execute("update toperadores set impmet = 0 , impinm = 0");
}

void Grupo2(data::Database& db, data::TableDef& tabla) {
  for (const Campo& c : kTrimestrales) {
    Crear(tabla, c, -1);
    tabla.Refresh();
  }
  db.Execute(
      "update toperadores set ejerimpmet = 0 , impopet1 = 0, impopet2 = 0, impopet3 = 0, "
      "impopet4 = 0, impmobt1 = 0, impmobt2 = 0, impmobt3 = 0, impmobt4 = 0");
  db.Execute("update toperadores set claverep='R' where claverep='X'");
}

void Grupo3(data::Database& db, data::TableDef& tabla) {
  const int posicion = Posicion(tabla, "IMPMOBT4");
  for (const Campo& c : kIntracomunitarios) Crear(tabla, c, posicion);
  tabla.Refresh();
  db.Execute(
      "Update toperadores set siglaspaisintra = '', nifpaisintra='', opeivacaja=' ', "
      "opeinvsujpas=' ', operegposadu=' ', impanudevopecaj=0");
}

void Grupo4(data::Database& db, data::TableDef& tabla) {
  Crear(tabla, kProvincia, Posicion(tabla, "PROVA"));
  tabla.Refresh();
  db.Execute("Update tarrendamientos set provi = prova");
  db.Execute("update tarrendamientos set provi = 20 where prova = 99");
  db.Execute("update tarrendamientos set prova = 0 where prova = 99");
  ConvertirPaiso(db, tabla, "tarrendamientos");
}

}  // namespace

const Grupo kGrupos[4] = {
    {1, "toperadores", "IMPMET", Grupo1},
    {2, "toperadores", "EJERIMPMET", Grupo2},
    {3, "toperadores", "SIGLASPAISINTRA", Grupo3},
    {4, "tarrendamientos", "PROVI", Grupo4},
};

bool TieneCampo(const data::TableDef& tabla, std::string_view marcador) {
  return Buscar(tabla, marcador) != nullptr;
}

}  // namespace zerbal::upgrade
