// What the validators of operation and rental lines share: the values of
// the line, the errors buffer with its count, the course of the field loop
// (each field's checks picked by its name) and the checks made alike for
// every record type.

#ifndef ZERBAL_IMPORT_VALIDACION_H_
#define ZERBAL_IMPORT_VALIDACION_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::Importacion {

class Validacion {
 public:
  // The buffers and paths are borrowed for the validation.
  Validacion(const Variant& vBufferValores, const std::string& mdblec, int32_t EjercicioMax,
             int32_t EjercicioMin);

  // The errors recorded so far.
  Variant& Errores() { return errores_; }
  // Whether there is no more than one.
  bool ComoMuchoUnError() const { return errores_.AsArray().UBound(2) <= 0; }

  // Records an error.
  void Anadir(int32_t lngError, const std::string& strTexto);

  // The value of field k, or of the first field called `nombre`, as text.
  std::string Campo(int32_t k) const;
  std::string Valor(std::string_view nombre) const;

  // The total-length check (24); false when it failed.
  bool LongitudTotal(int16_t intLimite);

  // Modelo: blank, or not 347 (25).
  void Modelo(const std::string& v);
  // Ejercicio: not digits (43); outside EjercicioMin..EjercicioMax (44).
  void Ejercicio(const std::string& v);
  // Nombre: blank (1).
  void Nombre(const std::string& v);
  // A resident's NIF, as read: not valid for the component, or six or seven
  // zeros (32, with the NIF trimmed).
  void NifResidente(const std::string& nif);
  // A resident's province: not digits (20), blank (4), unknown (4).
  void Provincia(const std::string& prov);
  // An amount without a sign position (operations before 2011, rentals
  // before 2014): not digits (36), negative (37), blank (41), each recorded
  // with the value as read.
  void ImporteSinSigno(const std::string& v);
  // The numeric country code of 2007 and before, judged without its
  // surrounding blanks (a converted state line pads it with blanks):
  // with `blnConocido`, one the country table does not know (27, empty
  // text); then one not written in digits alone (28, as read).
  void PaisNumerico(const std::string& pais, bool blnConocido);
  // Whether a resident's country is none: blank, or "00" (two-letter
  // codes) or "000" (numeric codes); otherwise 35 with the code as read.
  void PaisResidente(const std::string& pais, std::string_view ninguno);

  // Runs, for every field from 1 to the last, the rule of `reglas` that
  // bears its name (none for a name without one).
  template <typename T>
  struct Regla {
    std::string_view nombre;
    void (T::*comprobar)(const std::string& valor);
  };
  template <typename T>
  void PorCampos(T& validador, std::span<const Regla<T>> reglas) {
    for (int32_t k = 1; k <= Ultimo(); ++k) {
      const std::string nombre = NombreDe(k);
      for (const Regla<T>& regla : reglas) {
        if (regla.nombre == nombre) {
          (validador.*regla.comprobar)(Campo(k));
          break;
        }
      }
    }
  }

 protected:
  // For the small checks of import/importacion.h, which take both.
  Variant errores_;
  int16_t n_ = 0;
  const std::string& mdblec_;

 private:
  int32_t Ultimo() const;
  std::string NombreDe(int32_t k) const;

  const Variant& valores_;
  int32_t ejercicio_max_;
  int32_t ejercicio_min_;
};

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_VALIDACION_H_
