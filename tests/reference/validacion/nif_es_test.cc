// Spanish NIF in stored form and as people write it.

#include <string>

#include <gtest/gtest.h>

#include "reference/validacion/validacion.h"

namespace zerbal::validacion {
namespace {

struct Case {
  std::string text;
  bool sin_letra;
  bool valid;
};

void ExpectAll(std::initializer_list<Case> cases) {
  for (const Case& c : cases) {
    EXPECT_EQ(ValidaNifCif(c.text, c.sin_letra), c.valid)
        << "\"" << c.text << "\" sin_letra=" << c.sin_letra;
  }
}

TEST(NifEsTest, PersonalKinds) {
  ExpectAll({
      // X, Y, Z stand for 0, 1, 2 (X5277343Q, Y5277343F, Z5277343K are among the vectors).
      {"54362315k", false, true},  {"Y5277343Q", false, false}, {"x2482300w", false, true},
      {"x2482300a", false, false}, {"M1234567L", false, true},  {"K2814015F", false, false},
      // A K/L/M number carrying an entity control digit is not an entity.
      {"M12345674", false, false},
  });
}

// For every organisation letter the control may be the digit or its letter.
TEST(NifEsTest, EntityControlDigitOrLetter) {
  for (char org : std::string("ABCDEFGHJNPQRSUVW")) {
    const std::string body = std::string(1, org) + "1358562";  // Control value 5.
    ExpectAll({{body + "5", false, true},
               {body + "E", false, true},
               {body + "6", false, false},
               {body + "F", false, false},
               {body + "e", false, true}});
    // Control value 0 is written 0 or J.
    const std::string zero = std::string(1, org) + "1000004";
    ExpectAll({{zero + "0", false, true}, {zero + "J", false, true}, {zero + "A", false, false}});
  }
}

TEST(NifEsTest, BadShapes) {
  ExpectAll({
      {"", false, false},           {"", true, false},           {"I13585625", false, false},
      {"A1358562", false, false},
      {"A13585625 ", false, false}, {"A135856250", false, false}, {"A13X85625", false, false},
      {"5436231K", false, false},   {"543623150", false, false}, {"54362315\xC3", false, false},
      {"\xC3\x91" "1358562E", false, false}, {std::string(100000, '5'), false, false},
  });
}

TEST(NifEsTest, WithoutControlCharacter) {
  ExpectAll({
      {"54362315", true, true},   {"X2482300", true, true},
      {"M1234567", true, true},   {"A1358562", true, true},   {"Q0818001", true, true},
      {"I1358562", true, false},  {"5436231", true, false},   {"X248230A", true, false},
      {"A135856X", true, false},  {"54362315K", true, true},  {"54362315Z", true, false},
      {"A13585626", true, false}, {"X2482300W", true, true},
  });
}

TEST(NifEsTest, AsWritten) {
  const struct {
    std::string text;
    bool valid;
  } cases[] = {
      {"54.362.315-K", true},   {" 54362315/k\t", true}, {"ES 54362315K", true},
      {"es-x-2482300-w", true}, {"ESES54362315K", false}, {"ES", false},
      {"54362315 K ES", false}, {"54362315\tK", false},  {"", false},
      {"DE136695976", false},   {"54362315K,", false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ValidarNifEscrito(c.text), c.valid) << "\"" << c.text << "\"";
  }
}

}  // namespace
}  // namespace zerbal::validacion
