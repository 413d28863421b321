// The commands of the zerbal tool. Each takes the arguments after its name,
// writes its output to `out` and its messages to `err`, and returns the exit
// status: 0 on success, 1 when the work failed, 2 on bad usage.

#ifndef ZERBAL_CLI_COMMANDS_H_
#define ZERBAL_CLI_COMMANDS_H_

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace zerbal::cli {

using Args = std::vector<std::string>;

int RunInit(const Args& args, std::ostream& out, std::ostream& err);
int RunDemo(const Args& args, std::ostream& out, std::ostream& err);
int RunExport(const Args& args, std::ostream& out, std::ostream& err);
// 0 every line stored, 3 some lines refused, 1 the import could not run.
int RunImport(const Args& args, std::ostream& out, std::ostream& err);
int RunAutomation(const Args& args, std::istream& in, std::ostream& out, std::ostream& err);
int RunUpgrade(const Args& args, std::ostream& out, std::ostream& err);

// Throws a std::runtime_error that names `zerbal upgrade` when the data
// database at `data` is an earlier year's (it lacks columns of the current
// one); a missing file is left to the command. Every command that works on
// a data database calls it first.
void RefuseEarlierDatabase(const std::filesystem::path& data);

// Writes "zerbal: <description> (error <number>)" for the library's error
// being handled ("zerbal: <message>" for any other) and returns 1. Call only
// inside a catch block.
int ReportError(std::ostream& err);

// Whether `args` asks for help ("--help" or "-h").
bool WantsHelp(const Args& args);

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_COMMANDS_H_
