#include "cli/line_reader.h"

namespace zerbal::cli {

using Traits = std::char_traits<char>;

LineReader::LineReader(std::istream& in, size_t max_bytes)
    : buf_(*in.rdbuf()), max_bytes_(max_bytes) {}

bool LineReader::Next(std::string& line) {
  line.clear();
  too_long_ = false;
  Traits::int_type c = buf_.sbumpc();
  if (Traits::eq_int_type(c, Traits::eof())) return false;
  for (; !Traits::eq_int_type(c, Traits::eof()); c = buf_.sbumpc()) {
    const char ch = Traits::to_char_type(c);
    if (ch == '\n') break;
    if (ch == '\r') {
      if (Traits::eq_int_type(buf_.sgetc(), Traits::to_int_type('\n'))) buf_.sbumpc();
      break;
    }
    if (line.size() < max_bytes_) {
      line.push_back(ch);
    } else {
      too_long_ = true;
    }
  }
  return true;
}

}  // namespace zerbal::cli
