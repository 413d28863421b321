// France: two key characters + SIREN (9 digits). Old keys are two digits,
// new keys hold at least one letter of the alphabet 0-9 A-Z without I and O.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

constexpr std::string_view kKeyAlphabet = "0123456789ABCDEFGHJKLMNPQRSTUVWXYZ";

// Number of a key character in the alphabet; -1 when it is not in it.
int KeyValue(char c) {
  const size_t pos = kKeyAlphabet.find(c);
  return pos == std::string_view::npos ? -1 : static_cast<int>(pos);
}

bool KeyMatches(char c1, char c2, uint64_t siren) {
  const int v1 = KeyValue(c1);
  const int v2 = KeyValue(c2);
  if (v1 < 0 || v2 < 0) return false;
  if (IsDigit(c1) && IsDigit(c2)) {
    return static_cast<uint64_t>(v1 * 10 + v2) == (siren * 100 + 12) % 97;
  }
  const int c = IsDigit(c1) ? 24 * v1 + v2 - 10 : 34 * v1 + v2 - 100;
  return static_cast<int>((siren + 1 + c / 11) % 11) == c % 11;
}

}  // namespace

bool CheckFR(std::string_view body) {
  if (body.size() != 11) return false;
  const std::string_view siren = body.substr(2);
  if (!AllDigits(siren)) return false;
  // Monaco registrations (SIREN beginning 000) carry no Luhn digit.
  if (!siren.starts_with("000") && !PassesLuhn(siren)) return false;
  return KeyMatches(body[0], body[1], ToNumber(siren));
}

}  // namespace zerbal::validacion
