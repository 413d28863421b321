// Which module serves which fiscal year: the one place that decides, for
// the driver, the splitter and validator of an operation or rental line by
// the declaration's year. (The converter of a state-layout line is picked
// by the line's own year in fileformat/conv_del_estatal.h.)

#ifndef ZERBAL_IMPORT_MODULOS_H_
#define ZERBAL_IMPORT_MODULOS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::Importacion {

// A year's splitter and validator of one record type, and the length limit
// the driver gives the validator.
struct Par {
  Variant (*leer)(std::string_view strLinea, bool& Convertir);
  Variant (*validar)(const Variant& vBufferValores, int16_t intLimite, const std::string& mdblec,
                     const std::string& mdbmod, int32_t EjercicioMax, int32_t EjercicioMin,
                     const std::string& Declaracion);
  int16_t limite;
};

// Operations: up to 2007 Importacion_2007, 2008 to 2010 Importacion_2008,
// 2011 to 2013 Importacion_2011, 2014 on Importacion_2014.
const Par& ParDeclarados(int32_t lngEjercicio);
// Rentals: up to 2007 Importacion_2007, 2008 to 2013 Importacion_2008, 2014
// on Importacion_2014.
const Par& ParArrendamientos(int32_t lngEjercicio);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_MODULOS_H_
