#include "cli/line_reader.h"

#include <algorithm>

namespace zerbal::cli {

LineReader::LineReader(std::istream& in, size_t max_bytes)
    : buf_(*in.rdbuf()), max_bytes_(max_bytes) {}

bool LineReader::Fill() {
  chunk_.resize(1 << 16);
  chunk_.resize(static_cast<size_t>(buf_.sgetn(chunk_.data(), static_cast<std::streamsize>(chunk_.size()))));
  pos_ = 0;
  return !chunk_.empty();
}

bool LineReader::Next(std::string& line) {
  line.clear();
  too_long_ = false;
  if (pos_ == chunk_.size() && !Fill()) return false;
  for (;;) {
    const size_t end = chunk_.find_first_of("\r\n", pos_);
    const size_t stop = end == std::string::npos ? chunk_.size() : end;
    const size_t room = max_bytes_ - line.size();
    if (stop - pos_ > room) too_long_ = true;
    line.append(chunk_, pos_, std::min(stop - pos_, room));
    if (end == std::string::npos) {
      pos_ = chunk_.size();
      if (!Fill()) return true;  // the last line, without its end
      continue;
    }
    pos_ = end + 1;
    // CR LF is one line end, even when the two fall in different pieces.
    if (chunk_[end] == '\r' && (pos_ < chunk_.size() || Fill()) && chunk_[pos_] == '\n') ++pos_;
    return true;
  }
}

}  // namespace zerbal::cli
