// The fields of lines in the state agency's layout, and a writer of such
// lines from named values (tests build theirs with linea_estatal.h; the
// import benchmark writes its state-layout file with this). The positions
// are written here from the state layout, apart from the conversion
// tables, so that a wrong position in either shows.

#ifndef ZERBAL_TESTS_FILEFORMAT_CAMPOS_ESTATALES_H_
#define ZERBAL_TESTS_FILEFORMAT_CAMPOS_ESTATALES_H_

#include <map>
#include <string>
#include <vector>

#include "base/text.h"

namespace zerbal::test {

// 'T' text, left-justified, padded with blanks and cut; 'N' digits,
// right-justified and zero-filled; 'S' a signed amount: "N" at `desde` when
// the value starts with "-", a blank otherwise, then its digits as 'N'.
struct CampoEstatal {
  const char* nombre;
  int desde;
  int hasta;
  char clase;
};

// The fields of a state line of fiscal year `ejercicio`: '1' declarant, 'D'
// operation, 'I' premises. Type, form, year and the "D" or "I" at 76 are
// set by LineaEstatal, and may be given too.
inline std::vector<CampoEstatal> CamposEstatales(int ejercicio, char registro) {
  std::vector<CampoEstatal> c = {{"tipo", 1, 1, 'T'}, {"modelo", 2, 4, 'T'},
                                 {"ejercicio", 5, 8, 'N'}, {"dni_cifd", 9, 17, 'T'}};
  if (registro == '1') {
    c.push_back({"nombred", 18, 57, 'T'});
    if (ejercicio <= 2007) c.push_back({"moneda", 108, 110, 'T'});
    return c;
  }
  c.insert(c.end(), {{"razon", 36, 75, 'T'}, {"clase", 76, 76, 'T'}});
  if (registro == 'I' && ejercicio <= 2007) {
    c.insert(c.end(), {{"nifa", 18, 26, 'T'}, {"importe", 100, 114, 'N'},
                       {"refcat", 115, 139, 'T'}, {"provi", 140, 141, 'N'},
                       {"municipioa", 142, 165, 'T'}, {"viaa", 166, 167, 'T'},
                       {"domicilioa", 168, 187, 'T'}, {"numeroa", 188, 192, 'N'},
                       {"escaleraa", 193, 194, 'T'}, {"pisoa", 195, 196, 'T'},
                       {"puertaa", 197, 198, 'T'}});
  } else if (registro == 'I') {
    c.insert(c.end(), {{"nifa", 18, 26, 'T'}, {"refcat", 116, 140, 'T'}, {"viaa", 141, 142, 'T'},
                       {"domicilioa", 146, 165, 'T'}, {"numeroa", 199, 203, 'N'},
                       {"escaleraa", 213, 214, 'T'}, {"pisoa", 216, 217, 'T'},
                       {"puertaa", 219, 220, 'T'}, {"municipioa", 292, 315, 'T'},
                       {"provi", 327, 328, 'N'}});
    c.push_back(ejercicio >= 2014 ? CampoEstatal{"importe", 99, 114, 'S'}
                                  : CampoEstatal{"importe", 100, 114, 'N'});
  } else {
    c.insert(c.end(), {{"nifo", 18, 26, 'T'}, {"nifrep", 27, 35, 'T'}, {"provo", 77, 78, 'N'},
                       {"paiso", 79, 80, 'T'}, {"claveopo", 82, 82, 'T'}});
  }
  if (registro != 'D') return c;
  if (ejercicio <= 2010) {
    c.insert(c.end(), {{"importe", 83, 97, 'N'}, {"opeseg", 98, 98, 'T'},
                       {"opearr", 99, 99, 'T'}, {"impmet", 100, 114, 'N'},
                       {"impinm", 116, 130, 'N'}});
    return c;
  }
  c.insert(c.end(), {
      {"importe", 83, 98, 'S'}, {"opeseg", 99, 99, 'T'}, {"opearr", 100, 100, 'T'},
      {"impmet", 101, 115, 'N'}, {"impinm", 116, 131, 'S'}, {"ejerimpmet", 132, 135, 'N'},
      {"impopet1", 136, 151, 'S'}, {"impmobt1", 152, 167, 'S'}, {"impopet2", 168, 183, 'S'},
      {"impmobt2", 184, 199, 'S'}, {"impopet3", 200, 215, 'S'}, {"impmobt3", 216, 231, 'S'},
      {"impopet4", 232, 247, 'S'}, {"impmobt4", 248, 263, 'S'},
      {"siglaspaisintra", 264, 265, 'T'}, {"nifpaisintra", 266, 280, 'T'},
      {"opeivacaja", 281, 281, 'T'}, {"opeinvsujpas", 282, 282, 'T'},
      {"operegposadu", 283, 283, 'T'}, {"impanudevopecaj", 284, 299, 'S'}});
  return c;
}

// `texto` written over `linea` from character `pos` on; a shorter line
// grows with blanks.
inline std::string Poner(std::string linea, int pos, const std::string& texto) {
  if (Len(linea) < pos - 1) linea += std::string(pos - 1 - Len(linea), ' ');
  return Left(linea, pos - 1) + texto + Mid(linea, pos + Len(texto));
}

inline std::string CampoFormateado(const CampoEstatal& campo, std::string valor) {
  const int ancho = campo.hasta - campo.desde + 1;
  if (campo.clase == 'T') {
    const std::string cortado = Left(valor, ancho);
    return cortado + std::string(ancho - Len(cortado), ' ');
  }
  std::string signo;
  if (campo.clase == 'S') signo = valor.starts_with("-") ? "N" : " ";
  if (signo == "N") valor.erase(0, 1);
  const int digitos = ancho - static_cast<int>(signo.size());
  return signo + std::string(digitos > Len(valor) ? digitos - Len(valor) : 0, '0') +
         Right(valor, digitos);
}

// A 500-character state line: type "1" or "2", form "347", the year, "D"
// or "I" at 76, and each value at its field; the names of `valores` that
// the line has no field for are added to `sin_campo`.
inline std::string EscribirLineaEstatal(int ejercicio, char registro,
                                        const std::map<std::string, std::string>& valores,
                                        std::vector<std::string>& sin_campo) {
  std::map<std::string, std::string> todos = {{"tipo", registro == '1' ? "1" : "2"},
                                              {"modelo", "347"},
                                              {"ejercicio", std::to_string(ejercicio)}};
  if (registro != '1') todos["clase"] = std::string(1, registro);
  for (const auto& [nombre, valor] : valores) todos[nombre] = valor;
  std::string linea(500, ' ');
  for (const CampoEstatal& campo : CamposEstatales(ejercicio, registro)) {
    const auto valor = todos.find(campo.nombre);
    if (valor == todos.end()) continue;
    linea = Poner(linea, campo.desde, CampoFormateado(campo, valor->second));
    todos.erase(valor);
  }
  for (const auto& sobra : todos) sin_campo.push_back(sobra.first);
  return linea;
}

}  // namespace zerbal::test

#endif  // ZERBAL_TESTS_FILEFORMAT_CAMPOS_ESTATALES_H_
