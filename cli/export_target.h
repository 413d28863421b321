// Where `zerbal export` writes: a file that it replaces whole, never through
// what the name points at, never one of the files it reads from.
//
// The new content goes to a temporary file created exclusively (O_EXCL,
// which also refuses a symbolic link planted under its name) with a name of
// its own in the target's folder, takes the mode of the file it replaces,
// is flushed with its folder, and is renamed over the target, after which
// the folder is flushed again: a crash leaves the old file or the new one,
// whole. On any failure the temporary file is removed and the target is
// left as it was.

#ifndef ZERBAL_CLI_EXPORT_TARGET_H_
#define ZERBAL_CLI_EXPORT_TARGET_H_

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zerbal::cli {

// A file that an output must not be, and what to call it when one is.
struct KeptFile {
  std::filesystem::path path;
  std::string what;  // "the data database"
};

// The data and lookup databases that are files, and the engine's files
// beside each (a missing one is simply never matched).
std::vector<KeptFile> DatabaseFiles(const std::filesystem::path& data,
                                    const std::filesystem::path& lookup);

// Raises ExportFailure when `target` exists and is not a regular file (a
// folder, a FIFO, a device, a symbolic link) or is one of `kept`, compared
// by identity (device and inode), so that another name or a hard link for
// the same file is refused as well.
void CheckTarget(const std::filesystem::path& target, const std::vector<KeptFile>& kept);

// The new content of `target`, written in pieces as described above and put
// in its place by Commit. Checks `target` with CheckTarget when made and
// again before the rename. Destroyed without Commit, it leaves nothing.
// Raises ExportFailure.
class Replacement {
 public:
  Replacement(const std::filesystem::path& target, std::vector<KeptFile> kept);
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  // Appends to what was written.
  void Write(std::string_view content);
  // Writes over bytes written before, from byte `offset` on.
  void WriteAt(uint64_t offset, std::string_view content);
  void Commit();

 private:
  class TempFile;
  std::filesystem::path target_;
  std::filesystem::path folder_;
  std::vector<KeptFile> kept_;
  std::unique_ptr<TempFile> temp_;
};

// Replaces `target` with `content` through a Replacement.
void ReplaceFile(const std::filesystem::path& target, std::string_view content,
                 const std::vector<KeptFile>& kept);

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_EXPORT_TARGET_H_
