// The module Importacion: the line checks, the declarant splitters and the
// declarant checks, one row per rule.

#include "import/importacion.h"

#include <algorithm>

#include "fileformat/layout_dte.h"
#include "fileformat/linea_dte.h"
#include "lineas.h"

namespace zerbal {
namespace {

using namespace Importacion;
using test::Errors;
using test::ErrorList;

TEST(ImportacionTest, CharactersAreCheckedAgainstTheTableFirstOffenderOnly) {
  const struct {
    std::string line;
    Errors errors;
  } rows[] = {
      {"", {}},
      {"2347 ñÇº\u00A0¿¡ªÁÉÍÓÚÜáéíóúü×°ç", {}},
      {std::string("2\t3"), {{47, "\t"}}},
      {std::string("2\0", 2), {{47, std::string(1, '\0')}}},
      {"a^b|c", {{47, "^"}}},
      {"x\x7F", {{47, "\x7F"}}},
      {"Lumière", {{47, "è"}}},
      {"ok\xE9 not UTF-8", {{47, "\uFFFD"}}},
      {"ł has no code page place: it counts as ?", {}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(ErrorList(ValidarCaracteres(row.line)), row.errors) << row.line;
  const std::array<bool, 256> tabla = TablaCaracteres();
  EXPECT_EQ(std::count(tabla.begin(), tabla.end(), true), 95 - 3 + 24) << "^ ` | and 24 others";
}

TEST(ImportacionTest, RecordTypeAndYearOfALine) {
  for (const char* line : {"0", "1x", "2", "3347"}) EXPECT_TRUE(TipoRegistroValido(line)) << line;
  for (const char* line : {"4", "9", "A", " 1", ""}) EXPECT_FALSE(TipoRegistroValido(line)) << line;
  EXPECT_EQ(ErrorList(ComprobarEjercicio("23472013", "2014")), (Errors{{48, "2013 - 2014"}}));
  EXPECT_EQ(ErrorList(ComprobarEjercicio("23472014", "2014")), Errors{});
}

TEST(ImportacionTest, DeclarantChecks) {
  const std::string valid = fileformat::GenerarLineaDte(test::DeclaranteLinea("12345678Z"));
  const struct {
    const char* name;
    std::vector<test::Change> changes;
    Errors errors;
  } rows[] = {
      {"valid, with its address", {}, {}},
      {"street type blank", {{"viad", ""}}, {{3, ""}}},
      {"street number with a letter", {{"numerod", "12A"}}, {{19, "12A"}}},
      {"province 7 reads 07", {{"cod", "7"}}, {}},
      {"province blank", {{"cod", ""}}, {{4, ""}, {6, ""}}},
      {"province with a letter", {{"cod", "A1"}}, {{20, "A1"}, {21, "A1005"}}},
      {"municipality blank", {{"municipiod", ""}}, {{7, ""}}},
      {"NIF not valid", {{"dni_cifd", "12345678A"}}, {{0, "12345678A"}}},
      {"name blank", {{"nombred", ""}}, {{1, ""}}},
  };
  for (const auto& row : rows) {
    const Variant values =
        LeerDte(test::Changed(valid, fileformat::kCamposLineaDte, row.changes));
    EXPECT_EQ(ErrorList(ValidarDte(values, 164)), row.errors) << row.name;
  }
  EXPECT_EQ(ErrorList(ValidarDte(LeerDte(valid), 40)), (Errors{{24, ""}})) << "alone";

  const std::string record = test::LineaDeclarante();
  EXPECT_EQ(ErrorList(ValidarDte(LeerDte_Cion(record), 164)), Errors{})
      << "a declarant record has no address to check";
  const std::string year = test::Set(record, fileformat::kCamposReg1_2014, "ejercicio", "20A4");
  EXPECT_EQ(ErrorList(ValidarDte(LeerDte_Cion(year), 164)), (Errors{{43, "20A4"}}));
}

}  // namespace
}  // namespace zerbal
