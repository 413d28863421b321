// `zerbal nif`: arguments, standard input, output and exit statuses.

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/nif_command.h"

namespace zerbal::cli {
namespace {

TEST(NifCommandTest, ArgumentsOrInputAndTheStatus) {
  const struct {
    std::vector<std::string> args;
    const char* input;
    int status;
    const char* out;
    const char* err;  // a text it must hold, if any
  } rows[] = {
      {{"54362315K", "es x-2482300-w", "A13 585 625"}, "", 0,
       "54362315K\tvalid\nes x-2482300-w\tvalid\nA13 585 625\tvalid\n", ""},
      {{"54362315Z", "54362315K"}, "X2482300W\n", 1, "54362315Z\tinvalid\n54362315K\tvalid\n",
       ""},  // with arguments the input is not read
      {{}, "54362315K\r\n\n   \r\nX2482300A\nQ-2818015-F", 1,
       "54362315K\tvalid\nX2482300A\tinvalid\nQ-2818015-F\tvalid\n", ""},
      {{}, "", 0, "", ""},
      {{"--vat", "DE 136695976", "ES 54362315K"}, "", 0,
       "DE 136695976\tvalid\nES 54362315K\tvalid\n", ""},
      {{"--vat"}, "136695976\n", 1, "136695976\tinvalid\n", ""},
      {{"DE136695976"}, "", 1, "DE136695976\tinvalid\n", ""},  // not a Spanish identifier
      {{"--", "--vat"}, "", 1, "--vat\tinvalid\n", ""},
      {{"--strict", "54362315K"}, "", 2, "", "--strict"},
  };
  for (const auto& row : rows) {
    std::istringstream in(row.input);
    std::ostringstream out, err;
    EXPECT_EQ(RunNif(row.args, in, out, err), row.status) << row.out;
    EXPECT_EQ(out.str(), row.out);
    if (*row.err) {
      EXPECT_NE(err.str().find(row.err), std::string::npos) << err.str();
    }
  }
  std::istringstream none;
  std::ostringstream help, err;
  EXPECT_EQ(RunNif({"--help", "54362315Z"}, none, help, err), 0);
  EXPECT_NE(help.str().find("usage: zerbal nif"), std::string::npos);
}

}  // namespace
}  // namespace zerbal::cli
