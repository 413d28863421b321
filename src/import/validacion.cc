#include "import/validacion.h"

#include "base/convert.h"
#include "base/text.h"
#include "import/cortes.h"
#include "import/errores.h"
#include "import/importacion.h"
#include "import/servicios.h"
#include "reference/general.h"

namespace zerbal::Importacion {

Validacion::Validacion(const Variant& vBufferValores, const std::string& mdblec,
                       int32_t EjercicioMax, int32_t EjercicioMin)
    : errores_(NuevoBufferErrores()),
      mdblec_(mdblec),
      valores_(vBufferValores),
      ejercicio_max_(EjercicioMax),
      ejercicio_min_(EjercicioMin) {}

void Validacion::Anadir(int32_t lngError, const std::string& strTexto) {
  AnadirError(errores_, n_, lngError, strTexto);
}

std::string Validacion::Campo(int32_t k) const { return CStr(valores_(k, 0)); }

std::string Validacion::Valor(std::string_view nombre) const {
  return Importacion::Valor(valores_, nombre);
}

int32_t Validacion::Ultimo() const { return valores_.AsArray().UBound(1); }

std::string Validacion::NombreDe(int32_t k) const { return CStr(valores_(k, 1)); }

bool Validacion::LongitudTotal(int16_t intLimite) {
  return ComprobarLongitudTotal(valores_, errores_, n_, kLongitudTotal, intLimite);
}

void Validacion::Modelo(const std::string& v) {
  ComprobarVacioSinTexto(v, errores_, n_, kModelo);
  if (!Trim(v).empty() && Val(v) != 347) Anadir(kModelo, v);
}

void Validacion::Ejercicio(const std::string& v) {
  if (!ComprobarNumerico(v, errores_, n_, kEjercicioNoNumerico)) return;
  const double ejercicio = Val(v);
  if (ejercicio > ejercicio_max_ || ejercicio < ejercicio_min_) {
    Anadir(kEjercicioFueraDeRango, v);
  }
}

void Validacion::Nombre(const std::string& v) {
  ComprobarVacioSinTexto(v, errores_, n_, kNombreVacio);
}

void Validacion::NifResidente(const std::string& nif) {
  if (!NifValido(Trim(nif), true) || nif == "000000" || nif == "0000000") {
    Anadir(kNifDeclaradoNoValido, Trim(nif));
  }
}

void Validacion::Provincia(const std::string& prov) {
  ComprobarNumerico(prov, errores_, n_, kProvinciaNoNumerica);
  ComprobarVacio(prov, errores_, n_, kProvinciaVacia);
  if (Trim(NombreProvincia(mdblec_, prov)).empty()) Anadir(kProvinciaVacia, "");
}

void Validacion::ImporteSinSigno(const std::string& v) {
  ComprobarNumerico(v, errores_, n_, kImporteNoNumerico);
  ComprobarNoNegativo(v, errores_, n_, kImporteNegativo);
  ComprobarVacio(v, errores_, n_, kImporteVacio);
}

void Validacion::PaisNumerico(const std::string& pais, bool blnConocido) {
  const std::string codigo = Trim(pais);
  if (blnConocido && Trim(DescripcionPais(mdblec_, General::BC(Variant(codigo)))).empty()) {
    Anadir(kPaisVacio, "");
  }
  if (!SoloCifras(codigo)) Anadir(kPaisNoNumerico, pais);
}

void Validacion::PaisResidente(const std::string& pais, std::string_view ninguno) {
  if (!Trim(pais).empty() && Trim(pais) != ninguno) Anadir(kPaisResidente, pais);
}

}  // namespace zerbal::Importacion
