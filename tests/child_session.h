// Another process on the same files: `zerbal automation` started as a
// child, driven one JSON request at a time; and the sqlite3 shell.

#ifndef ZERBAL_TESTS_CHILD_SESSION_H_
#define ZERBAL_TESTS_CHILD_SESSION_H_

#include <sys/types.h>

#include <string>
#include <vector>

namespace zerbal::test {

class ChildSession {
 public:
  ChildSession();  // starts the tool built with the tests
  ~ChildSession();  // ends its input and waits for it
  ChildSession(const ChildSession&) = delete;
  ChildSession& operator=(const ChildSession&) = delete;

  // Sends one request line and returns the answer line.
  std::string Ask(const std::string& request);

  // Ends the child's input; returns its exit status.
  int Finish();

  // Ends the child at once (SIGKILL), as a crash would.
  void Kill();

 private:
  pid_t pid_ = -1;
  int to_child_ = -1;
  int from_child_ = -1;
  std::string pending_;
};

// The tool built with the tests run with `args` as another process, its
// output thrown away.
class ToolProcess {
 public:
  explicit ToolProcess(const std::vector<std::string>& args);
  ~ToolProcess() { Wait(); }
  ToolProcess(const ToolProcess&) = delete;
  ToolProcess& operator=(const ToolProcess&) = delete;

  // Waits for it; its exit status, -1 when it was killed.
  int Wait();
  // Ends it at once (SIGKILL), as a crash would, and waits for it.
  void Kill();

 private:
  pid_t pid_ = -1;
};

// What the sqlite3 shell prints for `sql` on the file at `path`, opened
// read-only.
std::string Shell(const std::string& path, const std::string& sql);

}  // namespace zerbal::test

#endif  // ZERBAL_TESTS_CHILD_SESSION_H_
