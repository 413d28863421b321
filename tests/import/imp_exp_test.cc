// The import driver on real databases: what each kind of line does to
// Sujeto, Resultado, the errors and the tables, and the driver's own flows.

#include "zerbal/impexp.h"

#include "base/text.h"
#include "fileformat/linea_dte.h"
#include "lineas.h"
#include "zerbal/automation.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarante.h"

namespace zerbal {
namespace {

using fileformat::kCamposReg1_2014;
using fileformat::kCamposReg2_2014;
using fileformat::kCamposReg3_2014;
using test::Errors;
using Rows = std::vector<std::vector<Variant>>;

struct Outcome {
  int sujeto;
  int resultado;
  Errors errors;
  bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& o, std::ostream* os) {
  *os << "Sujeto " << o.sujeto << ", Resultado " << o.resultado << ", " << o.errors.size()
      << " errors";
  for (const auto& [n, text] : o.errors) *os << " [" << n << " \"" << text << "\"]";
}

class ImpExpTest : public test::DatabaseTest {
 protected:
  ImpExpTest() {
    imp_.mdbmod(mod_);
    imp_.mdblec(lec_);
    imp_.EjercicioMin(2002);
    imp_.EjercicioMax(2014);
  }
  Outcome Now(const Variant& errores) {
    return {imp_.Sujeto(), imp_.Resultado(),
            errores.IsArray() ? test::ErrorList(errores) : Errors{}};
  }
  Outcome Spte(std::string line, bool estatal = false) {
    Variant errores;
    imp_.importSpte(line, errores, estatal);
    return Now(errores);
  }
  Outcome OpeArr(std::string line, uint8_t arr_ope) {
    Variant valores, errores;
    imp_.importOpeArr(line, valores, errores, false, arr_ope);
    return Now(errores);
  }
  int64_t Count(const std::string& table) {
    return test::Rows(mod_, "SELECT COUNT(*) FROM " + table)[0][0].AsLong();
  }
  cImpExp imp_;
};

const std::string kPresenter = "0347201420B20456786";

TEST_F(ImpExpTest, StoredRowsAreTheSaveBuffersOfTheLines) {
  Spte(test::LineaDeclarante());
  const std::string negative = test::Changed(
      test::LineaDeclarado(), kCamposReg2_2014,
      {{"importe", "N000000000001000"}, {"impopet1", "N000000000000250"},
       {"impopet2", "N000000000000250"}, {"impopet3", "N000000000000250"},
       {"impopet4", "N000000000000250"}, {"claverep", "r"}});
  ASSERT_EQ(Spte(negative), (Outcome{3, 0, {}}));
  EXPECT_EQ(test::Rows(mod_,
                       "SELECT provo, paiso, nifo, razon, claveopo, importe, claverep, impopeT1, "
                       "impopeT4, ejerimpmet, opeivacaja, impanudevopecaj FROM tOperadores"),
            (Rows{{20, " ", "54362315K", "Goikoetxea Larrañaga, Ane", "A", -1000.0, "R", -250.0,
                   -250.0, 0, " ", 0.0}}))
      << "paiso 00 is stored blank, keys in capitals, N amounts negative";

  ASSERT_EQ(Spte(test::LineaArrendamiento()), (Outcome{4, 0, {}}));
  ASSERT_EQ(Spte(test::Set(test::LineaArrendamiento(), kCamposReg3_2014, "nifa", "")),
            (Outcome{4, 0, {}}));
  EXPECT_EQ(
      test::Rows(mod_, "SELECT nifa, paiso, provi, prova, importe, numeroa FROM tArrendamientos"),
      (Rows{{"X2482300W", "", 20, 20, 1800000.0, 21}, {" ", "OP", 20, 0, 1800000.0, 21}}))
      << "the province doubles as prova only where the country is empty";
}

TEST_F(ImpExpTest, EachRecordTypeAndARejectedDeclaration) {
  imp_.Resultado(9);
  EXPECT_EQ(Spte(kPresenter), (Outcome{0, 9, {}})) << "presenter: Resultado left as it was";
  EXPECT_EQ(Spte(""), (Outcome{5, 9, {}})) << "empty line";
  ASSERT_EQ(Spte(test::LineaDeclarante()), (Outcome{1, 0, {}}));
  const Rows declarations =
      test::Rows(mod_, "SELECT coddecla, ejercicio, moneda FROM TDeclaraciones");
  ASSERT_EQ(declarations.size(), 1u);
  EXPECT_EQ(Variant(imp_.Declaracion()), Variant(std::to_string(declarations[0][0].AsLong())));
  EXPECT_EQ(declarations[0][1], Variant(2014));
  EXPECT_EQ(declarations[0][2], Variant("E")) << "every imported declaration is in euros";
  EXPECT_EQ(Spte(test::LineaDeclarante()), (Outcome{1, 4, {{31, "2014"}}}));
  EXPECT_TRUE(imp_.RechazarDeclaracion());
  EXPECT_EQ(Spte(test::LineaDeclarado()), (Outcome{3, 4, {}})) << "importSpte leaves Resultado";
  EXPECT_EQ(OpeArr(test::LineaDeclarado(), 2), (Outcome{3, 2, {}})) << "importOpeArr gives 2";
  EXPECT_EQ(Count("tOperadores"), 0);

  EXPECT_EQ(Spte(test::Set(test::LineaDeclarante("B20456786"), kCamposReg1_2014, "nombred", "")),
            (Outcome{1, 3, {{1, ""}}}));
  EXPECT_EQ(Spte(test::LineaDeclarante("B20456786") + "|"), (Outcome{1, 6, {{47, "|"}}}));
  EXPECT_EQ(Count("TDeclarante"), 1);

  imp_.EjercicioMax(2013);
  EXPECT_EQ(Spte(test::LineaDeclarante("B20456786")), (Outcome{1, 0, {{44, "2014"}}}))
      << "a year outside the accepted ones is imported all the same";
  EXPECT_FALSE(imp_.RechazarDeclaracion());
  EXPECT_EQ(Spte(test::LineaDeclarado()), (Outcome{3, 3, {{44, "2014"}}}))
      << "its lines are checked against the years too";
}

TEST_F(ImpExpTest, ADeclarantIsFoundByTheFirstEightCharactersOfItsNif) {
  cDeclarante declarante;
  declarante.mdbmod(mod_);
  const int32_t code = declarante.GuardarDeclarante(test::PersonBuffer(0, "12345678X", "Old"));
  EXPECT_EQ(Spte(test::LineaDeclarante("12345678Z")), (Outcome{1, 1, {}}));
  EXPECT_EQ(test::Rows(mod_, "SELECT coddec, dni_cifd, cod FROM TDeclarante"),
            (Rows{{code, "12345678Z", 0}}))
      << "the known declarant is rewritten with the record's values";
  EXPECT_EQ(test::Rows(mod_, "SELECT coddecr FROM TDeclaraciones"), (Rows{{code}}));
}

TEST_F(ImpExpTest, LinesThatCannotBelongToTheDeclaration) {
  Spte(test::LineaDeclarante());
  const std::string y2013 =
      test::Set(test::LineaDeclarado(), kCamposReg2_2014, "ejercicio", "2013");
  const struct {
    const char* name;
    std::string line;
    Outcome outcome;
  } rows[] = {
      {"another year", y2013, {3, 6, {{48, "2013 - 2014"}}}},
      {"a refused character comes first", y2013 + "è", {3, 6, {{47, "è"}}}},
      {"100,000 characters", std::string(100000, '2'), {3, 6, {{48, "2222 - 2014"}}}},
      {"cut in the middle of a field", Left(test::LineaArrendamiento(), 80),
       {4, 3, {{4, ""}, {4, ""}, {2, ""}, {3, ""}}}},
      {"stored once", test::LineaDeclarado(), {3, 0, {}}},
      {"the same party with the same keys", test::LineaDeclarado(), {3, 3, {{30, ""}}}},
  };
  for (const auto& row : rows) EXPECT_EQ(Spte(row.line), row.outcome) << row.name;
  EXPECT_EQ(Count("tOperadores") + Count("tArrendamientos"), 1);
}

// Both sides of each boundary of the declaration's year (the validators)
// and of the line's year (the converters): a state line is converted by the
// module of its year, validated by the module of its declaration's, and
// stored as the treasury's line of the same data is.
TEST_F(ImpExpTest, StateLinesOfEveryPeriodStoreTheRowsOfTheTreasurysLines) {
  const struct {
    int32_t year;
    int64_t operation_length, premises_length;  // as the year's converter writes them
  } rows[] = {{2007, 249, 250}, {2008, 279, 250}, {2010, 279, 250},
              {2011, 500, 250}, {2013, 500, 250}, {2014, 500, 500}};
  // Every stored row without its keys (which only count the rows).
  const auto stored = [&] {
    Rows all;
    for (const auto& [table, keys] : {std::pair("TDeclarante", 1), {"TDeclaraciones", 2},
                                      {"tOperadores", 2}, {"tArrendamientos", 2}}) {
      for (auto& row : test::Rows(mod_, std::string("SELECT * FROM ") + table)) {
        all.emplace_back(row.begin() + keys, row.end());
      }
      test::Exec(mod_, std::string("DELETE FROM ") + table);
    }
    return all;
  };
  for (const auto& row : rows) {
    const std::string y = std::to_string(row.year);
    const std::vector<std::string> treasury = {test::LineaDeclarante("12345678Z", row.year),
                                               test::LineaDeclarado(row.year),
                                               test::LineaArrendamiento(row.year)};
    const std::vector<std::string> state = test::LineasEstatales(row.year);
    const int64_t lengths[] = {348, row.operation_length, row.premises_length};
    Rows rows_of[2];
    for (bool estatal : {false, true}) {
      const std::vector<std::string>& lines = estatal ? state : treasury;
      for (size_t k = 0; k < lines.size(); ++k) {
        std::string line = lines[k];
        Variant errores;
        imp_.importSpte(line, errores, estatal);
        const Outcome expected{k == 0 ? 1 : static_cast<int>(k) + 2, 0, {}};
        EXPECT_EQ(Now(errores), expected)
            << y << (estatal ? " state" : " treasury") << " line " << k + 1;
        if (estatal) {
          EXPECT_EQ(Len(line), lengths[k]) << y << ": the converted line comes back";
        }
      }
      rows_of[estatal] = stored();
    }
    EXPECT_EQ(rows_of[1], rows_of[0]) << y;
  }
}

TEST_F(ImpExpTest, StateLinesOfAnyLengthAndBytes) {
  Spte(test::LineasEstatales(2014)[0], true);
  const std::string operation = test::LineasEstatales(2014)[1];
  const std::string nuls(120, '\0');
  const struct {
    const char* name;
    std::string line;
    Outcome outcome;
  } rows[] = {
      {"lower-case d at 76", test::Poner(operation, 76, "d"), {5, 0, {}}},
      {"cut after 76: the rest reads as blanks and zeros", Left(operation, 76),
       {3, 3, {{17, ""}, {20, "  "}, {4, "  "}, {4, ""}, {55, ""}}}},
      {"a line of NULs with D at 76", test::Poner(test::Poner("2" + nuls, 5, "2014"), 76, "D"),
       {3, 6, {{47, std::string(1, '\0')}}}},
      {"100,000 characters: nothing past the fields is read", operation + std::string(99500, '|'),
       {3, 0, {}}},
  };
  for (const auto& row : rows) {
    imp_.Resultado(0);
    EXPECT_EQ(Spte(row.line, true), row.outcome) << row.name;
  }
  EXPECT_EQ(Count("tOperadores") + Count("tArrendamientos"), 1);
}

// What an operation and a rental line of each period leave in their rows.
// A file in pesetas (its declarant record says "P" at 180) is stored in
// euro cents: the amount the export converts, not the cash amount nor the
// transfers. Up to 2007 the country is "000" and the premises' province is
// also prova; from 2011 the quarters are stored.
TEST_F(ImpExpTest, StoredRowsOfEachPeriod) {
  const struct {
    int32_t year;
    const char* nif;  // a new declarant each: Convertir is set for new ones
    std::vector<test::Change> declarant, operation, rental;
    Rows operations, rentals;
  } rows[] = {
      {2006, "12345678Z", {{"E", "P"}}, {{"importe", "000000000166386"}},
       {{"importe", "000000000332772"}}, {{"000", 100000.0, 0.0, 0.0, 0.0}},
       {{"000", 20, 200000.0}}},
      {2009, "B20456786", {{"E", "P"}},
       {{"importe", "000000000001000"}, {"impmet", "000000000000500"},
        {"impinm", "000000000000700"}},
       {{"importe", "000000000166386"}}, {{" ", 601.0, 500.0, 700.0, 0.0}}, {{"", 20, 100000.0}}},
      {2012, "B64717838", {}, {{"impinm", " 000000000000700"}, {"impmobt4", " 000000000000700"}},
       {}, {{" ", 1000.0, 0.0, 700.0, 250.0}}, {{"", 20, 1800000.0}}},
  };
  for (const auto& row : rows) {
    test::Exec(mod_, "DELETE FROM tOperadores; DELETE FROM tArrendamientos");
    const std::string declarant = test::Changed(
        test::LineaDeclarante(row.nif, row.year), fileformat::kCamposReg1_2007, row.declarant);
    ASSERT_EQ(Spte(declarant), (Outcome{1, 0, {}})) << row.year;
    EXPECT_EQ(imp_.Convertir(), !row.declarant.empty()) << row.year;
    const std::string operation =
        test::Changed(test::LineaDeclarado(row.year), test::Campos(row.year, true), row.operation);
    EXPECT_EQ(Spte(operation), (Outcome{3, 0, {}})) << row.year;
    EXPECT_EQ(Spte(operation), (Outcome{3, 3, {{30, ""}}})) << row.year << ": the same again";
    EXPECT_EQ(Spte(test::Changed(test::LineaArrendamiento(row.year), test::Campos(row.year, false), row.rental)),
              (Outcome{4, 0, {}}))
        << row.year;
    EXPECT_EQ(test::Rows(mod_, "SELECT paiso, importe, impmet, impinm, impopeT4 FROM tOperadores"),
              row.operations)
        << row.year;
    EXPECT_EQ(test::Rows(mod_, "SELECT paiso, prova, importe FROM tArrendamientos"), row.rentals)
        << row.year;
  }
}

TEST_F(ImpExpTest, CurrencyAndKindsOfAnExistingDeclaration) {
  cDeclaraciones declaraciones;
  declaraciones.mdbmod(mod_);
  cDeclarante declarante;
  declarante.mdbmod(mod_);
  const int32_t who = declarante.GuardarDeclarante(test::PersonBuffer(0, "12345678Z", "Ane"));
  imp_.Declaracion(std::to_string(declaraciones.GuardarDeclaracion(2014, "E", who)));
  EXPECT_EQ(OpeArr(test::LineaArrendamiento(), 0), (Outcome{4, 2, {}})) << "rentals not selected";
  EXPECT_EQ(OpeArr(test::LineaArrendamiento(), 1), (Outcome{4, 0, {}}));
  EXPECT_EQ(OpeArr(test::LineaDeclarado(), 1), (Outcome{3, 2, {}})) << "operations not selected";
  EXPECT_EQ(OpeArr(test::Set(test::LineaDeclarante(), kCamposReg1_2014, "importeE",
                             "0000000000P0000"), 2),
            (Outcome{1, 0, {}}));
  EXPECT_TRUE(imp_.Convertir()) << "a file in pesetas into a euro declaration";

  imp_.Declaracion(std::to_string(declaraciones.GuardarDeclaracion(2013, "P", who)));
  EXPECT_EQ(OpeArr(test::LineaDeclarante(), 2), (Outcome{1, 4, {{46, "P"}}}));
  EXPECT_TRUE(imp_.RechazarDeclaracion());
  EXPECT_EQ(OpeArr(test::LineaDeclarado(), 2), (Outcome{3, 2, {}}));
  EXPECT_EQ(Count("tOperadores") + Count("tArrendamientos"), 1);
}

TEST_F(ImpExpTest, DeclarantsOfTheLatestYearByDefault) {
  Spte(test::LineaDeclarante("12345678Z", 2013));
  Spte(test::LineaDeclarante("B20456786", 2014));
  int32_t year = 0;
  std::string currency = " ";
  const Variant list = imp_.ObtenerDeclarantes(year, currency);
  EXPECT_EQ(year, 2014);
  EXPECT_EQ(currency, "E");
  ASSERT_EQ(list.AsArray().UBound(2), 1);
  EXPECT_EQ(list(1, 1), Variant("B20456786"));
  imp_.mdbmod((dir_ / "none.db").string());
  const std::optional<Error> error = test::ErrorOf([&] { imp_.ObtenerDeclarantes(year, currency); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Description().rfind("cImpExp.ObtenerDeclarantes ", 0), 0u) << error->Description();
}

TEST_F(ImpExpTest, ALineOfTheDeclarantsFileStoresADeclarantOnce) {
  const std::string line = fileformat::GenerarLineaDte(test::DeclaranteLinea("12345678Z"));
  Variant valores, errores;
  EXPECT_EQ(imp_.importDte(line, valores, errores), 0);
  ASSERT_EQ(valores.AsArray().UBound(), 17);
  EXPECT_EQ(valores(11), Variant("20005")) << "CP: the province's two digits and the last three";
  EXPECT_EQ(imp_.importDte(line, valores, errores), 1) << "its NIF is known";
  EXPECT_EQ(valores(0), Variant(test::Rows(mod_, "SELECT coddec FROM TDeclarante")[0][0].AsLong()));
  EXPECT_EQ(imp_.importDte(line.substr(0, 60), valores, errores), 3);
  EXPECT_EQ(test::ErrorList(errores), (Errors{{4, ""}, {6, ""}, {6, ""}, {7, ""}}))
      << "an address cut after the street";
  EXPECT_EQ(Count("TDeclarante"), 1);
  EXPECT_EQ(Count("TDeclaraciones"), 0);
}

TEST_F(ImpExpTest, ByNameTheArgumentsComeBackAsTheMethodLeftThem) {
  auto imp = CreateObject("zerbal.cImpExp");
  imp->Let("mdbmod", mod_);
  imp->Let("mdblec", lec_);
  imp->Let("EjercicioMin", 2002);
  imp->Let("EjercicioMax", 2014);
  std::vector<Variant> args{test::LineaDeclarante(), Variant(), Variant()};
  EXPECT_EQ(imp->Call("ImportarDte_Cion", args), Variant(uint8_t{0}));
  ASSERT_TRUE(args[1].IsArray());
  EXPECT_EQ(args[1].AsArray().UBound(), 18);
  EXPECT_EQ(args[1](18), Variant("2014"));
  EXPECT_EQ(args[2](0, 0), Variant()) << "no error";

  std::vector<Variant> line{"2347" + std::string(10, ' ') + "è", Variant(), false};
  imp->Call("importSpte", line);
  EXPECT_EQ(test::ErrorList(line[1]), (Errors{{47, "è"}}));
  EXPECT_EQ(imp->Get("Sujeto"), Variant(uint8_t{3}));
  EXPECT_EQ(VarType(imp->Get("Resultado")), 17) << "a Byte";
}

}  // namespace
}  // namespace zerbal
