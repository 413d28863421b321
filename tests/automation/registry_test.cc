#include "zerbal/automation.h"

#include "testutil.h"

namespace zerbal {
namespace {

Variant CallWith(AutomationObject& obj, std::string_view name, std::vector<Variant> args) {
  return obj.Call(name, args);
}

TEST(RegistryTest, ClassesAreCreatedByNameInAnyCase) {
  EXPECT_EQ(CreateObject("Brevandol.cMiscelaneos")->ClassName(), "Brevandol.cMiscelaneos");
  EXPECT_NE(CreateObject("BREVANDOL.CMISCELANEOS"), nullptr);
  EXPECT_RAISES(CreateObject("Brevandol.cNada"), errc::kCannotCreateObject);
  EXPECT_RAISES(CreateObject(""), errc::kCannotCreateObject);
}

TEST(RegistryTest, TheValidationComponentAnswersByName) {
  auto component = CreateObject("Brevandol.cMiscelaneos");
  const struct {
    const char* method;
    std::vector<Variant> args;
    bool valid;
  } rows[] = {
      {"ValidaNifCif", {"54362315K", false}, true},
      {"ValidaNifCif", {"54362315Z", false}, false},
      {"ValidaNifCif", {"54362315", true}, true},
      {"ValidaNifCif", {"54362315"}, false},
      {"validanifcif", {"B64717838", "0"}, true},
      {"ValidarForeignNIf", {"DE136695976", "DE"}, true},
      {"ValidarForeignNIf", {"136695976", "de"}, true},
      {"ValidarForeignNIf", {"136695976", "FR"}, false},
      {"ValidarForeignNIf", {"094259216", "GR"}, true},
      {"ValidarForeignNIf", {"124567", "QQ"}, false},
  };
  for (const auto& row : rows) {
    const Variant answer = CallWith(*component, row.method, row.args);
    EXPECT_EQ(answer, Variant(row.valid)) << row.method << " " << DebugString(row.args[0]);
  }
}

}  // namespace
}  // namespace zerbal
