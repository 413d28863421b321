// cTDeclaraciones: the gateway of table TDeclaraciones, one row per
// declaration of a declarant for a fiscal year in a currency. A declaration
// owns the tOperadores and tArrendamientos rows whose coddeclar is its code;
// deleting it deletes them first.
//
// The operations read the properties set before the call. Statements run
// through the shared connection on the selected database.

#ifndef ZERBAL_RECORDS_DECLARACIONES_T_DECLARACIONES_H_
#define ZERBAL_RECORDS_DECLARACIONES_T_DECLARACIONES_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal::records {

class cTDeclaraciones {
 public:
  // Properties, stored unchanged.
  std::string SQL_MAX;        // the highest-code query, while Seleccion_MAX runs
  int32_t MaximoCodigo = 0;   // kept for its callers; no operation uses it
  int32_t datTDeclaraciones_CodDecla = 0;
  int32_t datTDeclaraciones_CodDecr = 0;
  int32_t datTDeclaraciones_Ejercicio = 0;
  std::string datTDeclaraciones_Moneda;

  // The declarations of declarant `coddecr` by year: a table (0 to 5, 0 to
  // r) of coddecla, ejercicio (32-bit), moneda (string), and the numbers of
  // operations and of rentals (16-bit); Null when there are none. Prefix
  // "cTDeclaraciones.ObtenerDeclaraciones ".
  Variant ObtenerDeclaraciones(int32_t coddecr);
  // The code of CodDecr's declaration for Ejercicio, or 0. Prefix
  // "cTDeclaraciones.ObtenerDeclaracion ".
  int32_t ObtenerDeclaracion();
  // Copies the row of CodDecla as a new row for Ejercicio and Moneda;
  // returns the new code.
  int32_t DuplicarDeclaracion();
  // A new row for CodDecr, Ejercicio, Moneda; returns its code.
  int32_t Insertar();
  // Deletes every declaration of `coddecr` with its operations and rentals.
  bool BorrarTodas(int32_t coddecr);
  // Deletes CodDecla's operations, rentals and row, in that order.
  bool Borrar();
  // The highest coddecla, 0 for an empty table.
  int32_t Seleccion_MAX();
  // The latest year with its currency, as a table (row 1), or Null:
  // among euro declarations from 2002 when blnSoloEuros and intEjerMin > 0,
  // among euro declarations when blnSoloEuros only, among all otherwise.
  Variant MaxEjerMon(bool blnSoloEuros, int16_t intEjerMin);
  // CodDecla's currency and year; an unknown code raises 3021.
  std::string ObtenerMonedaDcion();
  int32_t ObtenerEjercicio();

 private:
  int16_t ContarDeclarados(int32_t code);
  int16_t ContarArrendamientos(int32_t code);
  void BorrarDeclaracion(int32_t code);
};

}  // namespace zerbal::records

#endif  // ZERBAL_RECORDS_DECLARACIONES_T_DECLARACIONES_H_
