#include "import/registros.h"

#include "base/convert.h"
#include "base/text.h"
#include "import/cortes.h"
#include "reference/general.h"

namespace zerbal::Importacion {
namespace {

// The first of `nombres` that the values buffer holds; the fields at the
// places of ImpOpe and ImpTra are Importe and ImpInm before 2011.
std::string Alguno(const Variant& valores, std::initializer_list<std::string_view> nombres) {
  for (std::string_view nombre : nombres) {
    if (std::string v = Valor(valores, nombre); !v.empty()) return v;
  }
  return {};
}

constexpr std::string_view kTrimestresOpe[] = {"ImpOpe1t", "ImpOpe2t", "ImpOpe3t", "ImpOpe4t"};
constexpr std::string_view kTrimestresTra[] = {"ImpTra1t", "ImpTra2t", "ImpTra3t", "ImpTra4t"};
constexpr std::string_view kCampos2014[] = {"SigIntra", "NifIntra", "OpeCaja", "OpeInve",
                                            "OpeRegm"};
constexpr int32_t kNifDeclarado = 6;

}  // namespace

std::string ConSigno(const std::string& strValor) {
  std::string valor = Trim(strValor);
  if (!valor.empty() && valor[0] == 'N') valor[0] = '-';
  return valor;
}

Variant BufferDeclarado(const Variant& v, int32_t lngDeclaracion) {
  const double ejercicio = Val(Valor(v, "Ejercicio"));
  const auto campo = [&](std::string_view nombre) { return Valor(v, nombre); };
  const auto importe = [&](const std::string& valor) {
    return ejercicio >= 2011 ? ConSigno(valor) : Trim(valor);
  };
  Variant b(Array(0, 27));
  b(0) = int32_t{0};
  b(1) = lngDeclaracion;
  b(2) = Trim(campo("Prov"));
  std::string pais = campo("Pais");
  // Up to 2007 the country is a numeric code, kept in the three digits the
  // export writes: a state line's code, left-justified, gives the same row.
  if (ejercicio <= 2007) pais = General::FormatoNumero(General::BC(Variant(Trim(pais))), 3, "0");
  b(3) = ejercicio >= 2007 && (Trim(pais).empty() || pais == "00") ? std::string(" ") : pais;
  b(4) = Trim(CStr(v(kNifDeclarado, 0)));
  b(5) = Trim(campo("Nombre"));
  b(6) = Trim(campo("ClaveOpe"));
  b(7) = importe(Alguno(v, {"ImpOpe", "Importe"}));
  b(8) = ejercicio <= 2007 ? Variant(int32_t{0}) : Variant(Trim(campo("ImpMet")));
  b(9) =
      ejercicio <= 2007 ? Variant(int32_t{0}) : Variant(importe(Alguno(v, {"ImpTra", "ImpInm"})));
  b(10) = UCase(Trim(campo("ClaveRep")));
  b(11) = UCase(Trim(campo("ClaveSeg")));
  b(12) = UCase(Trim(campo("ClaveArr")));
  if (ejercicio >= 2011) {
    for (int32_t q = 0; q < 4; ++q) {
      b(13 + q) = ConSigno(campo(kTrimestresOpe[q]));
      b(17 + q) = ConSigno(campo(kTrimestresTra[q]));
    }
    b(21) = Trim(campo("EjerMet"));
  }
  if (ejercicio >= 2014) {
    for (int32_t k = 0; k < 5; ++k) b(22 + k) = Trim(campo(kCampos2014[k]));
    b(27) = ConSigno(campo("ImpOpeCaja"));
  }
  return b;
}

Variant BufferArrendamiento(const Variant& v, int32_t lngDeclaracion, int32_t lngEjercicio) {
  const auto lugar = [&](int32_t k) { return Trim(CStr(v(k, 0))); };
  Variant b(Array(0, 15));
  b(0) = int32_t{0};
  b(1) = lngDeclaracion;
  b(3) = lugar(9);  // Pais
  b(4) = lugar(5);  // NIFPRE
  b(5) = lugar(6);  // Nombre
  b(6) = lngEjercicio >= 2014 ? ConSigno(CStr(v(7, 0))) : lugar(7);
  for (int32_t k = 10; k <= 17; ++k) b(k - 3) = lugar(k);  // Municipio to Puerta
  b(15) = lugar(8);  // Prov
  const std::string pais = lugar(9);
  if (lngEjercicio >= 2008 ? pais.empty() : pais == "000") b(2) = CStr(v(8, 0));
  return b;
}

}  // namespace zerbal::Importacion
