// The errors buffer of the import, and every number a check records in it.
//
// An errors buffer is a two-dimensional array indexed (column, error): for
// the i-th error (0, i) holds its number (a 32-bit integer) and (1, i) the
// text that goes with it (a field's value, the offending character, or an
// empty text). A fresh buffer has the bounds (0 to 1, 0 to 0) and an Empty
// element (0, 0), which is how every caller tells "no error"; the second
// bound grows as errors are added.

#ifndef ZERBAL_IMPORT_ERRORES_H_
#define ZERBAL_IMPORT_ERRORES_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal::Importacion {

// Every number that a check of the import records, with what it means.
// Texts for people belong to the client (the command-line tool keeps them
// in Spanish and Basque, one for each number here).
#define ZERBAL_ERRORES_IMPORTACION(X)                                                  \
  X(kNifNoValido, 0)              /* declarant's NIF not valid */                     \
  X(kNombreVacio, 1)              /* name blank */                                    \
  X(kViaDesconocida, 2)           /* street type unknown */                           \
  X(kDomicilioVacio, 3)           /* street type (declarant) or street blank */       \
  X(kProvinciaVacia, 4)           /* province blank or unknown */                     \
  X(kLongitudMinima, 6)           /* province or postal code too short */             \
  X(kMunicipioVacio, 7)           /* municipality blank */                            \
  X(kClaveVacia, 17)              /* operation key blank */                           \
  X(kMunicipioArrVacio, 18)       /* premises' municipality blank (2007) */           \
  X(kNumeroNoNumerico, 19)        /* street number not digits */                      \
  X(kProvinciaNoNumerica, 20)     /* province not digits */                           \
  X(kCodigoPostalNoNumerico, 21)  /* postal code not digits */                        \
  X(kLongitudTotal, 24)           /* the line's values too long */                    \
  X(kModelo, 25)                  /* form number not 347 */                           \
  X(kNifNoResidente, 26)          /* non-resident with a Spanish NIF */               \
  X(kPaisVacio, 27)               /* country blank or unknown (2007) */               \
  X(kPaisNoNumerico, 28)          /* numeric country code not digits (2007) */        \
  X(kArrendamientoNoResidente, 29) /* non-resident with the rental key */             \
  X(kDeclaradoRepetido, 30)       /* same party and keys declared already */          \
  X(kDeclaracionExistente, 31)    /* declarant has that year's declaration */         \
  X(kNifDeclaradoNoValido, 32)    /* party's or lessee's NIF not valid */             \
  X(kArrendamientoClave, 33)      /* rental key with keys C, D or E */                \
  X(kClaveRepresentante, 34)      /* representative key not R */                      \
  X(kPaisResidente, 35)           /* resident with a foreign country */               \
  X(kImporteNoNumerico, 36)       /* amount not digits */                             \
  X(kImporteNegativo, 37)         /* amount negative */                               \
  X(kClaveSeguro, 38)             /* insurance key not X */                           \
  X(kClaveArrendamiento, 39)      /* rental key not X */                              \
  X(kSeguroYArrendamiento, 40)    /* insurance and rental keys both X */              \
  X(kImporteVacio, 41)            /* amount blank */                                  \
  X(kEjercicioNoNumerico, 43)     /* fiscal year not digits */                        \
  X(kEjercicioFueraDeRango, 44)   /* fiscal year outside the accepted years */        \
  X(kMonedaDistinta, 46)          /* file in euros, declaration in pesetas */         \
  X(kCaracterNoPermitido, 47)     /* character not allowed */                         \
  X(kEjercicioDistinto, 48)       /* line of another year than the declaration */     \
  X(kPaisDesconocido, 49)         /* country code unknown */                          \
  X(kClaveDesconocida, 50)        /* operation key not A to G */                      \
  X(kEjercicioMetalico, 51)       /* cash amount's year out of range */               \
  X(kMetalicoSinEjercicio, 52)    /* cash amount and its year disagree */             \
  X(kSumaOperaciones, 53)         /* quarters do not add up to the operations */      \
  X(kSumaTransmisiones, 54)       /* quarters do not add up to the transfers */       \
  X(kSinImportes, 55)             /* no amount at all */                              \
  X(kSigno, 56)                   /* sign position not N, blank, 0 or - */            \
  X(kEjercicioMetalicoNoNumerico, 57) /* cash amount's year not digits */             \
  X(kNifIntracomunitario, 58)     /* intra-community VAT number not valid */          \
  X(kTrimestreExento, 65)         /* a quarter given where none is required */        \
  X(kCriterioCaja, 66)            /* cash-basis mark not X */                         \
  X(kInversionSujetoPasivo, 67)   /* reverse-charge mark not X */                     \
  X(kDepositoAduanero, 68)        /* customs-warehouse mark not X */                  \
  X(kImporteCajaSinMarca, 69)     /* cash-basis amount without its mark */

enum NumeroError : int32_t {
#define ZERBAL_ERROR_ENUM(name, number) name = number,
  ZERBAL_ERRORES_IMPORTACION(ZERBAL_ERROR_ENUM)
#undef ZERBAL_ERROR_ENUM
};

inline constexpr int32_t kNumerosError[] = {
#define ZERBAL_ERROR_NUMBER(name, number) number,
    ZERBAL_ERRORES_IMPORTACION(ZERBAL_ERROR_NUMBER)
#undef ZERBAL_ERROR_NUMBER
};

// A fresh errors buffer: (0 to 1, 0 to 0), empty.
Variant NuevoBufferErrores();

// A buffer holding this one error.
Variant UnError(int32_t lngError, const std::string& strTexto);

// Records error `lngError` with `strTexto` at position `intErrores` (growing
// the buffer when needed) and counts it.
void AnadirError(Variant& vBufferErrores, int16_t& intErrores, int32_t lngError,
                 const std::string& strTexto);

// Whether element (0, 0) holds an error.
bool HayErrores(const Variant& vBufferErrores);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_ERRORES_H_
