// Reading a text file one line at a time, so that memory stays flat however
// large the file: lines end in CR LF, LF or CR, the last one with or
// without its end.

#ifndef ZERBAL_CLI_LINE_READER_H_
#define ZERBAL_CLI_LINE_READER_H_

#include <cstddef>
#include <istream>
#include <string>

namespace zerbal::cli {

class LineReader {
 public:
  // Lines longer than `max_bytes` are cut there (the rest is skipped, and
  // the line is marked too long).
  explicit LineReader(std::istream& in, size_t max_bytes = 1 << 20);

  // The next line, without its end, into `line`; false at the end of the
  // file.
  bool Next(std::string& line);

  // Whether the line just read went past the maximum.
  bool TooLong() const { return too_long_; }

 private:
  // Reads the next piece of the file into `chunk_`; false at its end.
  bool Fill();

  std::streambuf& buf_;
  size_t max_bytes_;
  bool too_long_ = false;
  std::string chunk_;  // read ahead from `buf_`, scanned from `pos_`
  size_t pos_ = 0;
};

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_LINE_READER_H_
