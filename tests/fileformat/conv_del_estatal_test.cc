#include "fileformat/conv_del_estatal.h"

#include <map>
#include <string>
#include <vector>

#include "base/text.h"
#include "fixtures.h"
#include "linea_estatal.h"

namespace zerbal::fileformat {
namespace {

using test::Blanks;
using test::LineaEstatal;
using test::Pad;
using test::Poner;
using Valores = std::map<std::string, std::string>;

std::string Ceros(int count) { return std::string(count, '0'); }

const Valores kOperacion = {
    {"dni_cifd", "12345678Z"}, {"nifo", "B20000001"}, {"razon", test::kRazon45},
    {"provo", "28"}, {"claveopo", "F"}, {"importe", "-1234"}, {"opearr", "X"},
    {"impmet", "5000"}, {"impinm", "-700"}, {"ejerimpmet", "2013"}, {"impopet1", "11"},
    {"impmobt1", "-1"}, {"impopet2", "-22"}, {"impmobt2", "2"}, {"impopet3", "33"},
    {"impmobt3", "3"}, {"impopet4", "0"}, {"impmobt4", "4"}, {"siglaspaisintra", "FR"},
    {"nifpaisintra", " 12345678901"}, {"opeivacaja", "X"}, {"operegposadu", "X"},
    {"impanudevopecaj", "-9"}};
const Valores kOperacion_2008 = {
    {"dni_cifd", "12345678Z"}, {"nifo", "B20000001"}, {"razon", test::kRazon45},
    {"provo", "28"}, {"claveopo", "F"}, {"importe", "1234"}, {"opeseg", "X"},
    {"impmet", "5000"}, {"impinm", "700"}};
const Valores kInmueble = {
    {"dni_cifd", "12345678Z"}, {"nifa", "A20111111"}, {"razon", " Lonjas Ñ'Bidea SL"},
    {"importe", "-60000"}, {"provi", "20"}, {"municipioa", "Hondarribia"},
    {"refcat", "1234567AB1234C0001XY"}, {"viaa", "CL"}, {"domicilioa", "Nagusia"},
    {"numeroa", "7"}, {"pisoa", "2"}, {"puertaa", "A"}};

// The full line of a year and record ('1', 'D', 'I'), with some values changed.
std::string Completa(int ejercicio, char registro, const Valores& cambios = {}) {
  Valores valores = registro == '1' ? Valores{{"nombred", "  Ñandú Etxeberria"}}
                    : registro == 'I' ? kInmueble
                    : ejercicio >= 2011 ? kOperacion
                                        : kOperacion_2008;
  for (const auto& [campo, valor] : cambios) valores[campo] = valor;
  return LineaEstatal(ejercicio, registro, valores);
}

struct Esperado {
  const char* campo;
  int pos;
  std::string texto;
};

void ExpectFields(const std::string& salida, int64_t longitud,
                  const std::vector<Esperado>& esperados, const std::string& contexto) {
  EXPECT_EQ(Len(salida), longitud) << contexto;
  for (const Esperado& e : esperados) {
    EXPECT_EQ(Mid(salida, e.pos, Len(e.texto)), e.texto) << contexto << ": " << e.campo;
  }
}

TEST(ConvDelEstatalTest, DeclarantLinesHaveZeroTotalsIn348Characters) {
  for (const auto* m : {&ConvDelEstatal_2014, &ConvDelEstatal_2011, &ConvDelEstatal_2008,
                        &ConvDelEstatal_2007}) {
    const std::string linea = Poner(Completa(2010, '1'), 9, "12345678Z");
    ExpectFields(m->ConvertirDte(linea, "ruta"), 348,
                 {{"head", 1, "1347201020" "12345678Z"},
                  {"nombred", 20, Pad("Ñandú Etxeberria", 40)}, {"totales", 60, Ceros(120)},
                  {"moneda", 180, "E"}, {"blancos", 181, Blanks(168)}},
                 "module " + std::to_string(m - &ConvDelEstatal_2014));
  }
}

TEST(ConvDelEstatalTest, OperationLinesFieldByField) {
  const std::string linea = Completa(2014, 'D');
  const std::string convertida = ConvDelEstatal_2014.ConvertirDeclarado(linea);
  ExpectFields(convertida, 500, {
      {"head", 1, "2347201420" "12345678Z"}, {"claveopo", 20, "F"}, {"nifo", 21, "B20000001"},
      {"razon", 30, test::kRazon40}, {"claverep", 70, " "}, {"provpais", 71, "28   "},
      {"importe", 76, "N000000000001234"}, {"opeseg opearr", 92, " X"},
      {"impmet", 94, "000000000005000"}, {"impinm", 109, "N000000000000700"},
      {"ejerimpmet", 125, "2013"},
      {"quarter 1", 129, " " + Ceros(13) + "11N" + Ceros(14) + "1"},
      {"quarter 2", 161, "N" + Ceros(13) + "22 " + Ceros(14) + "2"},
      {"quarter 3", 193, " " + Ceros(13) + "33 " + Ceros(14) + "3"},
      {"quarter 4", 225, " " + Ceros(15) + " " + Ceros(14) + "4"},
      {"siglaspaisintra", 257, "FR"}, {"nifpaisintra", 259, "12345678901    "},
      {"opeivacaja opeinvsujpas operegposadu", 274, "X X"},
      {"impanudevopecaj", 277, "N000000000000009"}, {"blancos", 293, Blanks(208)}}, "2014");
  // 2011 reads nothing after its last quarter.
  EXPECT_TRUE(test::SameRecord(ConvDelEstatal_2011.ConvertirDeclarado(linea),
                               Left(convertida, 256) + Blanks(244)));

  std::vector<Esperado> e = {
      {"head", 1, "2347200820" "12345678Z"}, {"nifo", 21, "B20000001"},
      {"razon", 30, test::kRazon40}, {"claverep", 70, " "}, {"provpais", 71, "28   "},
      {"importe", 76, "000000000001234"}, {"opeseg opearr", 91, "X "}};
  std::vector<Esperado> e2007 = e;
  e.insert(e.end(), {{"claveopo", 20, "F"}, {"impmet", 93, "000000000005000"},
                     {"impinm", 108, "000000000000700"}, {"blancos", 123, Blanks(157)}});
  ExpectFields(ConvDelEstatal_2008.ConvertirDeclarado(Completa(2008, 'D')), 279, e, "2008");
  e2007[0].texto = "2347200720" "12345678Z";
  e2007.insert(e2007.end(), {{"claveopo F as B", 20, "B"}, {"blancos", 93, Blanks(157)}});
  ExpectFields(ConvDelEstatal_2007.ConvertirDeclarado(Completa(2007, 'D')), 249, e2007, "2007");
}

TEST(ConvDelEstatalTest, PremisesLinesFieldByField) {
  const std::string convertida = ConvDelEstatal_2014.ConvertirInmueble(Completa(2014, 'I'));
  ExpectFields(convertida, 500, {
      {"head", 1, "3347201420" "12345678Z"}, {"nifa", 20, "A20111111"},
      {"razon", 29, Pad("Lonjas Ñ'Bidea SL", 40)}, {"importe", 69, "N000000000060000"},
      {"provi", 85, "20   "}, {"municipioa", 90, Pad("Hondarribia", 24)},
      {"refcat", 114, Pad("1234567AB1234C0001XY", 25)}, {"viaa", 139, "CL"},
      {"domicilioa", 141, Pad("Nagusia", 25)}, {"numeroa", 166, "00007"},
      {"escaleraa pisoa puertaa", 171, "  2 A "}, {"blancos", 177, Blanks(324)}}, "2014");

  // Without the sign everything after it sits one position earlier; 2007
  // reads other state positions and writes "000" at 86-88.
  Valores sin_signo = kInmueble;
  sin_signo["importe"] = "60000";
  const std::string esperada = Left(convertida, 68) + Mid(convertida, 70, 107) + Blanks(75);
  const struct {
    int ejercicio;
    const ModuloConversion& modulo;
    std::string esperada;
  } rows[] = {{2011, ConvDelEstatal_2011, Poner(esperada, 5, "2011")},
              {2008, ConvDelEstatal_2008, Poner(esperada, 5, "2008")},
              {2007, ConvDelEstatal_2007, Poner(Poner(esperada, 5, "2007"), 86, "000")}};
  for (const auto& row : rows) {
    EXPECT_TRUE(test::SameRecord(
        row.modulo.ConvertirInmueble(LineaEstatal(row.ejercicio, 'I', sin_signo)), row.esperada))
        << row.ejercicio;
  }
}

// Each rule on the full line of its year, changed by `valores` and by
// `texto` written at `en`; `pos` 0 compares the whole converted line.
TEST(ConvDelEstatalTest, Rules) {
  const std::string kRep = "X1234567L";
  const struct {
    const char* regla;
    int ejercicio;
    char registro;
    Valores valores;
    int en;
    std::string texto;
    int pos;
    std::string esperado;
  } rows[] = {
      {"R for a representative 2014", 2014, 'D', {{"nifrep", kRep}}, 0, "", 70, "R"},
      {"2014 keeps the NIF", 2014, 'D', {{"nifrep", kRep}}, 0, "", 21, "B20000001"},
      {"2008 representative's NIF", 2008, 'D', {{"nifrep", kRep}}, 0, "", 21, kRep},
      {"2008 abroad, no NIF", 2008, 'D', {{"provo", "99"}, {"nifrep", kRep}}, 0, "", 21, Blanks(9)},
      {"2007 province 99, no NIF", 2007, 'D', {{"provo", "99"}}, 0, "", 21, Blanks(9)},
      {"2007 country code", 2007, 'D', {{"provo", "99"}, {"paiso", "FR"}}, 0, "", 71, "991  "},
      {"2008 country letters", 2008, 'D', {{"provo", "99"}, {"paiso", "FR"}}, 0, "", 71, "99FR"},
      {"77-81 trimmed", 2014, 'D', {}, 77, "  FR ", 71, "FR   "},
      {"2007 key G", 2007, 'D', {{"claveopo", "G"}}, 0, "", 20, "A"},
      {"any character is X", 2014, 'D', {{"opeseg", "a"}}, 0, "", 92, "X"},
      {"blank in a number", 2014, 'D', {}, 84, "000000000012 34", 77, Ceros(15)},
      {"minus kept", 2014, 'D', {}, 84, "-00000000000005", 77, "-" + Ceros(14) + "5"},
      {"sign as it stands", 2014, 'D', {}, 83, "x", 76, "x"},
      {"lower-case d", 2014, 'D', {}, 76, "d", 0, ""},
      {"type 3", 2014, 'D', {}, 1, "3", 0, ""},
      {"premises province 00", 2014, 'I', {{"provi", "00"}}, 0, "", 20, Blanks(9)},
      {"premises province 0#", 2014, 'I', {{"provi", "5"}}, 0, "", 85, "05"},
      {"premises province 0", 2014, 'I', {{"provi", "0"}}, 0, "", 85, "0   Hondarribia"},
      {"2007 premises province 00", 2007, 'I', {{"provi", "00"}}, 0, "", 20, Blanks(9)},
      {"2007 premises own province", 2007, 'I', {}, 327, "00", 20, "A20111111"},
      {"2007 declarant 347", 2007, '1', {{"moneda", "347"}}, 0, "", 180, "P"},
      {"2007 declarant 348", 2007, '1', {{"moneda", "348"}}, 0, "", 180, "E"},
      {"2008 declarant 347", 2008, '1', {}, 108, "347", 180, "E"},
  };
  for (const auto& row : rows) {
    std::string linea = Completa(row.ejercicio, row.registro, row.valores);
    if (row.en > 0) linea = Poner(linea, row.en, row.texto);
    const std::string convertida = ConvertirLineaEstatal(linea, "");
    EXPECT_EQ(row.pos == 0 ? convertida : Mid(convertida, row.pos, Len(row.esperado)),
              row.esperado)
        << row.regla;
  }
}

TEST(ConvDelEstatalTest, ShortLinesNulsAndStrayBytesConvertToTheirLengths) {
  const std::string nuls(120, '\0');
  const std::string stray = "\xff\xfe\x80" + std::string(200, '\x81');
  const struct {
    const char* regla;
    std::string linea;
    int64_t longitud;
  } rows[] = {
      {"type alone", "1", 348},
      {"2014 operation cut after 76", Left(Completa(2014, 'D'), 76), 500},
      {"2008 operation cut after 76", Left(Completa(2008, 'D'), 76), 279},
      // A premises province that reads 0 is written "0" by its mask "0#".
      {"2014 premises cut after 76", Left(Completa(2014, 'I'), 76), 499},
      {"2011 premises cut after 76", Left(Completa(2011, 'I'), 76), 249},
      {"2007 premises cut after 141", Left(Completa(2007, 'I'), 141), 250},
      {"premises of NULs", Poner(Poner("2" + nuls, 5, "2009"), 76, "I"), 249},
      {"declarant of stray bytes", "1" + stray, 348},
      {"operation of stray bytes", Poner(Poner("2" + stray, 5, "2007"), 76, "D"), 249},
      {"cut before 76", Left(Completa(2014, 'D'), 75), 0},
      {"empty line", "", 0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Len(ConvertirLineaEstatal(row.linea, "")), row.longitud) << row.regla;
  }
  // Past the end a number reads as 0 and a text as blanks.
  EXPECT_EQ(Mid(ConvertirLineaEstatal(rows[1].linea, ""), 70, 23),
            Blanks(7) + Ceros(15) + " ");
  const std::string presentador = "0347" + nuls;
  EXPECT_EQ(ConvertirLineaEstatal(presentador, ""), presentador);
}

// The bounds of each period show in the lengths of the lines the import's
// tests convert; here, years that read oddly or not at all.
TEST(ConvDelEstatalTest, TheYearChoosesTheModule) {
  const struct {
    const char* ejercicio;
    const ModuloConversion* modulo;
  } rows[] = {
      {" 201", &ConvDelEstatal_2007}, {"20a4", &ConvDelEstatal_2014},
      {"", &ConvDelEstatal_2014},     {"\xff\xfe", &ConvDelEstatal_2014},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(&ModuloDelEjercicio("2347" + std::string(row.ejercicio)), row.modulo)
        << "[" << row.ejercicio << "]";
  }
}

}  // namespace
}  // namespace zerbal::fileformat
