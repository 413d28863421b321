// The validators of the years before 2014, where they differ from the 2014
// ones (whose every rule importacion_2014_test.cc checks): one row per
// difference, a valid line of the year's layout changed by the row. Also
// which module serves which year.

#include "fileformat/layout_reg2.h"
#include "fileformat/layout_reg3.h"
#include "import/importacion_2007.h"
#include "import/importacion_2008.h"
#include "import/importacion_2011.h"
#include "import/importacion_2014.h"
#include "import/modulos.h"
#include "lineas.h"

namespace zerbal {
namespace {

using namespace fileformat;
using test::Errors;

struct Row {
  const char* name;
  int32_t year;
  std::vector<test::Change> changes;
  Errors errors;
};

const std::string kQ0 = " 000000000000000";
const std::string kMinus = "-00000000001000";
const std::string kBlank15(15, ' ');

class ImportacionAnterioresTest : public test::DatabaseTest {
 protected:
  // The line of the row's year, split and validated by that year's module.
  Errors Check(const Row& row, bool operation) {
    const std::string line = test::Changed(
        operation ? test::LineaDeclarado(row.year) : test::LineaArrendamiento(row.year),
        test::Campos(row.year, operation), row.changes);
    const Importacion::Par& par = operation ? Importacion::ParDeclarados(row.year)
                                            : Importacion::ParArrendamientos(row.year);
    bool convertir = false;
    return test::ErrorList(
        par.validar(par.leer(line, convertir), par.limite, lec_, mod_, 2014, 2002, "1"));
  }
};

TEST_F(ImportacionAnterioresTest, OperationLinesWhereTheyDifferFrom2014) {
  const std::vector<test::Change> abroad = {{"provo", "99"}, {"nifo", ""}};
  const auto with = [](std::vector<test::Change> a, const std::vector<test::Change>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
  };
  const std::vector<Row> rows = {
      {"2012 sign X is not checked", 2012, {{"importe", "X000000000001000"}}, {}},
      {"2012 N is negative all the same", 2012, {{"importe", "N000000000001000"}}, {{53, ""}}},
      {"2012 declarant H: no 65, the quarters must add up", 2012,
       {{"dni_cifd", "H20000000"}, {"impopet1", " 000000000000999"}}, {{53, ""}}},
      {"2012 the fields of 2014 are not read", 2012,
       {{"opeivacaja", "Y"}, {"impanudevopecaj", " 000000000000100"}}, {}},
      {"2012 no amount at all", 2012,
       {{"importe", kQ0}, {"impopet1", kQ0}, {"impopet2", kQ0}, {"impopet3", kQ0},
        {"impopet4", kQ0}},
       {{55, ""}}},
      {"2012 non-resident: no intra-community identifier", 2012,
       with(abroad, {{"paiso", "FR"}, {"siglaspaisintra", "FR"}, {"nifpaisintra", "X"}}), {}},
      {"2009 minus sign: 36 and 37", 2009, {{"importe", kMinus}}, {{36, kMinus}, {37, kMinus}}},
      {"2009 blank: 36 and 41", 2009, {{"importe", ""}}, {{36, kBlank15}, {41, kBlank15}}},
      {"2009 cash amount negative", 2009, {{"impmet", kMinus}}, {{36, kMinus}, {37, kMinus}}},
      {"2009 every amount 0: no 55", 2009, {{"importe", "000000000000000"}}, {}},
      {"2009 non-resident", 2009, with(abroad, {{"paiso", "FR"}}), {}},
      {"2009 non-resident, unknown country", 2009, with(abroad, {{"paiso", "ZZ"}}),
       {{49, "ZZ "}}},
      {"2009 resident abroad", 2009, {{"paiso", "FR"}}, {{35, "FR "}}},
      {"2006 resident without a country", 2006, {{"paiso", ""}}, {}},
      {"2006 non-resident in France", 2006, with(abroad, {{"paiso", "001"}}), {}},
      {"2006 code left-justified", 2006, with(abroad, {{"paiso", "1"}}), {}},
      {"2006 unknown code: 27, no 49", 2006, with(abroad, {{"paiso", "999"}}), {{27, ""}}},
      {"2006 letters", 2006, with(abroad, {{"paiso", "FR"}}), {{27, ""}, {28, "FR "}}},
      {"2006 resident abroad", 2006, {{"paiso", "001"}}, {{35, "001"}}},
      {"2006 resident, code with a letter", 2006, {{"paiso", "0A0"}},
       {{28, "0A0"}, {35, "0A0"}}},
  };
  for (const Row& row : rows) EXPECT_EQ(Check(row, true), row.errors) << row.name;
}

TEST_F(ImportacionAnterioresTest, RentalLinesWhereTheyDifferFrom2014) {
  const std::vector<Row> rows = {
      {"2012 minus sign: 36 and 37, no 56", 2012, {{"importe", kMinus}},
       {{36, kMinus}, {37, kMinus}}},
      {"2009 lessee blank: country OP", 2009, {{"nifa", ""}}, {}},
      {"2006 municipality blank", 2006, {{"municipioa", ""}}, {{18, ""}}},
      {"2006 lessee blank, no country", 2006, {{"nifa", ""}}, {{27, ""}}},
      {"2006 lessee blank, in France", 2006, {{"nifa", ""}, {"000", "001"}}, {}},
      {"2006 lessee with a country", 2006, {{"000", "001"}}, {{35, "001"}}},
      {"2006 country with a letter", 2006, {{"000", "0A0"}}, {{28, "0A0"}, {35, "0A0"}}},
  };
  for (const Row& row : rows) EXPECT_EQ(Check(row, false), row.errors) << row.name;
}

TEST_F(ImportacionAnterioresTest, FailuresNotTheDataAreRaisedUnderTheValidatorsName) {
  lec_ = (dir_ / "none.db").string();
  const struct {
    int32_t year;
    bool operation;
    const char* source;
  } rows[] = {
      {2012, true, "Importacion.ValidarDeclarado_2011"},
      {2010, true, "Importacion.ValidarDeclarado_2008"},
      {2007, true, "Importacion.ValidarDeclarado_2007"},
      {2013, false, "Importacion.ValidarArrendamiento_2008"},
      {2007, false, "Importacion.ValidarArrendamiento_2007"},
  };
  for (const auto& row : rows) {
    const std::optional<Error> error = test::ErrorOf([&] { Check({"", row.year, {}, {}}, row.operation); });
    ASSERT_TRUE(error) << row.source;
    EXPECT_EQ(error->Source(), row.source);
  }
}

TEST(ModulosTest, TheDeclarationsYearChoosesTheModule) {
  using namespace Importacion_2007;
  using namespace Importacion_2008;
  using Importacion_2011::ValidarDeclarado_2011;
  using namespace Importacion_2014;
  using Validar = decltype(Importacion::Par::validar);
  const struct {
    int32_t year;
    Validar operations, rentals;
  } rows[] = {
      {2007, ValidarDeclarado_2007, ValidarArrendamiento_2007},
      {2008, ValidarDeclarado_2008, ValidarArrendamiento_2008},
      {2010, ValidarDeclarado_2008, ValidarArrendamiento_2008},
      {2011, ValidarDeclarado_2011, ValidarArrendamiento_2008},
      {2013, ValidarDeclarado_2011, ValidarArrendamiento_2008},
      {2014, ValidarDeclarado_2014, ValidarArrendamiento_2014},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Importacion::ParDeclarados(row.year).validar, row.operations) << row.year;
    EXPECT_EQ(Importacion::ParDeclarados(row.year).limite, row.year < 2011 ? 164 : 500);
    EXPECT_EQ(Importacion::ParArrendamientos(row.year).validar, row.rentals) << row.year;
  }
}

}  // namespace
}  // namespace zerbal
