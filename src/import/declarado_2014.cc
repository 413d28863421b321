// Declared-operation lines of declarations of 2014 on.

#include <optional>
#include <string>

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "fileformat/layout_reg2.h"
#include "import/cortes.h"
#include "import/errores.h"
#include "import/importacion.h"
#include "import/importacion_2014.h"
#include "import/servicios.h"
#include "import/validacion.h"
#include "reference/general.h"

namespace zerbal::Importacion_2014 {
namespace {

using namespace Importacion;
using fileformat::kCamposReg2_2014;

constexpr auto C = [](std::string_view nombre, std::string_view campo) {
  return Cortado(nombre, kCamposReg2_2014, campo);
};

constexpr Corte kDeclarado[] = {
    C("Modelo", "347"),          C("Ejercicio", "ejercicio"),
    C("CodProv", "cod"),         C("NIF", "dni_cifd"),
    C("ClaveOpe", "claveopo"),   C("NIF", "nifo"),
    C("Nombre", "razon"),        C("ClaveRep", "claverep"),
    C("Prov", "provo"),          C("Pais", "paiso"),
    C("ImpOpe", "importe"),      C("ClaveSeg", "opeseg"),
    C("ClaveArr", "opearr"),     C("ImpMet", "impmet"),
    C("ImpTra", "impinm"),       C("EjerMet", "ejerimpmet"),
    C("ImpOpe1t", "impopet1"),   C("ImpTra1t", "impmobt1"),
    C("ImpOpe2t", "impopet2"),   C("ImpTra2t", "impmobt2"),
    C("ImpOpe3t", "impopet3"),   C("ImpTra3t", "impmobt3"),
    C("ImpOpe4t", "impopet4"),   C("ImpTra4t", "impmobt4"),
    C("SigIntra", "siglaspaisintra"), C("NifIntra", "nifpaisintra"),
    C("OpeCaja", "opeivacaja"),  C("OpeInve", "opeinvsujpas"),
    C("OpeRegm", "operegposadu"), C("ImpOpeCaja", "impanudevopecaj"),
};
constexpr int32_t kNifDeclarado = 6;  // the second "NIF": the declared party's

bool EsX(const std::string& clave) { return UCase(Trim(clave)) == "X"; }

class ValidacionDeclarado : public Validacion {
 public:
  ValidacionDeclarado(const Variant& valores, const std::string& mdblec,
                      const std::string& mdbmod, int32_t max, int32_t min,
                      const std::string& declaracion)
      : Validacion(valores, mdblec, max, min), mdbmod_(mdbmod), declaracion_(declaracion) {
    exento_ = Left(Valor("NIF"), 1) == "H" || !Trim(Valor("OpeCaja")).empty();
  }

  void Residencia(const std::string& prov) {
    if (prov == "99") {
      NoResidente();
    } else {
      Residente(prov);
    }
  }

  void ClaveOpe(const std::string& v) {
    if (Trim(v).empty()) {
      Anadir(kClaveVacia, "");
    } else if (InStr("ABCDEFG", Trim(v)) == 0) {
      Anadir(kClaveDesconocida, Trim(v));
    }
  }

  void ClaveRep(const std::string& v) {
    if (!Trim(v).empty() && UCase(Trim(v)) != "R") Anadir(kClaveRepresentante, Trim(v));
  }

  void ClaveSeg(const std::string& v) { ClaveConX(v, kClaveSeguro, Valor("ClaveArr")); }
  void ClaveArr(const std::string& v) { ClaveConX(v, kClaveArrendamiento, Valor("ClaveSeg")); }

  void ImpOpe(const std::string& v) { imp_ope_ = ImporteConSigno(v).value_or(0); }
  void ImpTra(const std::string& v) { imp_tra_ = ImporteConSigno(v).value_or(0); }
  void TrimestreOpe(const std::string& v) { trimestres_ope_ += Trimestre(v); }
  void TrimestreTra(const std::string& v) { trimestres_tra_ += Trimestre(v); }

  void ImpOpeCaja(const std::string& v) {
    imp_ope_caja_ = ImporteConSigno(v).value_or(0);
    if (Trim(Valor("OpeCaja")) != "X" && imp_ope_caja_ != 0) Anadir(kImporteCajaSinMarca, "");
  }

  void ImpMet(const std::string& v) {
    Borrador b;
    ComprobarNumerico(v, b.buffer, b.Primero(), kImporteNoNumerico);
    ComprobarNoNegativo(v, b.buffer, b.Primero(), kImporteNegativo);
    if (!Registrado(b, v)) imp_met_ = Val(v);
  }

  void EjerMet(const std::string& v) {
    Borrador b;
    ComprobarNumerico(v, b.buffer, b.Primero(), kEjercicioMetalicoNoNumerico);
    if (!Registrado(b, v)) ejer_met_ = static_cast<int32_t>(Val(v));
  }

  void OpeCaja(const std::string& v) { Marca(v, kCriterioCaja); }
  void OpeInve(const std::string& v) { Marca(v, kInversionSujetoPasivo); }
  void OpeRegm(const std::string& v) { Marca(v, kDepositoAduanero); }

  void Cruces() {
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

  void Repetido() {
    if (Valor("Prov") == "99" || !ComoMuchoUnError()) return;
    const Coincidencia c{Campo(kNifDeclarado),  Valor("ClaveOpe"), Valor("ClaveArr"),
                         Valor("ClaveSeg"),     Valor("ClaveRep"), ejer_met_,
                         Valor("OpeCaja"),      Valor("OpeInve"),  Valor("OpeRegm")};
    if (DeclaradoRepetido(mdbmod_, declaracion_, c)) Anadir(kDeclaradoRepetido, "");
  }

 private:
  void NoResidente() {
    const std::string nif = Campo(kNifDeclarado);
    if (!Trim(nif).empty()) Anadir(kNifNoResidente, nif);
    const std::string pais = Valor("Pais");
    if (Trim(pais).empty()) Anadir(kPaisVacio, "");
    if (Trim(General::CodigoPais(pais, 1)).empty()) Anadir(kPaisDesconocido, pais);
    const std::string clave_arr = Valor("ClaveArr");
    if (UCase(clave_arr) == "X") Anadir(kArrendamientoNoResidente, clave_arr);
    const std::string sig = Trim(Valor("SigIntra"));
    const std::string nif_intra = Trim(Valor("NifIntra"));
    if ((!sig.empty() || !nif_intra.empty()) && !NifIntraValido(nif_intra, sig)) {
      Anadir(kNifIntracomunitario, nif_intra);
    }
  }

  void Residente(const std::string& prov) {
    NifResidente(Campo(kNifDeclarado));
    const std::string pais = Valor("Pais");
    if (!Trim(pais).empty() && Trim(pais) != "00") Anadir(kPaisResidente, pais);
    Provincia(prov);
    const std::string clave_ope = UCase(Valor("ClaveOpe"));
    if (UCase(Valor("ClaveArr")) == "X" &&
        (clave_ope == "C" || clave_ope == "D" || clave_ope == "E")) {
      Anadir(kArrendamientoClave, "");
    }
  }

  void ClaveConX(const std::string& v, int32_t error, const std::string& otra) {
    const std::string clave = UCase(Trim(v));
    if (!clave.empty() && clave != "X") Anadir(error, Trim(v));
    if (clave == "X" && EsX(otra)) Anadir(kSeguroYArrendamiento, Trim(v));
  }

  // A quarter's value for the sums; with the exemption a quarter given
  // records 65 after its own checks.
  double Trimestre(const std::string& v) {
    const double valor = ImporteConSigno(v).value_or(0);
    if (valor != 0 && exento_) Anadir(kTrimestreExento, "");
    return valor;
  }

  // The checks of an amount field write to a scratch buffer, each at its
  // first place: of several that fail, the last stands, and only it is
  // recorded, with the field's trimmed value; the amount then takes no part
  // in the cross checks.
  struct Borrador {
    Variant buffer = NuevoBufferErrores();
    int16_t primero = 0;
    int16_t& Primero() { return primero = 0; }
  };

  bool Registrado(const Borrador& b, const std::string& v) {
    if (!HayErrores(b.buffer)) return false;
    Anadir(CLng(b.buffer(0, 0)), Trim(v));
    return true;
  }

  // A signed amount: the 15 digits after the sign position, negated for "N".
  std::optional<double> ImporteConSigno(const std::string& v) {
    Borrador b;
    ComprobarNumerico(Mid(v, 2, 15), b.buffer, b.Primero(), kImporteNoNumerico);
    ComprobarSigno(v, b.buffer, b.Primero());
    if (Registrado(b, v)) return std::nullopt;
    const double digitos = Val(Mid(v, 2, 15));
    return Left(v, 1) == "N" ? -digitos : digitos;
  }

  void Marca(const std::string& v, int32_t error) {
    if (!Trim(v).empty() && Trim(v) != "X") Anadir(error, "");
  }

  const std::string& mdbmod_;
  const std::string& declaracion_;
  bool exento_ = false;
  double imp_ope_ = 0, imp_tra_ = 0, imp_met_ = 0, imp_ope_caja_ = 0;
  double trimestres_ope_ = 0, trimestres_tra_ = 0;
  int32_t ejer_met_ = 0;
};

using V = ValidacionDeclarado;
using Regla = Validacion::Regla<V>;

constexpr Regla kReglas[] = {
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

}  // namespace

Variant LeerDeclarado_2014(std::string_view strLinea) { return Cortar(strLinea, kDeclarado, 34); }

void ComprobarSigno(const std::string& strValor, Variant& vBufferErrores, int16_t& intErrores) {
  const std::string signo = Left(strValor, 1);
  if (signo != "N" && !Trim(signo).empty() && signo != "0" && signo != "-") {
    AnadirError(vBufferErrores, intErrores, kSigno, strValor);
  }
}

Variant ValidarDeclarado_2014(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion) {
  return WithSource("Importacion.ValidarDeclarado_2014", [&] {
    V v(vBufferValores, mdblec, mdbmod, EjercicioMax, EjercicioMin, Declaracion);
    if (!v.LongitudTotal(intLimite)) return v.Errores();
    v.PorCampos<V>(v, kReglas);
    v.Cruces();
    v.Repetido();
    return v.Errores();
  });
}

}  // namespace zerbal::Importacion_2014
