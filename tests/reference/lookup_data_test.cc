// The reference data shipped in the lookup database agree with the country
// table of the conversions and are complete in both languages.

#include <cctype>
#include <map>
#include <set>

#include "base/convert.h"
#include "reference/country_codes.h"
#include "reference/general.h"
#include "testutil.h"

namespace zerbal {
namespace {

using Rows = std::vector<std::vector<Variant>>;

class LookupDataTest : public test::DatabaseTest {
 protected:
  // column 0 -> (column 1, column 2), failing on a duplicate or blank.
  std::map<std::string, std::pair<std::string, std::string>> Table(const std::string& sql) {
    std::map<std::string, std::pair<std::string, std::string>> table;
    for (const auto& row : test::Rows(lec_, sql)) {
      const std::string code = CStr(row[0]);
      EXPECT_FALSE(table.count(code)) << "duplicate code " << code << " in " << sql;
      for (int c : {1, 2}) {
        EXPECT_FALSE(Trim(CStr(row[c])).empty()) << "blank name for " << code << " in " << sql;
      }
      table[code] = {CStr(row[1]), CStr(row[2])};
    }
    return table;
  }
};

TEST_F(LookupDataTest, CountriesAgreeWithTheConversionTable) {
  const auto by_number = Table("SELECT codigo, PAISCAS, PAISEUS FROM TPaises");
  const auto by_letters = Table("SELECT SIGLASPAIS, PAIS, paiseus FROM TSiglasPais");
  EXPECT_EQ(by_number.size(), CountryCodes().size());
  EXPECT_EQ(by_letters.size(), CountryCodes().size());
  for (const CountryCode& row : CountryCodes()) {
    const std::string number = std::to_string(row.number);
    const std::string letters(row.letters);
    ASSERT_TRUE(by_number.count(number)) << number;
    ASSERT_TRUE(by_letters.count(letters)) << letters;
    EXPECT_EQ(by_number.at(number), by_letters.at(letters)) << letters << " and " << number;
    EXPECT_EQ(General::CodigoPais(number, 0), letters);
    EXPECT_EQ(General::CodigoPais(letters, 1), number);
  }
}

TEST_F(LookupDataTest, ProvincesKeysStreetTypesAndAddresses) {
  const auto provinces = Table("SELECT PRO_ID, PRO_CAS, PRO_EUS FROM TPROVINCIAS");
  ASSERT_EQ(provinces.size(), 52u);
  for (int code = 1; code <= 52; ++code) {
    EXPECT_TRUE(provinces.count(Format(code, "00"))) << code;
  }
  const auto keys = Table("SELECT codigo, descripcionc, descripcione FROM TOperaciones");
  EXPECT_EQ(keys.size(), 7u);
  for (const char* key : {"A", "B", "C", "D", "E", "F", "G"}) EXPECT_TRUE(keys.count(key)) << key;
  const auto street_types = Table("SELECT codigo, CAS, EUS FROM TSIGLASVIA");
  EXPECT_GE(street_types.size(), 20u);
  for (const auto& [code, names] : street_types) {
    // The files carry the street type in two positions.
    EXPECT_TRUE(code.size() == 2 && std::isupper(code[0]) && std::isupper(code[1])) << code;
  }
  EXPECT_GE(Table("SELECT URLAct, Descripcion, Descripcion FROM tgeneral").size(), 2u);
}

}  // namespace
}  // namespace zerbal
