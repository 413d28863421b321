// Rental lines (business premises) of declarations of 2014 on.

#include "import/cortes_arrendamiento.h"
#include "import/importacion_2014.h"
#include "import/validacion_arrendamiento.h"

namespace zerbal::Importacion_2014 {
namespace {

using namespace Importacion;
using V = ValidacionArrendamiento;

constexpr ReglaArrendamiento kReglas[] = {
    {"Modelo", &V::Modelo},       {"Ejercicio", &V::Ejercicio}, {"Prov", &V::Residencia},
    {"Nombre", &V::Nombre},       {"Importe", &V::Importe},     {"Via", &V::Via},
    {"Domicilio", &V::Domicilio}, {"Numero", &V::Numero},
};

}  // namespace

Variant LeerArrendamiento_2014(std::string_view strLinea, bool& /*Convertir*/) {
  Variant valores = Cortar(strLinea, kCortesArrendamiento_2014, 17);
  PaisArrendamiento(valores);
  return valores;
}

Variant ValidarArrendamiento_2014(const Variant& vBufferValores, int16_t intLimite,
                                  const std::string& mdblec, const std::string& /*mdbmod*/,
                                  int32_t EjercicioMax, int32_t EjercicioMin,
                                  const std::string& /*Declaracion*/) {
  return ValidarArrendamiento("Importacion.ValidarArrendamiento_2014", false, kReglas,
                              vBufferValores, intLimite, mdblec, EjercicioMax, EjercicioMin);
}

}  // namespace zerbal::Importacion_2014
