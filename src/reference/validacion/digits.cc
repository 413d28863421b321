#include "reference/validacion/digits.h"

namespace zerbal::validacion {
namespace {

int LuhnTotalFrom(std::string_view digits, bool double_rightmost) {
  int total = 0;
  bool doubled = double_rightmost;
  for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
    int value = Digit(*it);
    if (doubled) {
      value *= 2;
      if (value > 9) value -= 9;
    }
    total += value;
    doubled = !doubled;
  }
  return total;
}

}  // namespace

bool AllDigits(std::string_view text) {
  if (text.empty()) return false;
  for (char c : text) {
    if (!IsDigit(c)) return false;
  }
  return true;
}

std::string ZeroPadded(std::string_view text, size_t width) {
  std::string out(width > text.size() ? width - text.size() : 0, '0');
  out.append(text);
  return out;
}

uint64_t ToNumber(std::string_view digits) {
  uint64_t value = 0;
  for (char c : digits.substr(0, 19)) value = value * 10 + Digit(c);
  return value;
}

int WeightedSum(std::string_view digits, std::initializer_list<int> weights) {
  int sum = 0;
  size_t i = 0;
  for (int w : weights) {
    if (i >= digits.size()) break;
    sum += w * Digit(digits[i++]);
  }
  return sum;
}

int LuhnTotal(std::string_view digits) { return LuhnTotalFrom(digits, false); }

bool PassesLuhn(std::string_view digits) { return LuhnTotal(digits) % 10 == 0; }

// Same total as LuhnTotal(body + "0"): the provisional 0 takes the undoubled place.
int LuhnCheckDigit(std::string_view body) {
  return (10 - LuhnTotalFrom(body, true) % 10) % 10;
}

bool PassesMod11_10(std::string_view digits) {
  int p = 10;
  int t = 0;
  for (char c : digits) {
    t = (p + Digit(c)) % 10;
    if (t == 0) t = 10;
    p = (2 * t) % 11;
  }
  return t == 1;
}

int Mod97(std::string_view digits) {
  int r = 0;
  for (char c : digits) r = (r * 10 + Digit(c)) % 97;
  return r;
}

bool IsValidDate(int year, int month, int day) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12 || day < 1) return false;
  bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  int last = kDays[month - 1] + (month == 2 && leap ? 1 : 0);
  return day <= last;
}

}  // namespace zerbal::validacion
