// Lines in the state agency's layout, built from named field values: the
// conversion tests build their input with it, and a test of the import can
// build a state-layout file from the same data as a treasury-layout one.

#ifndef ZERBAL_TESTS_FILEFORMAT_LINEA_ESTATAL_H_
#define ZERBAL_TESTS_FILEFORMAT_LINEA_ESTATAL_H_

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "fileformat/campos_estatales.h"

namespace zerbal::test {

// EscribirLineaEstatal; a name that the line does not have fails the test.
inline std::string LineaEstatal(int ejercicio, char registro,
                                const std::map<std::string, std::string>& valores) {
  std::vector<std::string> sin_campo;
  std::string linea = EscribirLineaEstatal(ejercicio, registro, valores, sin_campo);
  for (const std::string& nombre : sin_campo) {
    ADD_FAILURE() << "a state line " << registro << " of " << ejercicio << " has no " << nombre;
  }
  return linea;
}

}  // namespace zerbal::test

#endif  // ZERBAL_TESTS_FILEFORMAT_LINEA_ESTATAL_H_
