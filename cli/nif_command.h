// The `zerbal nif` command: checks Spanish NIFs or VAT numbers given as
// arguments or read one per line, and reports each one.

#ifndef ZERBAL_CLI_NIF_COMMAND_H_
#define ZERBAL_CLI_NIF_COMMAND_H_

#include <iosfwd>
#include <string>
#include <vector>

namespace zerbal::cli {

// zerbal nif [--vat] [ID...]: prints "VALUE<TAB>valid" or "VALUE<TAB>invalid"
// per identifier, VALUE exactly as given. With no IDs reads one per line from
// `in`, stripping a trailing CR and skipping blank lines.
//
// Spanish identifiers are checked as people write them (case, spaces, dots,
// dashes and slashes ignored; optional ES prefix). With --vat each one is a
// VAT number written with its country prefix. "--" ends the options.
//
// `args` are the arguments after the word "nif". Returns 0 when every
// identifier is valid (also when there is none), 1 otherwise, 2 on bad usage
// (message on `err`, nothing checked). --help prints usage on `out`, returns 0.
int RunNif(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
           std::ostream& err);

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_NIF_COMMAND_H_
