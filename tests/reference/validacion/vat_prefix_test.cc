// Prefixes, country codes, separators and hostile input.

#include <string>

#include <gtest/gtest.h>

#include "reference/validacion/validacion.h"

namespace zerbal::validacion {
namespace {

TEST(VatPrefixTest, CountryArgument) {
  const struct {
    const char* text;
    const char* country;
    bool valid;
  } cases[] = {
      {"136695976", "DE", true},       {"\t136695976\r\n", "DE", true},
      {"de 136695976", "de", true},    {"DE DE 136695976", "DE", false},
      {"DE136695976", "AT", false},    {"136695976", "AT", false},
      {"094259216", "GR", true},       {"EL094259216", "GR", true},
      {"GR 094259216", "EL", true},    {"EL GR 094259216", "EL", false},
      {"54362315K", "ES", true},       {"ES-54362315-K", "ES", true},
      {"ES ES 54362315K", "ES", false}, {"ES 54.362.315K", "ES", false},
      {"980780684", "XI", true},       {"980780684", "GB", false},
      {"136695976", "XX", false},      {"136695976", "", false},
      {"136695976", "D", false},       {"136695976", "DEU", false},
      // A key of "FR" is read as the key when the number is otherwise too short.
      {"FR100000009", "FR", true},     {"FR FR100000009", "FR", true},
      {"", "DE", false},               {"DE", "DE", false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ValidarForeignNif(c.text, c.country), c.valid) << c.text << " as " << c.country;
  }
}

TEST(VatPrefixTest, PrefixChoosesCountry) {
  const struct {
    const char* text;
    bool valid;
  } cases[] = {
      {"136695976", false},      {"GR 094259216", true}, {" \tDE 136695976\r\n", true},
      {"EU 372022452", false},   {"GB 980780684", false}, {"", false},
      {"D", false},              {"FR100000009", false},
  };
  for (const auto& c : cases) EXPECT_EQ(ValidarVat(c.text), c.valid) << c.text;
}

TEST(VatPrefixTest, VeryLongInput) {
  EXPECT_TRUE(ValidarVat("DE 136" + std::string(100000, ' ') + "695976"));
  EXPECT_FALSE(ValidarVat("DE " + std::string(100000, '1')));
  EXPECT_FALSE(ValidarForeignNif(std::string(100000, 'X'), "XI"));
  EXPECT_FALSE(ValidarVat(std::string(100000, '\xFF')));
}

}  // namespace
}  // namespace zerbal::validacion
