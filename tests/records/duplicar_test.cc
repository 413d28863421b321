// The copy of a declaration's operations and rentals into another year.

#include "base/convert.h"
#include "data/open.h"
#include "records/arrendamientos/t_arrendamientos.h"
#include "records/declarados/t_declarados.h"
#include "testutil.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/declarado.h"

namespace zerbal {
namespace {

using records::cTArrendamientos;
using records::cTDeclarados;
using Rows = std::vector<std::vector<Variant>>;

// An operation of declaration `decl`: importe 1000, impmet 200, impinm 300,
// quarters 11-14 and 21-24, cash year 2010, no 2014 values.
Variant Operacion(int32_t decl, const std::string& key = "A", double amount = 1000) {
  return test::Buffer({0, decl, 20, "", "B20456786", "Zubia D'Arrieta", key, amount, 200.0, 300.0,
                       "", "", "", 11.0, 12.0, 13.0, 14.0, 21.0, 22.0, 23.0, 24.0, 2010, "", "", "",
                       "", "", 0.0});
}

class DuplicarTest : public test::DatabaseTest {
 protected:
  DuplicarTest() {
    declarado_.mdbmod(mod_);
    arrendamiento_.mdbmod(mod_);
  }

  void CopyOperations(int32_t from, int32_t to, int32_t yo, int32_t yd) {
    OpenDataDatabase(mod_);
    cTDeclarados().DuplicarDeclarados(to, from, yo, yd);
    Conexion().Cerrar();
  }
  void CopyRentals(int32_t from, int32_t to, int32_t yd) {
    OpenDataDatabase(mod_);
    cTArrendamientos().DuplicarArrendamientos(to, from, yd);
    Conexion().Cerrar();
  }
  Rows Operations(int32_t decl, const std::string& columns) {
    return test::Rows(mod_, "SELECT " + columns + " FROM tOperadores WHERE coddeclar = " +
                                std::to_string(decl) + " ORDER BY codope");
  }

  cDeclarado declarado_;
  cArrendamiento arrendamiento_;
};

// impmet, impinm, impopeT1-4, impmobT1-4, ejerimpmet as written by a copy of
// the row of Operacion().
using Amounts = std::array<double, 11>;
constexpr Amounts kAll = {200, 300, 11, 12, 13, 14, 21, 22, 23, 24, 2010};
constexpr Amounts kRealEstateAndQ4 = {0, 300, 0, 0, 0, 1000, 0, 0, 0, 300, 0};
constexpr Amounts kQ4 = {0, 0, 0, 0, 0, 1000, 0, 0, 0, 0, 0};
constexpr Amounts kCashAndRealEstate = {200, 300, 0, 0, 0, 0, 0, 0, 0, 0, 0};
constexpr Amounts kNone = {};

TEST_F(DuplicarTest, AmountsFollowTheYearsOfSourceAndDestination) {
  struct Case {
    const char* name;
    int32_t yo, yd;
    const Amounts& expected;
  };
  // Both sides of each bound of the years' rules.
  const Case cases[] = {
      {"2011 into 2014: all copied", 2011, 2014, kAll},
      {"2010 into 2014: none", 2010, 2014, kNone},
      {"2008 into 2014: none", 2008, 2014, kNone},
      {"2011 into 2013: real estate, fourth quarter", 2011, 2013, kRealEstateAndQ4},
      {"2008 into 2011: real estate, fourth quarter", 2008, 2011, kRealEstateAndQ4},
      {"2008 into 2010: none", 2008, 2010, kNone},
      {"2007 into 2011: fourth quarter only", 2007, 2011, kQ4},
      {"2007 into 2014: fourth quarter only", 2007, 2014, kQ4},
      {"2007 into 2010: none", 2007, 2010, kNone},
      // Into an earlier year.
      {"2011 into 2010: cash and real estate", 2011, 2010, kCashAndRealEstate},
      {"2012 into 2011: all copied", 2012, 2011, kAll},
  };
  int32_t decl = 0;
  for (const Case& c : cases) {
    decl += 2;
    declarado_.GuardarDeclarado(Operacion(decl));
    CopyOperations(decl, decl + 1, c.yo, c.yd);
    const Rows copied = Operations(
        decl + 1, "importe, impmet, impinm, impopeT1, impopeT2, impopeT3, impopeT4, impmobT1, "
                  "impmobT2, impmobT3, impmobT4, ejerimpmet");
    ASSERT_EQ(copied.size(), 1u) << c.name;
    EXPECT_EQ(CDbl(copied[0][0]), 1000) << c.name << ": importe";
    for (size_t i = 0; i < c.expected.size(); ++i) {
      EXPECT_EQ(CDbl(copied[0][i + 1]), c.expected[i]) << c.name << ", amount " << i;
    }
  }
}

TEST_F(DuplicarTest, RowsLeftOutOfEarlierYears) {
  struct Case {
    const char* name;
    int32_t yo, yd;
    const char* key;
    double amount;
    int32_t element;  // a 2014 column of the save buffer (0: none)
    Variant value;
    bool copied;
  };
  const Case cases[] = {
      {"key F into 2007", 2009, 2007, "F", 1000, 0, {}, false},
      {"key G into 2007", 2009, 2007, "G", 1000, 0, {}, false},
      {"key A into 2007", 2009, 2007, "A", 1000, 0, {}, true},
      {"key F from 2013 into 2007", 2013, 2007, "F", 1000, 0, {}, false},
      {"key F from 2014 into 2007", 2014, 2007, "F", 1000, 0, {}, true},
      {"key F into 2008", 2009, 2008, "F", 1000, 0, {}, true},
      {"negative into 2010", 2011, 2010, "A", -5, 0, {}, false},
      {"negative into 2011", 2012, 2011, "A", -5, 0, {}, true},
      {"key G, negative, into the same year 2007", 2007, 2007, "G", -5, 0, {}, true},
      {"2014 country prefix into 2013", 2014, 2013, "A", 1000, 22, "FR", false},
      {"2014 intra-community number into 2013", 2014, 2013, "A", 1000, 23, "123", false},
      {"2014 cash-basis flag into 2013", 2014, 2013, "A", 1000, 24, "X", false},
      {"2014 reversal flag into 2013", 2014, 2013, "A", 1000, 25, "X", false},
      {"2014 customs flag into 2013", 2014, 2013, "A", 1000, 26, "X", false},
      {"2014 cash-basis amount into 2013", 2014, 2013, "A", 1000, 27, 5.0, false},
      {"2014 negative cash-basis amount into 2013", 2014, 2013, "A", 1000, 27, -5.0, true},
      {"2014 blank flags into 2013", 2014, 2013, "A", 1000, 24, "", true},
      {"2014 country prefix into 2011", 2014, 2011, "A", 1000, 22, "FR", false},
      {"2014 country prefix into 2010", 2014, 2010, "A", 1000, 22, "FR", true},
      {"2015 country prefix into 2013", 2015, 2013, "A", 1000, 22, "FR", true},
  };
  int32_t decl = 0;
  for (const Case& c : cases) {
    decl += 2;
    Variant row = Operacion(decl, c.key, c.amount);
    if (c.element != 0) row(c.element) = c.value;
    declarado_.GuardarDeclarado(row);
    CopyOperations(decl, decl + 1, c.yo, c.yd);
    EXPECT_EQ(Operations(decl + 1, "codope").size(), c.copied ? 1u : 0u) << c.name;
  }
}

TEST_F(DuplicarTest, CountryCodesTakeTheDestinationYearsForm) {
  struct Case {
    const char* name;
    int32_t yo, yd;
    const char* from;
    const char* to;
  };
  const Case cases[] = {
      {"letters into 2007", 2009, 2007, "FR", "1"},
      {"letters and a blank into 2007", 2009, 2007, "FR ", "1"},
      {"lower case into 2007", 2009, 2007, "fr", "fr"},
      {"a number into 2007", 2009, 2007, "4", "4"},
      {"a number into 2007 from the same year", 2007, 2007, "4", "4"},
      {"a number into 2008", 2007, 2008, "4", "DE"},
      {"a number and a blank into 2008", 2007, 2008, "4 ", "4 "},
      {"letters into a later year", 2008, 2009, "FR", "FR"},
      {"a number into earlier 2008", 2009, 2008, "4", "DE"},
      {"a number from 2014 into 2007", 2014, 2007, "4", "DE"},
      {"empty into 2007", 2009, 2007, "", ""},
  };
  int32_t decl = 0;
  for (const Case& c : cases) {
    decl += 2;
    Variant row = Operacion(decl);
    row(3) = c.from;
    declarado_.GuardarDeclarado(row);
    CopyOperations(decl, decl + 1, c.yo, c.yd);
    EXPECT_EQ(Operations(decl + 1, "paiso"), (Rows{{c.to}})) << c.name;
  }
}

TEST_F(DuplicarTest, OperationsAreCopiedAsReadInTheirOrder) {
  Variant first = Operacion(1);
  for (int32_t i : {22, 23, 24, 25, 26}) first(i) = "";  // stored as blanks
  Variant second = Operacion(1, "B", 7);
  second(22) = "FR";
  second(23) = "FR123";
  second(27) = 9.0;
  declarado_.GuardarDeclarado(first);
  declarado_.GuardarDeclarado(second);
  declarado_.GuardarDeclarado(Operacion(5));

  CopyOperations(1, 2, 2014, 2015);
  const std::string columns =
      "coddeclar, provo, nifo, razon, claveopo, claverep, siglaspaisintra, nifpaisintra, "
      "opeivacaja, impanudevopecaj";
  EXPECT_EQ(Operations(2, "codope, " + columns),
            (Rows{{4, 2, 20, "B20456786", "Zubia D´Arrieta", "A", " ", "", "", "", 0.0},
                  {5, 2, 20, "B20456786", "Zubia D´Arrieta", "B", " ", "FR", "FR123", "", 9.0}}))
      << "new keys, the name as stored, 2014 texts trimmed";
  EXPECT_EQ(Operations(1, "codope").size(), 2u) << "the source stays";
  EXPECT_EQ(Operations(5, "codope").size(), 1u);
}

TEST_F(DuplicarTest, AFailedCopyKeepsTheRowsAlreadyWritten) {
  declarado_.GuardarDeclarado(Operacion(1));
  test::Exec(mod_,
             "INSERT INTO tOperadores (coddeclar, provo, nifo, importe, impmet, impinm, impopeT1, "
             "impopeT2, impopeT3, impopeT4, impmobT1, impmobT2, impmobT3, impmobT4, ejerimpmet, "
             "impanudevopecaj) VALUES (1, 20, 'O''Hara', 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0)");
  declarado_.GuardarDeclarado(Operacion(1));
  EXPECT_RAISES(CopyOperations(1, 2, 2013, 2013), errc::kSyntaxError)
      << "an apostrophe stored by other means cannot go into the copy's statement";
  EXPECT_EQ(Operations(2, "codope").size(), 1u);
}

TEST_F(DuplicarTest, RentalsAreCopiedWholeWithTheYearsCountryCode) {
  struct Case {
    const char* name;
    int32_t yd;
    const char* from;
    const char* to;
  };
  const Case cases[] = {
      {"letters into 2007", 2007, "FR", "1"},
      {"a number into 2007", 2007, "4", "4"},
      {"a number into 2008", 2008, "4", "DE"},
      {"letters into 2008", 2008, "FR", "FR"},
  };
  const std::string columns =
      "coddeclar, provi, prova, paiso, nifa, razon, importe, municipioa, refcat, viaa, "
      "domicilioa, numeroa, escaleraa, pisoa, puertaa";
  int32_t decl = 0;
  for (const Case& c : cases) {
    decl += 2;
    for (double amount : {-1234.0, 99999999999.0}) {
      arrendamiento_.GuardarArrendamiento(test::Buffer({0, decl, 48, c.from, "B20456786",
                                                        "D'Elosegi", amount, "Donostia", "RC", "CL",
                                                        "Nagusia", 12, "B", "", "izq", 20}));
    }
    CopyRentals(decl, decl + 1, c.yd);
    const std::string where = " FROM tArrendamientos WHERE coddeclar = ";
    const Rows source = test::Rows(mod_, "SELECT " + columns + where + std::to_string(decl) +
                                             " ORDER BY codarr");
    const Rows copied = test::Rows(mod_, "SELECT " + columns + where +
                                             std::to_string(decl + 1) + " ORDER BY codarr");
    ASSERT_EQ(copied.size(), 2u) << c.name;
    for (size_t r = 0; r < 2; ++r) {
      EXPECT_EQ(copied[r][0], Variant(decl + 1)) << c.name;
      EXPECT_EQ(copied[r][3], Variant(c.to)) << c.name;
      for (size_t col : {1, 2, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}) {
        EXPECT_EQ(copied[r][col], source[r][col]) << c.name << ", row " << r << ", column " << col;
      }
    }
  }
}

}  // namespace
}  // namespace zerbal
