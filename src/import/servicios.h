// What the validators ask of the rest of the system, each the way the
// system's own classes answer it: the validation component by its ProgID,
// created for one check and released after it; the lookup descriptions
// through cDatosGenerales (language code 0); the duplicate test through
// cDeclarado. Each call opens and closes its database on the shared
// connection.
//
// Codes and texts put into SQL pass through SustituirComilla first, so a
// line holding an apostrophe is answered (nothing matches it) instead of
// breaking the statement.

#ifndef ZERBAL_IMPORT_SERVICIOS_H_
#define ZERBAL_IMPORT_SERVICIOS_H_

#include <cstdint>
#include <string>

namespace zerbal::Importacion {

// The component's ValidaNifCif and ValidarForeignNIf.
bool NifValido(const std::string& strNif, bool blnSinLetra);
bool NifIntraValido(const std::string& strNif, const std::string& strPais);

// cDatosGenerales.ObtenerNombreProvincia and ObtenerDescriVia in Spanish:
// the empty text for an unknown code.
std::string NombreProvincia(const std::string& mdblec, const std::string& strCodigo);
std::string DescripcionVia(const std::string& mdblec, const std::string& strCodigo);
// cDatosGenerales.ObtenerDesPais of a numeric country code (2007 and
// before) in Spanish; empty for an unknown code, and for one beyond the
// 16-bit codes of the table.
std::string DescripcionPais(const std::string& mdblec, double dblCodigo);

// The operation's keys and marks as cDeclarado.DeclaradosCoincidentes takes
// them.
struct Coincidencia {
  std::string nif, clave_ope, clave_arr, clave_seg, clave_rep;
  int32_t ejercicio = 0;
  std::string ope_caja, ope_inve, ope_regm;
};

// Whether declaration `strDeclaracion` of the data database holds a row
// with these keys already.
bool DeclaradoRepetido(const std::string& mdbmod, const std::string& strDeclaracion,
                       const Coincidencia& c);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_SERVICIOS_H_
