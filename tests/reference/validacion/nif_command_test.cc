// `zerbal nif`: arguments, standard input, output and exit statuses.

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/nif_command.h"

namespace zerbal::cli {
namespace {

struct Result {
  int status;
  std::string out;
  std::string err;
};

Result RunCommand(const std::vector<std::string>& args, const std::string& input = "") {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunNif(args, in, out, err);
  return {status, out.str(), err.str()};
}

TEST(NifCommandTest, Arguments) {
  const Result all = RunCommand({"54362315K", "es x-2482300-w", "A13 585 625"});
  EXPECT_EQ(all.status, 0);
  EXPECT_EQ(all.out, "54362315K\tvalid\nes x-2482300-w\tvalid\nA13 585 625\tvalid\n");

  const Result mixed = RunCommand({"54362315Z", "54362315K"}, "X2482300W\n");
  EXPECT_EQ(mixed.status, 1);
  EXPECT_EQ(mixed.out, "54362315Z\tinvalid\n54362315K\tvalid\n") << "input is not read";
}

TEST(NifCommandTest, StandardInput) {
  const Result r = RunCommand({}, "54362315K\r\n\n   \r\nX2482300A\nQ-2818015-F");
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "54362315K\tvalid\nX2482300A\tinvalid\nQ-2818015-F\tvalid\n");
  EXPECT_EQ(RunCommand({}, "").status, 0);
}

TEST(NifCommandTest, Vat) {
  const Result r = RunCommand({"--vat", "DE 136695976", "ES 54362315K"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "DE 136695976\tvalid\nES 54362315K\tvalid\n");
  EXPECT_EQ(RunCommand({"--vat"}, "136695976\n").out, "136695976\tinvalid\n");
  // Without --vat a foreign number is not a Spanish identifier.
  EXPECT_EQ(RunCommand({"DE136695976"}).status, 1);
}

TEST(NifCommandTest, Usage) {
  const Result help = RunCommand({"--help", "54362315Z"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("usage: zerbal nif"), std::string::npos);

  const Result bad = RunCommand({"--strict", "54362315K"});
  EXPECT_EQ(bad.status, 2);
  EXPECT_EQ(bad.out, "");
  EXPECT_NE(bad.err.find("--strict"), std::string::npos);

  const Result ended = RunCommand({"--", "--vat"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.out, "--vat\tinvalid\n");
}

}  // namespace
}  // namespace zerbal::cli
