// Every collected identifier: each valid one passes, each invalid one fails.

#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reference/validacion/validacion.h"

namespace zerbal::validacion {
namespace {

struct Vector {
  int line;
  std::string text;  // Without the kind that follows a tab in the ES files.
};

std::vector<Vector> Load(const std::string& name) {
  std::ifstream file(std::string(ZERBAL_VALIDACION_DATA) + "/" + name);
  EXPECT_TRUE(file.is_open()) << name;
  std::vector<Vector> vectors;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    line = line.substr(0, line.find('\t'));
    if (!line.empty()) vectors.push_back({number, line});
  }
  EXPECT_FALSE(vectors.empty()) << name;
  return vectors;
}

TEST(VectorsTest, SpanishValid) {
  for (const Vector& v : Load("es_nif_valid.txt")) {
    EXPECT_TRUE(ValidarNifEscrito(v.text)) << "es_nif_valid.txt:" << v.line << " " << v.text;
  }
}

TEST(VectorsTest, SpanishInvalid) {
  for (const Vector& v : Load("es_nif_invalid.txt")) {
    EXPECT_FALSE(ValidarNifEscrito(v.text)) << "es_nif_invalid.txt:" << v.line << " " << v.text;
  }
}

// Identifiers already in stored form must give the same verdict directly.
TEST(VectorsTest, SpanishStoredFormAgrees) {
  int checked = 0;
  for (const char* name : {"es_nif_valid.txt", "es_nif_invalid.txt"}) {
    for (const Vector& v : Load(name)) {
      if (v.text.find_first_of(" -./") != std::string::npos) continue;
      EXPECT_EQ(ValidaNifCif(v.text, false), ValidarNifEscrito(v.text)) << name << ":" << v.line;
      ++checked;
    }
  }
  EXPECT_GT(checked, 500);
}

// The number is checked by its own prefix, and by the country code argument.
TEST(VectorsTest, VatValid) {
  for (const Vector& v : Load("eu_vat_valid.txt")) {
    EXPECT_TRUE(ValidarVat(v.text)) << "eu_vat_valid.txt:" << v.line << " " << v.text;
    const std::string country = v.text.substr(0, 2);
    EXPECT_TRUE(ValidarForeignNif(v.text, country)) << "eu_vat_valid.txt:" << v.line;
  }
}

TEST(VectorsTest, VatInvalid) {
  for (const Vector& v : Load("eu_vat_invalid.txt")) {
    EXPECT_FALSE(ValidarVat(v.text)) << "eu_vat_invalid.txt:" << v.line << " " << v.text;
    const std::string country = v.text.substr(0, 2);
    EXPECT_FALSE(ValidarForeignNif(v.text, country)) << "eu_vat_invalid.txt:" << v.line;
  }
}

}  // namespace
}  // namespace zerbal::validacion
