// The special rules of each country that the collected vectors do not show,
// one row per rule and boundary.

#include <string>

#include <gtest/gtest.h>

#include "reference/validacion/validacion.h"

namespace zerbal::validacion {
namespace {

struct Row {
  const char* text;
  bool valid;
  const char* rule;
};

constexpr Row kRows[] = {
    {"AT13585627", false, "AT without U"},
    {"BE (1)468.561.072", false, "BE only (0) is read"},
    {"BE2000021323", false, "BE first digit 2, congruence holds"},
    {"BE0000000000", false, "BE all zeros"},
    {"BG 131272420", true, "BG second weights give 10, read 0"},
    {"BG8002290006", true, "BG EGN 29 Feb 1980"},
    {"BG8002300001", false, "BG EGN 30 Feb, other checks fail"},
    {"BG7153849522", true, "BG other number"},
    {"CY 12259033R", false, "CY never 12, letter right"},
    {"CZ 25123840", true, "CZ 8 digits, r 1 gives 0"},
    {"CZ 95123890", false, "CZ 8 digits starting 9, check right"},
    {"CZ 7652046248", true, "CZ birth number, woman +50"},
    {"CZ 7122151234", true, "CZ birth number, overflow +20"},
    {"CZ 7172151239", true, "CZ birth number, woman overflow +70"},
    {"CZ 991231123", true, "CZ 9-digit birth number of 1899"},
    {"CZ 590312123", false, "CZ 9-digit birth number, YY 54-79"},
    {"CZ 000229123", false, "CZ 9-digit birth number, 1900 not leap"},
    {"CZ 040229123", true, "CZ 9-digit birth number, 1904 leap"},
    {"CZ 0002291234", true, "CZ 10-digit birth number, 29 Feb 2000"},
    {"DE011125440", false, "DE first digit 0"},
    {"DE011125448", false, "DE first digit 0, check right"},
    {"DK 01000004", false, "DK first digit 0, check right"},
    {"FR64954506078", false, "FR old key right, SIREN fails Luhn"},
    {"FR4Z123456782", true, "FR new key, digit first"},
    {"FR24000047372", false, "FR Monaco, wrong key"},
    {"FRIO334175221", false, "FR I and O are not key characters"},
    {"FR329545060775", false, "FR 10-digit SIREN"},
    {"IE 6433435FA", false, "IE ninth letter ignored"},
    {"IE6433435OX", false, "IE ninth letter beyond W, check right"},
    {"IE 6433435FAA", false, "IE 10 characters"},
    {"IE8+79739I", true, "IE old layout with +"},
    {"IE8?79739J", false, "IE bad second character"},
    {"IT 01234561205", true, "IT office 120"},
    {"IT 01234561213", true, "IT office 121"},
    {"IT 01234568887", true, "IT office 888"},
    {"IT 01234569992", true, "IT office 999"},
    {"IT 01234561007", true, "IT office 100"},
    {"IT 01234561015", false, "IT office 101"},
    {"IT 01234560009", false, "IT office 000"},
    {"IT 00000000018", false, "IT company number zero"},
    {"LT 119511522", false, "LT 9 digits, eighth not 1, check right"},
    {"LT 100001919029", false, "LT 12 digits, eleventh not 1, check right"},
    {"LU 10003600", true, "LU remainder 0 written 00"},
    {"LU 1000360", false, "LU 7 digits"},
    {"LV32867300679", true, "LV personal code without date"},
    {"LV16117519997", true, "LV personal code with date"},
    {"LV16137519997", false, "LV month 13"},
    {"LV29020012340", false, "LV 29 Feb 1900"},
    {"LV29020022346", true, "LV 29 Feb 2000"},
    {"NL001000078B01", true, "NL mod 97 only"},
    {"NL000000000B01", false, "NL all zeros"},
    {"NL 8067537420B01", false, "NL 10 digits before B"},
    {"MT 01000033", false, "MT first digit 0, check right"},
    {"PL 1234567080", false, "PL remainder 10"},
    {"PT 500000050", true, "PT remainder 0 gives 0"},
    {"PT 500000140", true, "PT remainder 1 gives 0"},
    {"PT 010000003", false, "PT first digit 0, check right"},
    {"RO19", true, "RO 2 digits"},
    {"RO 1234567897", true, "RO 10 digits"},
    {"RO 0185472", false, "RO leading 0"},
    {"RO 1630615703451", true, "RO CNP county 70"},
    {"RO 1630615493451", false, "RO CNP county 49"},
    {"RO 1630230123451", false, "RO CNP 30 Feb"},
    {"RO 5000229123453", true, "RO CNP 29 Feb 2000"},
    {"RO 9900229123458", false, "RO CNP 29 Feb 1990"},
    {"RO 12345678901", false, "RO 11 digits"},
    {"SE 123456789702", false, "SE suffix not 01"},
    {"SI 50223020", true, "SI k = 10 gives 0"},
    {"SI 50223021", false, "SI k = 10 never 1"},
    {"SI 50223070", false, "SI k = 11, 0"},
    {"SI 50223071", false, "SI k = 11, 1"},
    {"SI 01000004", false, "SI first digit 0, check right"},
    {"SK 7103192745", true, "SK birth number"},
    {"SK 2023990001", true, "SK fallback, third digit 2"},
    {"SK 2013990000", false, "SK fallback, third digit 1, mod 11 holds"},
    {"SK 2053990004", false, "SK fallback, third digit 5, mod 11 holds"},
    {"SK 0123990009", false, "SK fallback, first digit 0, mod 11 holds"},
    {"XI 100190874", true, "XI remainder 42 from 100"},
    {"XI 100000047", true, "XI remainder 55 from 100"},
    {"XI 000000042", false, "XI remainder 42 below 100"},
    {"XI 000001094", true, "XI remainder 0 below 100"},
    {"XI 242338087388", true, "XI branch"},
    {"XIGD100", true, "XI government department"},
    {"XIGD500", false, "XI GD from 500"},
    {"XIHA501", true, "XI health authority"},
    {"XIHA499", false, "XI HA below 500"},
    {"XI GD888810003", true, "XI GD 11 characters"},
    {"XI HA888856782", true, "XI HA 11 characters"},
    {"XI GD888810004", false, "XI GD 11 characters, wrong check"},
    {"XI GD123410003", false, "XI GD 11 characters without 8888"},
};

TEST(VatCountriesTest, SpecialRules) {
  for (const Row& row : kRows) {
    EXPECT_EQ(ValidarVat(row.text), row.valid) << row.text << " (" << row.rule << ")";
  }
}

}  // namespace
}  // namespace zerbal::validacion
