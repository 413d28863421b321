#include "cli/export_target.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <random>

#include "cli/export_file.h"
#include "cli/locations.h"
#include "zerbal/databases.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void CannotWrite(const fs::path& target, int error) {
  throw ExportFailure("cannot write " + target.string() + ": " + std::strerror(error));
}

const char* KindOf(mode_t mode) {
  if (S_ISDIR(mode)) return "a folder";
  if (S_ISLNK(mode)) return "a symbolic link";
  if (S_ISFIFO(mode)) return "a FIFO";
  if (S_ISCHR(mode) || S_ISBLK(mode)) return "a device";
  if (S_ISSOCK(mode)) return "a socket";
  return "not a regular file";
}

}  // namespace

// A new file beside the target, removed when this ends unless it was
// renamed into place.
class Replacement::TempFile {
 public:
  TempFile(const fs::path& folder, const fs::path& target) : target_(target) {
    std::random_device entropy;
    for (int attempt = 0; fd_ < 0; ++attempt) {
      char name[32];
      std::snprintf(name, sizeof name, ".%08x%08x.tmp", entropy(), entropy());
      path_ = folder / ".";  // a hidden name: the target's, then the unique part
      path_ += target.filename().native();
      path_ += name;
      // O_EXCL fails on any name that exists, a symbolic link included.
      fd_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
      if (fd_ < 0 && (errno != EEXIST || attempt == 100)) CannotWrite(target, errno);
    }
  }
  ~TempFile() {
    if (fd_ >= 0) ::close(fd_);
    if (!renamed_) ::unlink(path_.c_str());
  }
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;

  void Write(std::string_view content) {
    while (!content.empty()) {
      const ssize_t n = ::write(fd_, content.data(), content.size());
      if (n < 0 && errno == EINTR) continue;
      if (n < 0) CannotWrite(target_, errno);
      content.remove_prefix(static_cast<size_t>(n));
    }
  }
  void WriteAt(uint64_t offset, std::string_view content) {
    while (!content.empty()) {
      const ssize_t n = ::pwrite(fd_, content.data(), content.size(), static_cast<off_t>(offset));
      if (n < 0 && errno == EINTR) continue;
      if (n < 0) CannotWrite(target_, errno);
      content.remove_prefix(static_cast<size_t>(n));
      offset += static_cast<uint64_t>(n);
    }
  }
  void Chmod(mode_t mode) {
    if (::fchmod(fd_, mode) != 0) CannotWrite(target_, errno);
  }
  void FlushAndClose() {
    if (::fsync(fd_) != 0) CannotWrite(target_, errno);
    const int fd = fd_;
    fd_ = -1;
    if (::close(fd) != 0) CannotWrite(target_, errno);
  }
  void RenameOverTarget() {
    if (::rename(path_.c_str(), target_.c_str()) != 0) CannotWrite(target_, errno);
    renamed_ = true;
  }

 private:
  fs::path target_;
  fs::path path_;
  int fd_ = -1;
  bool renamed_ = false;
};

namespace {

// A rename is durable only once the folder that holds both names is.
void FlushFolder(const fs::path& folder, const fs::path& target) {
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) CannotWrite(target, errno);
  const int flushed = ::fsync(fd);
  const int error = errno;
  ::close(fd);
  if (flushed != 0) CannotWrite(target, error);
}

}  // namespace

std::vector<KeptFile> DatabaseFiles(const fs::path& data, const fs::path& lookup) {
  std::vector<KeptFile> files;
  const std::pair<fs::path, std::string> databases[] = {
      {data, "the data database"},
      {lookup, "the lookup database"},
  };
  for (const auto& [path, what] : databases) {
    if (IsServerLocation(path.string())) continue;
    files.push_back({path, what});
    for (const char* engine_file : {"-wal", "-shm", "-journal"}) {
      files.push_back({path.string() + engine_file, "a file of " + what});
    }
  }
  return files;
}

void CheckTarget(const fs::path& target, const std::vector<KeptFile>& kept) {
  struct stat found;
  if (::lstat(target.c_str(), &found) != 0) {
    if (errno == ENOENT) return;  // a new file
    CannotWrite(target, errno);
  }
  if (!S_ISREG(found.st_mode)) {
    throw ExportFailure(target.string() + " is " + KindOf(found.st_mode) +
                        ", not a regular file: name a file to write the output to");
  }
  for (const KeptFile& file : kept) {
    struct stat other;
    if (::stat(file.path.c_str(), &other) == 0 && other.st_dev == found.st_dev &&
        other.st_ino == found.st_ino) {
      throw ExportFailure(target.string() + " is " + file.what + " (" + file.path.string() +
                          "): name another file for the output");
    }
  }
}

Replacement::Replacement(const fs::path& target, std::vector<KeptFile> kept)
    : target_(target),
      folder_(target.has_parent_path() ? target.parent_path() : fs::path(".")),
      kept_(std::move(kept)) {
  CheckTarget(target_, kept_);
  struct stat old;
  const bool replacing = ::lstat(target_.c_str(), &old) == 0;
  temp_ = std::make_unique<TempFile>(folder_, target_);
  if (replacing) temp_->Chmod(old.st_mode & 07777);
}

Replacement::~Replacement() = default;

void Replacement::Write(std::string_view content) { temp_->Write(content); }

void Replacement::WriteAt(uint64_t offset, std::string_view content) {
  temp_->WriteAt(offset, content);
}

void Replacement::Commit() {
  temp_->FlushAndClose();
  FlushFolder(folder_, target_);
  CheckTarget(target_, kept_);  // whatever came under the name meanwhile
  temp_->RenameOverTarget();
  FlushFolder(folder_, target_);
}

void ReplaceFile(const fs::path& target, std::string_view content,
                 const std::vector<KeptFile>& kept) {
  Replacement replacement(target, kept);
  replacement.Write(content);
  replacement.Commit();
}

}  // namespace zerbal::cli
