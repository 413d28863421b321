// Every collected identifier: each valid one passes, each invalid one fails.

#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "reference/validacion/validacion.h"

namespace zerbal::validacion {
namespace {

// Calls `check(text, where)` for each identifier of the file (without the
// kind that follows a tab in the ES files).
template <typename F>
void ForEachVector(const std::string& name, F check) {
  std::ifstream file(std::string(ZERBAL_VALIDACION_DATA) + "/" + name);
  EXPECT_TRUE(file.is_open()) << name;
  int count = 0;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    line = line.substr(0, line.find('\t'));
    if (line.empty()) continue;
    check(line, name + ":" + std::to_string(number) + " " + line);
    ++count;
  }
  EXPECT_GT(count, 0) << name;
}

// Identifiers already in stored form must give the same verdict directly.
TEST(VectorsTest, Spanish) {
  int stored = 0;
  for (const bool valid : {true, false}) {
    ForEachVector(valid ? "es_nif_valid.txt" : "es_nif_invalid.txt",
                  [&](const std::string& text, const std::string& where) {
                    EXPECT_EQ(ValidarNifEscrito(text), valid) << where;
                    if (text.find_first_of(" -./") != std::string::npos) return;
                    EXPECT_EQ(ValidaNifCif(text, false), valid) << where;
                    ++stored;
                  });
  }
  EXPECT_GT(stored, 500);
}

// The number is checked by its own prefix, and by the country code argument.
TEST(VectorsTest, Vat) {
  for (const bool valid : {true, false}) {
    ForEachVector(valid ? "eu_vat_valid.txt" : "eu_vat_invalid.txt",
                  [&](const std::string& text, const std::string& where) {
                    EXPECT_EQ(ValidarVat(text), valid) << where;
                    EXPECT_EQ(ValidarForeignNif(text, text.substr(0, 2)), valid) << where;
                  });
  }
}

// A byte outside ASCII is never a digit, letter or separator.
TEST(VectorsTest, ANonAsciiByteInvalidatesAValidVat) {
  ForEachVector("eu_vat_valid.txt", [](const std::string& text, const std::string& where) {
    for (size_t i = 0; i < text.size(); i += 3) {
      std::string bad = text;
      bad[i] = '\xA0';
      EXPECT_FALSE(ValidarVat(bad)) << where << " with byte " << i;
    }
  });
}

}  // namespace
}  // namespace zerbal::validacion
