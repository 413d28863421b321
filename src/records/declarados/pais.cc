#include "records/declarados/pais.h"

#include "base/convert.h"
#include "base/text.h"
#include "reference/general.h"

namespace zerbal::records {
namespace {

bool LastIn(const std::string& text, char first, char last) {
  const std::string c = Right(text, 1);
  return c.size() == 1 && c[0] >= first && c[0] <= last;
}

}  // namespace

std::string PaisNumerico(const std::string& paiso) {
  return LastIn(Trim(paiso), 'A', 'Z') ? General::CodigoPais(paiso, 1) : paiso;
}

std::string PaisDosLetras(const std::string& paiso) {
  return LastIn(paiso, '0', '9') ? General::CodigoPais(paiso, 0) : paiso;
}

}  // namespace zerbal::records
