#include "zerbal/impexp.h"

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "data/open.h"
#include "fileformat/conv_del_estatal.h"
#include "import/errores.h"
#include "import/importacion.h"
#include "import/modulos.h"
#include "import/registros.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/timpexp.h"

namespace zerbal {

using namespace Importacion;

namespace {

constexpr int16_t kLimiteDte = 164;

// Column 0 of a values buffer, elements 0 to `ultimo`.
Variant Columna0(const Variant& valores, int32_t ultimo) {
  Variant columna(Array(0, ultimo));
  for (int32_t k = 0; k <= ultimo; ++k) columna(k) = valores(k, 0);
  return columna;
}

template <typename T>
T Clase(const std::string& mdbmod) {
  T object;
  object.mdbmod(mdbmod);
  return object;
}

}  // namespace

void cImpExp::Declaracion(const std::string& value) { declaracion_ = CLng(value); }

Variant cImpExp::ObtenerDeclarantes(int32_t& lngEjercicio, std::string& strMoneda) {
  return WithPrefix("cImpExp.ObtenerDeclarantes ", [&] {
    if (lngEjercicio == 0 && Trim(strMoneda).empty()) {
      const Variant ultimo = Clase<cDeclaraciones>(mdbmod_).MaxEjerMon(false);
      if (!ultimo.IsNull()) {
        lngEjercicio = CLng(ultimo(0, 1));
        strMoneda = CStr(ultimo(1, 1));
      }
    }
    OpenDataDatabase(mdbmod_);
    Variant declarantes = cTImpExp().ObtenerDeclarantes(lngEjercicio, strMoneda);
    Conexion().Cerrar();
    return declarantes;
  });
}

uint8_t cImpExp::importDte(const std::string& strLineaLectura, Variant& vBufferValores,
                           Variant& vBufferErrores) {
  vBufferErrores = ValidarCaracteres(strLineaLectura);
  if (HayErrores(vBufferErrores)) return 6;
  vBufferValores = LeerDte(strLineaLectura);
  vBufferErrores = ValidarDte(vBufferValores, kLimiteDte);
  if (HayErrores(vBufferErrores)) return 3;
  vBufferValores = Columna0(vBufferValores, 17);
  if (ExisteDeclarante(vBufferValores)) return 1;
  AltaDeclarante(vBufferValores);
  return 0;
}

uint8_t cImpExp::ImportarDte_Cion(const std::string& strLineaLectura, Variant& vBufferValores,
                                  Variant& vBufferErrores) {
  vBufferErrores = ValidarCaracteres(strLineaLectura);
  if (HayErrores(vBufferErrores)) {
    rechazar_ = true;
    return 6;
  }
  vBufferValores = LeerDte_Cion(strLineaLectura);
  vBufferErrores = ValidarDte(vBufferValores, kLimiteDte);
  if (HayErrores(vBufferErrores)) {
    rechazar_ = true;
    return 3;
  }
  if (!ComprobarDeclaracion(vBufferValores, vBufferErrores)) {
    rechazar_ = true;
    return 4;
  }
  rechazar_ = false;
  vBufferValores = Columna0(vBufferValores, 18);
  const int32_t ejercicio = CLng(vBufferValores(18));
  if (!ExisteDeclarante(vBufferValores)) {
    declaracion_ = CrearDeclaracion(ejercicio, AltaDeclarante(vBufferValores));
    return 0;
  }
  if (Len(Trim(CStr(vBufferValores(1)))) == 9) {
    // Element 0 holds the known code: the stored declarant is rewritten.
    declaracion_ = CrearDeclaracion(ejercicio, AltaDeclarante(vBufferValores));
    return 1;
  }
  declaracion_ = CrearDeclaracion(ejercicio, CLng(vBufferValores(0)));
  return 2;
}

bool cImpExp::ComprobarDeclaracion(const Variant& vBufferValores, Variant& vBufferErrores) {
  const std::string ejercicio = CStr(vBufferValores(18, 0));
  const double year = Val(ejercicio);
  if (year < ejercicio_min_ || year > ejercicio_max_) {
    vBufferErrores = UnError(kEjercicioFueraDeRango, ejercicio);
    return true;
  }
  const int32_t declarante = Clase<cDeclarante>(mdbmod_).NifRepetido(CStr(vBufferValores(1, 0)));
  if (Clase<cDeclaraciones>(mdbmod_).ObtenerDeclaracion(declarante, CLng(year)) != 0) {
    vBufferErrores = UnError(kDeclaracionExistente, ejercicio);
    return false;
  }
  return true;
}

void cImpExp::importSpte(std::string& strLineaLectura, Variant& vBufferErrores, bool blnEstatal,
                         const std::string& strRuta) {
  if (blnEstatal) ConvertirEstatal(strLineaLectura, strRuta);
  if (!Clasificar(strLineaLectura)) return;
  Variant valores;
  switch (sujeto_) {
    case 1:
      resultado_ = ImportarDte_Cion(strLineaLectura, valores, vBufferErrores);
      if (resultado_ == 0 && !rechazar_)
        convertir_ = ComprobarMoneda(strLineaLectura, vBufferErrores);
      break;
    case 3:
      if (!rechazar_) resultado_ = ImportarDeclarado(strLineaLectura, valores, vBufferErrores);
      break;
    case 4:
      if (!rechazar_) resultado_ = ImportarArrendamiento(strLineaLectura, valores, vBufferErrores);
      break;
  }
}

uint8_t cImpExp::importOpeArr(std::string& strLineaLectura, Variant& vBufferValores,
                              Variant& vBufferErrores, bool blnEstatal, uint8_t ArrOpe) {
  if (blnEstatal) ConvertirEstatal(strLineaLectura, "");
  if (!Clasificar(strLineaLectura)) return 0;
  const bool operaciones = ArrOpe == 0 || ArrOpe == 2;
  const bool arrendamientos = ArrOpe == 1 || ArrOpe == 2;
  switch (sujeto_) {
    case 1:
      convertir_ = ComprobarMoneda(strLineaLectura, vBufferErrores);
      break;
    case 3:
      resultado_ = operaciones && !rechazar_
                       ? ImportarDeclarado(strLineaLectura, vBufferValores, vBufferErrores)
                       : 2;
      break;
    case 4:
      resultado_ = arrendamientos && !rechazar_
                       ? ImportarArrendamiento(strLineaLectura, vBufferValores, vBufferErrores)
                       : 2;
      break;
  }
  return 0;
}

bool cImpExp::Clasificar(const std::string& strLineaLectura) {
  if (!TipoRegistroValido(strLineaLectura)) {
    sujeto_ = 5;
    return false;
  }
  static constexpr uint8_t kSujetos[] = {0, 1, 3, 4};  // by record type "0" to "3"
  sujeto_ = kSujetos[strLineaLectura[0] - '0'];
  return true;
}

// The module is chosen by the line's own year; an empty result (an unknown
// type, or a type-2 line with neither "D" nor "I" at 76) then classifies as
// an unknown record type.
void cImpExp::ConvertirEstatal(std::string& strLineaLectura, const std::string& strRuta) {
  strLineaLectura = fileformat::ConvertirLineaEstatal(strLineaLectura, strRuta);
}

bool cImpExp::ExisteDeclarante(Variant& vBufferValores) {
  const std::string nif = Trim(Left(CStr(vBufferValores(1)), 8));
  const int32_t codigo = Clase<cDeclarante>(mdbmod_).NifRepetido(nif);
  vBufferValores(0) = codigo;
  return codigo > 0;
}

int32_t cImpExp::AltaDeclarante(const Variant& vBufferValores) {
  return Clase<cDeclarante>(mdbmod_).GuardarDeclarante(vBufferValores);
}

int32_t cImpExp::CrearDeclaracion(int32_t lngEjercicio, int32_t lngDeclarante) {
  return Clase<cDeclaraciones>(mdbmod_).GuardarDeclaracion(lngEjercicio, "E", lngDeclarante);
}

bool cImpExp::ComprobarMoneda(const std::string& strLinea, Variant& vBufferErrores) {
  const std::string moneda = Clase<cDeclaraciones>(mdbmod_).ObtenerMonedaDcion(declaracion_);
  resultado_ = 0;
  if (Mid(strLinea, 180, 1) == "P") return moneda == "E";
  if (moneda == "P") {
    vBufferErrores = UnError(kMonedaDistinta, moneda);
    resultado_ = 4;
    rechazar_ = true;
  }
  return false;
}

uint8_t cImpExp::ValidarLinea(const std::string& strLinea, Variant& vBufferValores,
                              Variant& vBufferErrores, bool blnOperacion, int32_t& lngEjercicio) {
  const std::string ejercicio = Clase<cDeclaraciones>(mdbmod_).ObtenerEjercicioDcion(declaracion_);
  vBufferErrores = ValidarCaracteres(strLinea);
  if (!HayErrores(vBufferErrores)) vBufferErrores = ComprobarEjercicio(strLinea, ejercicio);
  if (HayErrores(vBufferErrores)) return 6;
  lngEjercicio = CLng(ejercicio);
  const Par& par = blnOperacion ? ParDeclarados(lngEjercicio) : ParArrendamientos(lngEjercicio);
  vBufferValores = par.leer(strLinea, convertir_);
  vBufferErrores = par.validar(vBufferValores, par.limite, mdblec_, mdbmod_, ejercicio_max_,
                               ejercicio_min_, Declaracion());
  return HayErrores(vBufferErrores) ? 3 : 0;
}

uint8_t cImpExp::ImportarDeclarado(const std::string& strLinea, Variant& vBufferValores,
                                   Variant& vBufferErrores) {
  int32_t ejercicio = 0;
  const uint8_t resultado = ValidarLinea(strLinea, vBufferValores, vBufferErrores, true, ejercicio);
  if (resultado == 0) GrabarDeclarado(BufferDeclarado(vBufferValores, declaracion_));
  return resultado;
}

uint8_t cImpExp::ImportarArrendamiento(const std::string& strLinea, Variant& vBufferValores,
                                       Variant& vBufferErrores) {
  int32_t ejercicio = 0;
  const uint8_t resultado =
      ValidarLinea(strLinea, vBufferValores, vBufferErrores, false, ejercicio);
  if (resultado != 0) return resultado;
  const Variant buffer = BufferArrendamiento(vBufferValores, declaracion_, ejercicio);
  if (ejercicio >= 2008) {
    GrabarArrendamiento(buffer);
  } else {
    GrabarArrendamiento_2007(buffer);
  }
  return 0;
}

void cImpExp::GrabarDeclarado(const Variant& vBuffer) {
  Clase<cDeclarado>(mdbmod_).GuardarDeclarado(vBuffer);
}

void cImpExp::GrabarArrendamiento(const Variant& vBuffer) {
  Clase<cArrendamiento>(mdbmod_).GuardarArrendamiento(vBuffer);
}

void cImpExp::GrabarArrendamiento_2007(const Variant& vBuffer) {
  Clase<cArrendamiento>(mdbmod_).GuardarArrendamiento_2007(vBuffer);
}

}  // namespace zerbal
