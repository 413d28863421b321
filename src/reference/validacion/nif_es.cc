// Spanish NIF: DNI, NIE, K/L/M and entity NIF, and the ES VAT number built on it.

#include <array>

#include "reference/validacion/digits.h"
#include "reference/validacion/normalize.h"
#include "reference/validacion/validacion.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

constexpr std::string_view kPersonalLetters = "TRWAGMYFPDXBNJZSQVHLCKE";
constexpr std::string_view kOrganisationLetters = "ABCDEFGHJNPQRSUVW";
// Letter form of the entity control value 0..9.
constexpr std::string_view kEntityControlLetters = "JABCDEFGHI";

enum class Kind { kNone, kDni, kNie, kSpecial, kEntity };

Kind KindOf(char first) {
  if (IsDigit(first)) return Kind::kDni;
  if (first == 'X' || first == 'Y' || first == 'Z') return Kind::kNie;
  if (first == 'K' || first == 'L' || first == 'M') return Kind::kSpecial;
  if (kOrganisationLetters.find(first) != std::string_view::npos) return Kind::kEntity;
  return Kind::kNone;
}

char PersonalLetter(uint64_t number) { return kPersonalLetters[number % 23]; }

// `id` is 9 upper-case characters whose 2nd to 8th are digits.
bool ControlMatches(Kind kind, std::string_view id) {
  const char control = id[8];
  const uint64_t seven = ToNumber(id.substr(1, 7));
  switch (kind) {
    case Kind::kDni:
      return control == PersonalLetter(ToNumber(id.substr(0, 8)));
    case Kind::kNie:
      // X, Y, Z stand for a leading 0, 1, 2.
      return control == PersonalLetter((id[0] - 'X') * 10000000ULL + seven);
    case Kind::kSpecial:
      return control == PersonalLetter(seven);
    case Kind::kEntity: {
      const int k = LuhnCheckDigit(id.substr(1, 7));
      return control == '0' + k || control == kEntityControlLetters[k];
    }
    case Kind::kNone:
      break;
  }
  return false;
}

}  // namespace

bool ValidaNifCif(std::string_view text, bool sin_letra) {
  if (text.size() != 9 && !(sin_letra && text.size() == 8)) return false;
  std::array<char, 9> buffer{};
  const size_t size = text.copy(buffer.data(), buffer.size());
  for (char& c : buffer) c = ToUpperAscii(c);
  const std::string_view id(buffer.data(), size);
  const Kind kind = KindOf(id[0]);
  if (kind == Kind::kNone || !AllDigits(id.substr(1, 7))) return false;
  if (id.size() == 8) return true;  // Without control character: nothing to check.
  return ControlMatches(kind, id);
}

bool ValidarNifEscrito(std::string_view text) {
  std::string compact = Compact(TrimSpace(text), " .-/");
  std::string_view id = compact;
  // No NIF begins with "ES": its second character is always a digit.
  if (id.starts_with("ES")) id.remove_prefix(2);
  return ValidaNifCif(id, false);
}

bool CheckES(std::string_view body) { return ValidaNifCif(body, false); }

}  // namespace zerbal::validacion
