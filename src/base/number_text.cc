// Numbers to text and back: the invariant form, Val and Format.

#include <cctype>
#include <charconv>
#include <cstdlib>
#include <cmath>
#include <string>

#include "base/convert.h"
#include "base/raise.h"

namespace zerbal {
namespace {

// Significant digits and decimal exponent: value = 0.d1d2... * 10^point.
struct Decimal {
  std::string digits;
  int point = 0;
};

// Splits the scientific text "d.ddde-05" into digits and point.
Decimal Split(std::string_view sci) {
  const size_t e = sci.find('e');
  Decimal d;
  for (char c : sci.substr(0, e)) {
    if (c != '.') d.digits.push_back(c);
  }
  std::string_view exp = sci.substr(e + 1);
  if (!exp.empty() && exp[0] == '+') exp.remove_prefix(1);
  int exponent = 0;
  std::from_chars(exp.data(), exp.data() + exp.size(), exponent);
  while (d.digits.size() > 1 && d.digits.back() == '0') d.digits.pop_back();
  d.point = exponent + 1;
  return d;
}

Decimal ToDecimal(double magnitude) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, magnitude, std::chars_format::scientific);
  Decimal d = Split(std::string_view(buf, r.ptr - buf));
  if (d.digits.size() > 15) {  // more than the runtime shows: 15 significant digits
    r = std::to_chars(buf, buf + sizeof buf, magnitude, std::chars_format::scientific, 14);
    d = Split(std::string_view(buf, r.ptr - buf));
  }
  return d;
}

std::string Render(const Decimal& d) {
  const int n = static_cast<int>(d.digits.size());
  if (d.point > 15 || d.point < -4) {  // the runtime's switch to scientific form
    std::string out = d.digits.substr(0, 1);
    if (n > 1) out.append(".").append(d.digits, 1);
    const int e = d.point - 1;
    out += e < 0 ? "E-" : "E+";
    const std::string exp = std::to_string(std::abs(e));
    return out + (exp.size() < 2 ? "0" : "") + exp;
  }
  if (d.point <= 0) return std::string("0.").append(-d.point, '0').append(d.digits);
  if (d.point >= n) return std::string(d.digits).append(d.point - n, '0');
  return d.digits.substr(0, d.point).append(".").append(d.digits, d.point);
}

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

}  // namespace

std::string NumberText(double value) {
  if (!std::isfinite(value)) Raise(errc::kOverflow);
  if (value == 0) return "0";
  const double magnitude = std::fabs(value);
  std::string text;
  if (magnitude < 1e15 && magnitude == std::floor(magnitude)) {
    text = std::to_string(static_cast<int64_t>(magnitude));  // amounts: the common case
  } else {
    text = Render(ToDecimal(magnitude));
  }
  return value < 0 ? "-" + text : text;
}

bool ParseNumber(std::string_view text, double* value) {
  size_t begin = 0;
  size_t end = text.size();
  while (begin < end && IsBlank(text[begin])) ++begin;
  while (end > begin && IsBlank(text[end - 1])) --end;
  std::string_view s = text.substr(begin, end - begin);
  bool negative = false;
  if (!s.empty() && (s[0] == '+' || s[0] == '-')) {
    negative = s[0] == '-';
    s.remove_prefix(1);
  }
  // Only digits or a point may start the number: from_chars would take "inf".
  if (s.empty() || !(std::isdigit(static_cast<unsigned char>(s[0])) || s[0] == '.')) return false;
  double parsed = 0;
  const auto r = std::from_chars(s.data(), s.data() + s.size(), parsed);
  if (r.ptr != s.data() + s.size()) return false;
  if (r.ec == std::errc::invalid_argument) return false;
  if (r.ec == std::errc::result_out_of_range) {
    // from_chars leaves the value alone: tell overflow from underflow.
    parsed = std::strtod(std::string(s).c_str(), nullptr);
    if (std::isinf(parsed)) Raise(errc::kOverflow);
  }
  *value = negative ? -parsed : parsed;
  return true;
}

double Val(std::string_view text) {
  std::string compact;  // the text without blanks, as Val reads it
  for (char c : text) {
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') compact.push_back(c);
  }
  if (compact.size() > 2 && compact[0] == '&') {
    const char radix = static_cast<char>(std::toupper(static_cast<unsigned char>(compact[1])));
    const int base = radix == 'H' ? 16 : radix == 'O' ? 8 : 0;
    if (base != 0) {
      int64_t n = 0;
      std::from_chars(compact.data() + 2, compact.data() + compact.size(), n, base);
      return static_cast<double>(n);
    }
  }
  size_t k = 0;
  if (k < compact.size() && (compact[k] == '+' || compact[k] == '-')) ++k;
  const size_t digits_start = k;
  while (k < compact.size() && std::isdigit(static_cast<unsigned char>(compact[k]))) ++k;
  if (k < compact.size() && compact[k] == '.') {
    ++k;
    while (k < compact.size() && std::isdigit(static_cast<unsigned char>(compact[k]))) ++k;
  }
  if (k == digits_start || (k == digits_start + 1 && compact[digits_start] == '.')) return 0;
  size_t end = k;
  if (k < compact.size() && (compact[k] == 'e' || compact[k] == 'E' || compact[k] == 'd' ||
                             compact[k] == 'D')) {
    size_t e = k + 1;
    if (e < compact.size() && (compact[e] == '+' || compact[e] == '-')) ++e;
    const size_t exp_digits = e;
    while (e < compact.size() && std::isdigit(static_cast<unsigned char>(compact[e]))) ++e;
    if (e > exp_digits) {
      compact[k] = 'e';
      end = e;
    }
  }
  double value = 0;
  ParseNumber(std::string_view(compact).substr(0, end), &value);
  return value;
}

namespace {

// Digits of |value| rounded half away from zero to `decimals` places.
void RoundedDigits(double magnitude, int decimals, std::string* whole, std::string* fraction) {
  const double scaled = std::round(magnitude * std::pow(10.0, decimals));
  char buf[400];
  const auto r = std::to_chars(buf, buf + sizeof buf, scaled, std::chars_format::fixed, 0);
  std::string all(buf, r.ptr - buf);
  if (static_cast<int>(all.size()) <= decimals) {
    all.insert(0, decimals - all.size() + 1, '0');
  }
  *whole = all.substr(0, all.size() - decimals);
  *fraction = all.substr(all.size() - decimals);
  if (*whole == "0") whole->clear();  // a zero integer part has no significant digit
}

// The common mask of the files' numbers, "000...0", for a whole value:
// its digits, zero-filled to the mask's width (more digits if it has them).
bool ZeroFilled(double value, std::string_view mask, std::string* out) {
  if (mask.find_first_not_of('0') != std::string_view::npos) return false;
  const double scaled = std::round(std::fabs(value));
  if (!(scaled < 1e15)) return false;
  char buf[24];
  const auto r = std::to_chars(buf, buf + sizeof buf, static_cast<int64_t>(scaled));
  const size_t digits = static_cast<size_t>(r.ptr - buf);
  const bool sign = value < 0 && scaled != 0;
  out->assign(sign ? 1 : 0, '-');
  if (digits < mask.size()) out->append(mask.size() - digits, '0');
  out->append(buf, digits);
  return true;
}

std::string FormatNumber(double value, std::string_view mask) {
  if (mask.empty()) return NumberText(value);  // no mask: the general number form
  if (std::string fast; ZeroFilled(value, mask, &fast)) return fast;
  const size_t point = mask.find('.');
  const std::string_view int_mask = mask.substr(0, point);
  const std::string_view frac_mask =
      point == std::string_view::npos ? std::string_view() : mask.substr(point + 1);
  int decimals = 0;
  for (char c : frac_mask) decimals += (c == '0' || c == '#');
  std::string whole;
  std::string fraction;
  RoundedDigits(std::fabs(value), decimals, &whole, &fraction);

  // Integer part: digits fill the placeholders from the right; the leftmost
  // placeholder takes whatever digits remain.
  std::string out;
  int remaining = static_cast<int>(whole.size());
  int placeholders = 0;
  for (char c : int_mask) placeholders += (c == '0' || c == '#');
  for (char c : int_mask) {
    if (c != '0' && c != '#') {
      out.push_back(c);
      continue;
    }
    // Only the leftmost placeholder can take more than one digit.
    const int take = remaining >= placeholders ? remaining - placeholders + 1 : 0;
    if (take > 0) {
      out += whole.substr(whole.size() - remaining, take);
      remaining -= take;
    } else if (c == '0') {
      out.push_back('0');
    }
    --placeholders;
  }
  if (point != std::string_view::npos) {
    out.push_back('.');
    size_t f = 0;
    for (char c : frac_mask) {
      if (c == '0' || c == '#') {
        out.push_back(fraction[f++]);
      } else {
        out.push_back(c);
      }
    }
  }
  const bool nonzero = whole.find_first_not_of('0') != std::string::npos ||
                       fraction.find_first_not_of('0') != std::string::npos;
  return (value < 0 && nonzero) ? "-" + out : out;
}

}  // namespace

std::string Format(const Variant& value, std::string_view mask) {
  switch (value.Kind()) {
    case VarKind::kNull:
      Raise(errc::kInvalidUseOfNull);
    case VarKind::kEmpty:
      return "";
    case VarKind::kString: {
      double number = 0;
      if (!ParseNumber(value.AsString(), &number)) return value.AsString();
      return FormatNumber(number, mask);
    }
    default:
      return FormatNumber(CDbl(value), mask);
  }
}

}  // namespace zerbal
