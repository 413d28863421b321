#include "import/validacion_declarado.h"

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "import/errores.h"
#include "import/importacion.h"
#include "import/importacion_2014.h"
#include "import/servicios.h"
#include "reference/general.h"

namespace zerbal::Importacion {
namespace {

constexpr int32_t kNifDeclarado = 6;  // the second "NIF": the declared party's

bool EsX(const std::string& clave) { return UCase(Trim(clave)) == "X"; }

}  // namespace

// The checks of an amount field write to a scratch buffer, each at its
// first place: of several that fail, the last stands, and only it is
// recorded, with the field's trimmed value; the amount then takes no part
// in the cross checks.
struct ValidacionDeclarado::Borrador {
  Variant buffer = NuevoBufferErrores();
  int16_t primero = 0;
  int16_t& Primero() { return primero = 0; }
};

ValidacionDeclarado::ValidacionDeclarado(const Variant& valores, const std::string& mdblec,
                                         const std::string& mdbmod, int32_t max, int32_t min,
                                         const std::string& declaracion, Periodo periodo)
    : Validacion(valores, mdblec, max, min),
      mdbmod_(mdbmod),
      declaracion_(declaracion),
      periodo_(periodo) {
  exento_ = periodo_.exencion &&
            (Left(Valor("NIF"), 1) == "H" || !Trim(Valor("OpeCaja")).empty());
}

void ValidacionDeclarado::Residencia(const std::string& prov) {
  if (prov == "99") {
    NoResidente();
  } else {
    Residente(prov);
  }
}

void ValidacionDeclarado::ClaveOpe(const std::string& v) {
  if (Trim(v).empty()) {
    Anadir(kClaveVacia, "");
  } else if (InStr("ABCDEFG", Trim(v)) == 0) {
    Anadir(kClaveDesconocida, Trim(v));
  }
}

void ValidacionDeclarado::ClaveRep(const std::string& v) {
  if (!Trim(v).empty() && UCase(Trim(v)) != "R") Anadir(kClaveRepresentante, Trim(v));
}

void ValidacionDeclarado::ClaveSeg(const std::string& v) {
  ClaveConX(v, kClaveSeguro, Valor("ClaveArr"));
}

void ValidacionDeclarado::ClaveArr(const std::string& v) {
  ClaveConX(v, kClaveArrendamiento, Valor("ClaveSeg"));
}

void ValidacionDeclarado::ImpOpe(const std::string& v) {
  imp_ope_ = ImporteConSigno(v).value_or(0);
}

void ValidacionDeclarado::ImpTra(const std::string& v) {
  imp_tra_ = ImporteConSigno(v).value_or(0);
}

void ValidacionDeclarado::TrimestreOpe(const std::string& v) { trimestres_ope_ += Trimestre(v); }
void ValidacionDeclarado::TrimestreTra(const std::string& v) { trimestres_tra_ += Trimestre(v); }

void ValidacionDeclarado::ImpOpeCaja(const std::string& v) {
  imp_ope_caja_ = ImporteConSigno(v).value_or(0);
  if (Trim(Valor("OpeCaja")) != "X" && imp_ope_caja_ != 0) Anadir(kImporteCajaSinMarca, "");
}

void ValidacionDeclarado::ImpMet(const std::string& v) {
  Borrador b;
  ComprobarNumerico(v, b.buffer, b.Primero(), kImporteNoNumerico);
  ComprobarNoNegativo(v, b.buffer, b.Primero(), kImporteNegativo);
  if (!Registrado(b, v)) imp_met_ = Val(v);
}

void ValidacionDeclarado::EjerMet(const std::string& v) {
  Borrador b;
  ComprobarNumerico(v, b.buffer, b.Primero(), kEjercicioMetalicoNoNumerico);
  if (!Registrado(b, v)) ejer_met_ = static_cast<int32_t>(Val(v));
}

void ValidacionDeclarado::OpeCaja(const std::string& v) { Marca(v, kCriterioCaja); }
void ValidacionDeclarado::OpeInve(const std::string& v) { Marca(v, kInversionSujetoPasivo); }
void ValidacionDeclarado::OpeRegm(const std::string& v) { Marca(v, kDepositoAduanero); }

void ValidacionDeclarado::Cruces() {
  if (trimestres_ope_ != imp_ope_ && !exento_) Anadir(kSumaOperaciones, "");
  if (trimestres_tra_ != imp_tra_ && !exento_) Anadir(kSumaTransmisiones, "");
  if ((imp_met_ > 0 && ejer_met_ == 0) || (imp_met_ == 0 && ejer_met_ >= 1)) {
    Anadir(kMetalicoSinEjercicio, "");
  }
  if (imp_ope_ == 0 && imp_met_ == 0 && imp_ope_caja_ == 0) Anadir(kSinImportes, "");
  if (ejer_met_ > 0 && (ejer_met_ < 1900 || ejer_met_ > Val(Valor("Ejercicio")))) {
    Anadir(kEjercicioMetalico, Valor("EjerMet"));
  }
}

void ValidacionDeclarado::Repetido() {
  if (Valor("Prov") == "99" || !ComoMuchoUnError()) return;
  const Coincidencia c{Campo(kNifDeclarado), Valor("ClaveOpe"), Valor("ClaveArr"),
                       Valor("ClaveSeg"),    Valor("ClaveRep"), ejer_met_,
                       Valor("OpeCaja"),     Valor("OpeInve"),  Valor("OpeRegm")};
  if (DeclaradoRepetido(mdbmod_, declaracion_, c)) Anadir(kDeclaradoRepetido, "");
}

void ValidacionDeclarado::NoResidente() {
  const std::string nif = Campo(kNifDeclarado);
  if (!Trim(nif).empty()) Anadir(kNifNoResidente, nif);
  const std::string pais = Valor("Pais");
  if (periodo_.pais_numerico) {
    PaisNumerico(pais, true);
  } else {
    if (Trim(pais).empty()) Anadir(kPaisVacio, "");
    if (Trim(General::CodigoPais(pais, 1)).empty()) Anadir(kPaisDesconocido, pais);
  }
  const std::string clave_arr = Valor("ClaveArr");
  if (UCase(clave_arr) == "X") Anadir(kArrendamientoNoResidente, clave_arr);
  const std::string sig = Trim(Valor("SigIntra"));
  const std::string nif_intra = Trim(Valor("NifIntra"));
  if ((!sig.empty() || !nif_intra.empty()) && !NifIntraValido(nif_intra, sig)) {
    Anadir(kNifIntracomunitario, nif_intra);
  }
}

void ValidacionDeclarado::Residente(const std::string& prov) {
  NifResidente(Campo(kNifDeclarado));
  const std::string pais = Valor("Pais");
  if (periodo_.pais_numerico) PaisNumerico(pais, false);
  PaisResidente(pais, periodo_.pais_numerico ? "000" : "00");
  Provincia(prov);
  const std::string clave_ope = UCase(Valor("ClaveOpe"));
  if (UCase(Valor("ClaveArr")) == "X" &&
      (clave_ope == "C" || clave_ope == "D" || clave_ope == "E")) {
    Anadir(kArrendamientoClave, "");
  }
}

void ValidacionDeclarado::ClaveConX(const std::string& v, int32_t error, const std::string& otra) {
  const std::string clave = UCase(Trim(v));
  if (!clave.empty() && clave != "X") Anadir(error, Trim(v));
  if (clave == "X" && EsX(otra)) Anadir(kSeguroYArrendamiento, Trim(v));
}

// A quarter's value for the sums; with the exemption a quarter given
// records 65 after its own checks.
double ValidacionDeclarado::Trimestre(const std::string& v) {
  const double valor = ImporteConSigno(v).value_or(0);
  if (valor != 0 && exento_) Anadir(kTrimestreExento, "");
  return valor;
}

bool ValidacionDeclarado::Registrado(const Borrador& b, const std::string& v) {
  if (!HayErrores(b.buffer)) return false;
  Anadir(CLng(b.buffer(0, 0)), Trim(v));
  return true;
}

// A signed amount: the 15 digits after the sign position, negated for "N".
std::optional<double> ValidacionDeclarado::ImporteConSigno(const std::string& v) {
  Borrador b;
  ComprobarNumerico(Mid(v, 2, 15), b.buffer, b.Primero(), kImporteNoNumerico);
  if (periodo_.signo) Importacion_2014::ComprobarSigno(v, b.buffer, b.Primero());
  if (Registrado(b, v)) return std::nullopt;
  const double digitos = Val(Mid(v, 2, 15));
  return Left(v, 1) == "N" ? -digitos : digitos;
}

void ValidacionDeclarado::Marca(const std::string& v, int32_t error) {
  if (!Trim(v).empty() && Trim(v) != "X") Anadir(error, "");
}

using V = ValidacionDeclarado;

const ReglaDeclarado kReglasConSigno[24] = {
    {"Modelo", &V::Modelo},         {"Ejercicio", &V::Ejercicio},
    {"Prov", &V::Residencia},       {"Nombre", &V::Nombre},
    {"ClaveOpe", &V::ClaveOpe},     {"ClaveRep", &V::ClaveRep},
    {"ImpOpe", &V::ImpOpe},         {"ImpTra", &V::ImpTra},
    {"ImpOpe1t", &V::TrimestreOpe}, {"ImpTra1t", &V::TrimestreTra},
    {"ImpOpe2t", &V::TrimestreOpe}, {"ImpTra2t", &V::TrimestreTra},
    {"ImpOpe3t", &V::TrimestreOpe}, {"ImpTra3t", &V::TrimestreTra},
    {"ImpOpe4t", &V::TrimestreOpe}, {"ImpTra4t", &V::TrimestreTra},
    {"ImpOpeCaja", &V::ImpOpeCaja}, {"ImpMet", &V::ImpMet},
    {"EjerMet", &V::EjerMet},       {"ClaveSeg", &V::ClaveSeg},
    {"ClaveArr", &V::ClaveArr},     {"OpeCaja", &V::OpeCaja},
    {"OpeInve", &V::OpeInve},       {"OpeRegm", &V::OpeRegm},
};

const ReglaDeclarado kReglasSinSigno[11] = {
    {"Modelo", &V::Modelo},           {"Ejercicio", &V::Ejercicio},
    {"Prov", &V::Residencia},         {"Nombre", &V::Nombre},
    {"ClaveOpe", &V::ClaveOpe},       {"ClaveRep", &V::ClaveRep},
    {"Importe", &V::ImporteSinSigno}, {"ImpMet", &V::ImporteSinSigno},
    {"ImpInm", &V::ImporteSinSigno},  {"ClaveSeg", &V::ClaveSeg},
    {"ClaveArr", &V::ClaveArr},
};

Variant ValidarDeclarado(const char* strOrigen, Periodo periodo,
                         std::span<const ReglaDeclarado> reglas, const Variant& vBufferValores,
                         int16_t intLimite, const std::string& mdblec, const std::string& mdbmod,
                         int32_t EjercicioMax, int32_t EjercicioMin,
                         const std::string& Declaracion) {
  return WithSource(strOrigen, [&] {
    V v(vBufferValores, mdblec, mdbmod, EjercicioMax, EjercicioMin, Declaracion, periodo);
    if (!v.LongitudTotal(intLimite)) return v.Errores();
    v.PorCampos<V>(v, reglas);
    if (periodo.cruces) v.Cruces();
    v.Repetido();
    return v.Errores();
  });
}

}  // namespace zerbal::Importacion
