// The output of an export replaces its target whole, or refuses and leaves
// everything as it was.

#include "cli/export_target.h"

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <functional>
#include <set>

#include "cli/export_file.h"
#include "testutil.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

std::set<fs::path> Entries(const fs::path& folder) {
  std::set<fs::path> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename());
  return names;
}

mode_t Mode(const fs::path& path) {
  struct stat s;
  return ::lstat(path.c_str(), &s) == 0 ? s.st_mode : 0;
}

class ExportTargetTest : public test::DatabaseTest {
 protected:
  // What must not change when a target is refused: its type and mode, and
  // the bytes of a regular file.
  std::string Fingerprint(const fs::path& path) {
    const mode_t mode = Mode(path);
    return std::to_string(mode) + (S_ISREG(mode) ? test::Slurp(path) : "");
  }
  std::vector<KeptFile> Kept() { return DatabaseFiles(mod_, lec_); }
};

TEST_F(ExportTargetTest, RefusesWhatIsNotARegularFileAndEachDatabase) {
  const fs::path file = dir_ / "file.txt";
  std::ofstream(file) << "kept";
  const struct {
    const char* rule;
    fs::path target;
    std::function<void(const fs::path&)> make;
  } rows[] = {
      {"the data database", mod_, {}},
      {"the lookup database by another spelling", dir_.path() / "." / "347lec.db", {}},
      {"a hard link to the data database", dir_ / "link.db",
       [&](const fs::path& p) { fs::create_hard_link(mod_, p); }},
      {"a symbolic link to a file", dir_ / "symlink.txt",
       [&](const fs::path& p) { fs::create_symlink(file, p); }},
      {"a FIFO", dir_ / "fifo", [](const fs::path& p) { ASSERT_EQ(::mkfifo(p.c_str(), 0600), 0); }},
      {"a folder", dir_ / "folder", [](const fs::path& p) { fs::create_directory(p); }},
      {"a device", "/dev/null", {}},
  };
  for (const auto& row : rows) {
    if (row.make) row.make(row.target);
    const std::string before = Fingerprint(row.target);
    const std::set<fs::path> entries = Entries(dir_.path());
    EXPECT_THROW(ReplaceFile(row.target, "new", Kept()), ExportFailure) << row.rule;
    EXPECT_EQ(Fingerprint(row.target), before) << row.rule;
    EXPECT_EQ(Entries(dir_.path()), entries) << row.rule << ": nothing left behind";
  }
  EXPECT_EQ(test::Slurp(file), "kept");
}

TEST_F(ExportTargetTest, ReplacesWholeKeepingTheModeAndFollowingNoPlantedLink) {
  const fs::path out = dir_ / "out.txt";
  const mode_t umask_now = ::umask(0);
  ::umask(umask_now);
  ReplaceFile(out, "first", Kept());
  EXPECT_EQ(Mode(out) & 0777, 0666 & ~umask_now) << "a new file as any new file";

  for (const mode_t mode : {0600, 0640, 0604}) {
    fs::permissions(out, static_cast<fs::perms>(mode));
    ReplaceFile(out, "mode " + std::to_string(mode), Kept());
    EXPECT_EQ(Mode(out) & 07777, mode);
    EXPECT_EQ(test::Slurp(out), "mode " + std::to_string(mode));
  }

  const fs::path victim = dir_ / "victim.txt";
  std::ofstream(victim) << "untouched";
  fs::create_symlink(victim, dir_ / "out.txt.tmp");  // where a fixed temporary name would be
  const std::set<fs::path> entries = Entries(dir_.path());
  ReplaceFile(out, "last", Kept());
  EXPECT_EQ(test::Slurp(victim), "untouched");
  EXPECT_EQ(test::Slurp(out), "last");
  EXPECT_EQ(Entries(dir_.path()), entries) << "no temporary file left";
}

TEST_F(ExportTargetTest, AFailedWriteLeavesTheOldFileAndNoTemporary) {
  const fs::path out = dir_ / "out.txt";
  std::ofstream(out) << "old";
  const std::set<fs::path> entries = Entries(dir_.path());
  rlimit limit;
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
  const rlimit small{4096, limit.rlim_max};
  const auto old_handler = ::signal(SIGXFSZ, SIG_IGN);  // the write fails instead
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  EXPECT_THROW(ReplaceFile(out, std::string(100000, 'x'), Kept()), ExportFailure);
  ::setrlimit(RLIMIT_FSIZE, &limit);
  ::signal(SIGXFSZ, old_handler);
  EXPECT_EQ(test::Slurp(out), "old");
  EXPECT_EQ(Entries(dir_.path()), entries);
}

}  // namespace
}  // namespace zerbal::cli
