// Values that break out of their apostrophes, in the fields that the system
// puts into SQL without protecting them, are refused with 3075 and change
// nothing; they never run as an altered statement.

#include <chrono>

#include "testutil.h"
#include "zerbal/datos_generales.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarante.h"

namespace zerbal {
namespace {

class InjectionTest : public test::DatabaseTest {
 protected:
  InjectionTest() {
    for (auto* c : std::initializer_list<PathProperties*>{&declarante_, &declaraciones_, &datos_}) {
      c->mdbmod(mod_);
      c->mdblec(lec_);
    }
    code_ = declarante_.GuardarDeclarante(test::PersonBuffer(0, "12345678Z", "Irizar"));
    declarante_.GuardarDeclarante(test::PersonBuffer(0, "87654321X", "Arana"));
    declaracion_ = declaraciones_.GuardarDeclaracion(2015, "E", code_);
  }
  // Every row of every table of the data database.
  std::vector<std::vector<Variant>> Everything() {
    std::vector<std::vector<Variant>> all;
    for (const char* table : {"TDeclarante", "TDeclaraciones", "tOperadores", "tArrendamientos",
                              "TPresentador", "tGeneral"}) {
      for (auto& row : test::Rows(mod_, std::string("SELECT * FROM ") + table)) {
        all.push_back(std::move(row));
      }
    }
    return all;
  }
  cDeclarante declarante_;
  cDeclaraciones declaraciones_;
  cDatosGenerales datos_;
  int32_t code_ = 0;
  int32_t declaracion_ = 0;
};

TEST_F(InjectionTest, EveryAttemptIsRefusedAndChangesNothing) {
  const auto telephone = [&](const char* value) {
    return [&, value] {
      Variant buffer = test::PersonBuffer(code_, "12345678Z", "Irizar");
      buffer(14) = value;
      declarante_.GuardarDeclarante(buffer);
    };
  };
  const struct {
    const char* name;
    std::function<void()> attempt;
  } rows[] = {
      {"telephone rewriting every declarant",
       telephone("1', nombred='PWNED', dni_cifd='00000000T' WHERE 1=1 --")},
      {"telephone with a blob", telephone("1' || x'41' || '")},
      {"currency adding declarations",
       [&] { declaraciones_.GuardarDeclaracion(2016, "E'), (2, 2099, 'E') --", code_); }},
      {"currency moving every declaration",
       [&] {
         // A failed copy keeps the copy of the row written before the failing
         // statement, as any failed copy does; that row is let go here.
         const auto cleanup = [&] { test::Exec(mod_, "DELETE FROM TDeclaraciones WHERE coddecla > 1"); };
         try {
           declaraciones_.DuplicarDeclaracion(2015, 2016, "E' WHERE 1=1 --", declaracion_);
         } catch (...) {
           cleanup();
           throw;
         }
       }},
      {"language changing the update setting",
       [&] { datos_.CambiarIdioma("C', ActOnline = 7 --"); }},
      {"identifier answering a chosen key",
       [&] { EXPECT_NE(declarante_.NifRepetido("zz' UNION SELECT 4242 --"), 4242); }},
      {"street type reading the catalogue",
       [&] { datos_.ObtenerDescriVia("x' UNION SELECT name FROM sqlite_schema WHERE 'a' = 'a", 0); }},
      {"identifier with a recursive query",
       [&] {
         declarante_.NifRepetido(
             "x' OR coddec IN (WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c) "
             "SELECT n FROM c) OR 'a' = 'a");
       }},
      {"identifier joining texts the engine's way",
       [&] { declarante_.NifRepetido("zz' || '"); }},
  };
  const auto before = Everything();
  for (const auto& row : rows) {
    const auto started = std::chrono::steady_clock::now();
    const auto error = test::ErrorOf(row.attempt);
    ASSERT_TRUE(error) << row.name << ": ran";
    EXPECT_EQ(error->Number(), 3075) << row.name << ": " << error->Description();
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(5)) << row.name;
    EXPECT_EQ(Everything(), before) << row.name;
  }
}

}  // namespace
}  // namespace zerbal
