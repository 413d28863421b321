// Declarant lines: a line of the declarants file (LeerDte) or the declarant
// record of a declaration file (LeerDte_Cion), and the checks of either.

#include <string>

#include "base/convert.h"
#include "base/raise.h"
#include "fileformat/layout_dte.h"
#include "fileformat/layout_reg1.h"
#include "import/cortes.h"
#include "import/errores.h"
#include "import/importacion.h"
#include "import/servicios.h"

namespace zerbal::Importacion {
namespace {

using fileformat::kCamposLineaDte;
using fileformat::kCamposReg1_2014;

constexpr Corte kLineaDte[] = {
    Cortado("NIF",        kCamposLineaDte, "dni_cifd"),
    Cortado("Nombre",     kCamposLineaDte, "nombred"),
    Cortado("Siglas",     kCamposLineaDte, "viad"),
    Cortado("Domicilio",  kCamposLineaDte, "domiciliod"),
    Cortado("Numero",     kCamposLineaDte, "numerod"),
    Cortado("Letra",      kCamposLineaDte, "letrad"),
    Cortado("Escalera",   kCamposLineaDte, "escalerad"),
    Cortado("Piso",       kCamposLineaDte, "pisod"),
    Cortado("Mano",       kCamposLineaDte, "manod"),
    Cortado("Provincia",  kCamposLineaDte, "cod"),
    Fijo("CP"),  // the province's two characters and the three at codpostald
    Cortado("Municipio",  kCamposLineaDte, "municipiod"),
    Cortado("Prefijo",    kCamposLineaDte, "prefijod"),
    Cortado("Telefono",   kCamposLineaDte, "telefonod"),
    Cortado("NombrePD",   kCamposLineaDte, "nombrepd"),
    Cortado("PrefijoPD",  kCamposLineaDte, "prefijopd"),
    Cortado("TelefonoPD", kCamposLineaDte, "telefonopd"),
};
constexpr int32_t kCP = 11;
constexpr fileformat::Field kProvincia = fileformat::FieldNamed(kCamposLineaDte, "cod");
constexpr fileformat::Field kCodPostal = fileformat::FieldNamed(kCamposLineaDte, "codpostald");

// The declarant record carries no address: its fields hold what ValidarDte
// takes for "no address given".
constexpr Corte kRegistroDte[] = {
    Cortado("NIF",    kCamposReg1_2014, "dni_cifd"),
    Cortado("Nombre", kCamposReg1_2014, "nombred"),
    Fijo("Siglas"), Fijo("Domicilio"), Fijo("Numero"), Fijo("Letra"), Fijo("Escalera"),
    Fijo("Piso"), Fijo("Mano"), Fijo("Provincia"), Fijo("CP"), Fijo("Municipio"),
    Fijo("Prefijo"), Fijo("Telefono"), Fijo("NombrePD"), Fijo("PrefijoPD"), Fijo("TelefonoPD"),
    Cortado("Ejercicio", kCamposReg1_2014, "ejercicio"),
};
constexpr int32_t kCeros[] = {5, 13, 14, 16, 17};  // Numero, the telephones and prefixes
constexpr int32_t kTextosCero[] = {10, 11};         // Provincia, CP

bool Cero(const std::string& valor) { return valor == "0"; }

bool SinDomicilio(const Variant& v) {
  for (const char* vacio : {"Siglas", "Domicilio", "Letra", "Escalera", "Piso", "Mano",
                            "Municipio"}) {
    if (!Valor(v, vacio).empty()) return false;
  }
  for (const char* cero : {"Numero", "Provincia", "CP", "Prefijo", "Telefono"}) {
    if (!Cero(Valor(v, cero))) return false;
  }
  return true;
}

}  // namespace

Variant LeerDte(std::string_view strLinea) {
  Variant valores = Cortar(strLinea, kLineaDte, 17);
  for (int32_t k = 1; k <= 17; ++k) valores(k, 0) = Trim(CStr(valores(k, 0)));
  valores(kCP, 0) = Trim(fileformat::ReadField(kProvincia, strLinea)) +
                    Trim(fileformat::ReadField(kCodPostal, strLinea));
  return valores;
}

Variant LeerDte_Cion(std::string_view strLinea) {
  Variant valores = Cortar(strLinea, kRegistroDte, 18);
  for (int32_t k : kCeros) valores(k, 0) = int32_t{0};
  for (int32_t k : kTextosCero) valores(k, 0) = "0";
  return valores;
}

Variant ValidarDte(const Variant& vBufferValores, int16_t intLimite) {
  return WithSource("Importacion.ValidarDte", [&] {
    Variant errores = NuevoBufferErrores();
    int16_t n = 0;
    if (!ComprobarLongitudTotal(vBufferValores, errores, n, kLongitudTotal, intLimite)) {
      return errores;
    }
    const bool domicilio = !SinDomicilio(vBufferValores);
    const Array& valores = vBufferValores.AsArray();
    for (int32_t k = 1; k <= valores.UBound(1); ++k) {
      const std::string nombre = CStr(valores(k, 1));
      const std::string v = CStr(valores(k, 0));
      if (nombre == "NIF") {
        if (!NifValido(v, false)) AnadirError(errores, n, kNifNoValido, v);
      } else if (nombre == "Nombre") {
        ComprobarVacioSinTexto(v, errores, n, kNombreVacio);
      } else if (nombre == "Ejercicio") {
        ComprobarNumerico(v, errores, n, kEjercicioNoNumerico);
      } else if (!domicilio) {
        continue;
      } else if (nombre == "Siglas") {
        ComprobarVacioSinTexto(v, errores, n, kDomicilioVacio);
      } else if (nombre == "Numero") {
        ComprobarNumerico(v, errores, n, kNumeroNoNumerico);
      } else if (nombre == "Provincia") {
        ComprobarNumerico(v, errores, n, kProvinciaNoNumerica);
        ComprobarVacio(v, errores, n, kProvinciaVacia);
        ComprobarLongitudMinima(Format(v, "00"), errores, n, kLongitudMinima, 2);
      } else if (nombre == "CP") {
        ComprobarNumerico(v, errores, n, kCodigoPostalNoNumerico);
        ComprobarLongitudMinima(Format(v, "000"), errores, n, kLongitudMinima, 3);
      } else if (nombre == "Municipio") {
        ComprobarVacioSinTexto(v, errores, n, kMunicipioVacio);
      }
    }
    return errores;
  });
}

}  // namespace zerbal::Importacion
