#include "reference/validacion/normalize.h"

namespace zerbal::validacion {
namespace {

bool IsSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

}  // namespace

std::string_view TrimSpace(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::string Compact(std::string_view text, std::string_view separators) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    if (separators.find(c) == std::string_view::npos) out.push_back(ToUpperAscii(c));
  }
  return out;
}

bool StartsWithFolded(std::string_view text, std::string_view prefix) {
  if (prefix.empty() || text.size() < prefix.size()) return false;
  for (size_t i = 0; i < prefix.size(); ++i) {
    if (ToUpperAscii(text[i]) != prefix[i]) return false;
  }
  return true;
}

}  // namespace zerbal::validacion
