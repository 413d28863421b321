// The copy of a declaration's operations into a declaration of another
// year. The form changed over the years (country codes became two letters
// in 2008, quarterly amounts arrived in 2011, the cash-basis VAT columns in
// 2014), so a row is adapted to what the destination year can hold.

#include <climits>
#include <span>
#include <string>

#include "base/convert.h"
#include "records/declarados/pais.h"
#include "records/declarados/t_declarados.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::records {
namespace {

using T = cTDeclarados;

constexpr std::string_view kOrigen =
    "select provo, paiso,nifo,razon,claveopo, importe, impmet, impinm, claverep,opeseg,opearr, "
    "impopeT1, impopeT2, impopeT3, impopeT4, impmobT1,impmobT2,impmobT3,impmobT4, ejerimpmet, "
    "trim(siglaspaisintra), trim(nifpaisintra), trim(opeivacaja), trim(opeinvsujpas), "
    "trim(operegposadu), impanudevopecaj from tOperadores where coddeclar = ";

// Texts go in as read: razon already holds "´" for an apostrophe.
constexpr std::string_view kCopia =
    "Insert into tOperadores (coddeclar,provo, paiso,nifo,razon,claveopo, importe, impmet, "
    "impinm, claverep,opeseg,opearr, impopeT1, impopeT2, impopeT3, impopeT4, "
    "impmobT1,impmobT2,impmobT3,impmobT4, ejerimpmet, siglaspaisintra, nifpaisintra, opeivacaja, "
    "opeinvsujpas, operegposadu, impanudevopecaj) values ({coddeclar},'{provo}','{paiso}',"
    "'{nifo}','{razon}','{claveopo}',{importe},{impmet},{impinm},'{claverep}','{opeseg}',"
    "'{opearr}','{impopeT1}','{impopeT2}','{impopeT3}','{impopeT4}','{impmobT1}','{impmobT2}',"
    "'{impmobT3}','{impmobT4}','{ejerimp}','{siglaspaisintra}','{nifpaisintra}',"
    "'{opeivacaja}','{opeinvsujpas}','{operegposadu}','{impanudevopecaj}')";

// The amounts written besides importe; those not named are written as 0.
struct Importes {
  bool impmet;
  bool impinm;
  bool trimestres;  // the eight quarterly amounts and ejerimpmet, as read
  bool t4;          // impopeT4 = importe
  bool mob_t4;      // impmobT4 = impinm
};

// Into the same or a later year (Yd >= Yo), the first row whose ranges
// hold both years decides; no row is left out.
struct Posterior {
  int yo_min, yo_max, yd_min, yd_max;
  Importes importes;
};
constexpr int kAny = INT_MAX;
constexpr Posterior kPosterior[] = {
    // Yo from, to  Yd from, to   impmet impinm quarters T4=importe mobT4=impinm
    {2011, kAny, 2014, kAny, {true, true, true, false, false}},
    {2008, kAny, 2011, 2013, {false, true, false, true, true}},
    {-kAny, 2007, 2011, kAny, {false, false, false, true, false}},
    {-kAny, kAny, -kAny, kAny, {false, false, false, false, false}},
};

enum class Pais { kComoEsta, kNumerico, kDosLetras };

// What a copy from Yo into Yd does to every row.
struct Plan {
  Importes importes;
  bool sin_f_g_negativos;    // keys F and G and negative amounts left out
  bool sin_valores_2014;     // rows with a value in a 2014 column left out
  bool sin_negativos;        // negative amounts left out
  Pais pais;
};

Plan PlanPosterior(int32_t yo, int32_t yd) {
  Plan plan{{}, false, false, false, yd >= 2008 ? Pais::kDosLetras : Pais::kComoEsta};
  for (const Posterior& r : kPosterior) {
    if (yo >= r.yo_min && yo <= r.yo_max && yd >= r.yd_min && yd <= r.yd_max) {
      plan.importes = r.importes;
      break;
    }
  }
  return plan;
}

// Into an earlier year (Yd < Yo).
Plan PlanAnterior(int32_t yo, int32_t yd) {
  // A declaration of 2007 or before holds no key F or G and no negative amount.
  const bool hasta_2007 = yd <= 2007 && yo <= 2013;
  return Plan{{true, true, yd >= 2011, false, false},
              hasta_2007,
              yo == 2014 && yd >= 2011,
              yd <= 2010,
              hasta_2007 ? Pais::kNumerico : Pais::kDosLetras};
}

bool ConValores2014(const T& row) {
  for (int slot : {T::siglaspaisintra, T::nifpaisintra, T::opeivacaja, T::opeinvsujpas,
                   T::operegposadu}) {
    if (!CStr(row.Get(slot)).empty()) return true;
  }
  return CDbl(row.Get(T::impanudevopecaj)) > 0;
}

bool Omitida(const T& row, const Plan& plan) {
  const bool negativa = CDbl(row.Get(T::importe)) < 0;
  const std::string clave = CStr(row.Get(T::claveopo));
  if (plan.sin_f_g_negativos && (clave == "F" || clave == "G" || negativa)) return true;
  if (plan.sin_valores_2014 && ConValores2014(row)) return true;
  return plan.sin_negativos && negativa;
}

void AplicarImportes(T& row, const Importes& importes) {
  const Variant anual = row.Get(T::importe);
  const Variant inmuebles = row.Get(T::impinm);
  if (!importes.impmet) row.Let(T::impmet, 0.0);
  if (!importes.impinm) row.Let(T::impinm, 0.0);
  if (!importes.trimestres) {
    for (int slot : {T::impopeT1, T::impopeT2, T::impopeT3, T::impopeT4, T::impmobT1,
                     T::impmobT2, T::impmobT3, T::impmobT4, T::ejerimp}) {
      row.Let(slot, 0);
    }
  }
  if (importes.t4) row.Let(T::impopeT4, anual);
  if (importes.mob_t4) row.Let(T::impmobT4, inmuebles);
}

void AplicarPais(T& row, Pais pais) {
  const std::string code = CStr(row.Get(T::paiso));
  if (pais == Pais::kNumerico) row.Store(T::paiso, PaisNumerico(code));
  if (pais == Pais::kDosLetras) row.Store(T::paiso, PaisDosLetras(code));
}

}  // namespace

void cTDeclarados::DuplicarDeclarados(int32_t lngDestino, int32_t lngOrigen, int32_t lngEjerOrg,
                                      int32_t lngEjerDes) {
  const Plan plan = lngEjerDes >= lngEjerOrg ? PlanPosterior(lngEjerOrg, lngEjerDes)
                                             : PlanAnterior(lngEjerOrg, lngEjerDes);
  // The source select lists the record's columns from provo on.
  const std::span<const int> leidas = std::span(kRecord).subspan(2);
  Recordset rs = Conexion().openRecordset(std::string(kOrigen) + std::to_string(lngOrigen) +
                                          " order by codope");
  for (; !rs.Eof(); rs.MoveNext()) {
    FromRecord(rs, leidas);
    if (Omitida(*this, plan)) continue;
    Store(coddeclar, lngDestino);
    AplicarImportes(*this, plan.importes);
    AplicarPais(*this, plan.pais);
    Conexion().execute(Sql(kCopia));
  }
  rs.Close();
}

}  // namespace zerbal::records
