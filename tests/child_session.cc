#include "child_session.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <stdexcept>

extern char** environ;

namespace zerbal::test {
namespace {

// Waits for the child `pid` (none when negative, and none after this);
// its exit status, -1 when it did not exit by itself.
int Reap(pid_t& pid) {
  if (pid < 0) return -1;
  int status = 0;
  ::waitpid(pid, &status, 0);
  pid = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

ChildSession::ChildSession() {
  int in[2];
  int out[2];
  // Close-on-exec, so that a child started by another thread never holds
  // these pipes open (its own copies on 0 and 1 are made by the spawn).
  if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0) {
    throw std::runtime_error("pipe failed");
  }
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in[0], 0);
  posix_spawn_file_actions_adddup2(&actions, out[1], 1);
  for (int fd : {in[0], in[1], out[0], out[1]}) posix_spawn_file_actions_addclose(&actions, fd);
  char* argv[] = {const_cast<char*>(ZERBAL_CLI_PATH), const_cast<char*>("automation"), nullptr};
  const int rc = posix_spawn(&pid_, ZERBAL_CLI_PATH, &actions, nullptr, argv, environ);
  posix_spawn_file_actions_destroy(&actions);
  ::close(in[0]);
  ::close(out[1]);
  to_child_ = in[1];
  from_child_ = out[0];
  if (rc != 0) throw std::runtime_error("cannot start " ZERBAL_CLI_PATH);
}

ChildSession::~ChildSession() { Finish(); }

std::string ChildSession::Ask(const std::string& request) {
  const std::string line = request + "\n";
  if (::write(to_child_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
    return "(child gone)";
  }
  for (;;) {
    if (const size_t end = pending_.find('\n'); end != std::string::npos) {
      std::string answer = pending_.substr(0, end);
      pending_.erase(0, end + 1);
      return answer;
    }
    std::array<char, 4096> chunk;
    const ssize_t n = ::read(from_child_, chunk.data(), chunk.size());
    if (n <= 0) return "(child gone)";
    pending_.append(chunk.data(), static_cast<size_t>(n));
  }
}

int ChildSession::Finish() {
  if (pid_ < 0) return -1;
  ::close(to_child_);
  ::close(from_child_);
  return Reap(pid_);
}

void ChildSession::Kill() {
  if (pid_ >= 0) ::kill(pid_, SIGKILL);
  Finish();
}

ToolProcess::ToolProcess(const std::vector<std::string>& args) {
  std::vector<char*> argv{const_cast<char*>(ZERBAL_CLI_PATH)};
  for (const std::string& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
  const int rc = posix_spawn(&pid_, ZERBAL_CLI_PATH, &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (rc != 0) throw std::runtime_error("cannot start " ZERBAL_CLI_PATH);
}

int ToolProcess::Wait() { return Reap(pid_); }

void ToolProcess::Kill() {
  if (pid_ >= 0) ::kill(pid_, SIGKILL);
  Wait();
}

std::string Shell(const std::string& path, const std::string& sql) {
  const std::string command = "sqlite3 -readonly '" + path + "' \"" + sql + "\" 2>&1";
  FILE* pipe = ::popen(command.c_str(), "r");
  if (pipe == nullptr) return "(no shell)";
  std::string out;
  std::array<char, 4096> chunk;
  size_t n;
  while ((n = std::fread(chunk.data(), 1, chunk.size(), pipe)) > 0) out.append(chunk.data(), n);
  ::pclose(pipe);
  while (!out.empty() && out.back() == '\n') out.pop_back();
  return out;
}

}  // namespace zerbal::test
