#include "data/file_identity.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <filesystem>

#include "base/raise.h"
#include "data/sqlite.h"

namespace zerbal::data {
namespace {

namespace fs = std::filesystem;

constexpr size_t kHeaderSize = 100;
constexpr char kMagic[] = "SQLite format 3";  // with its terminating NUL: 16 bytes

int64_t Nanoseconds(const timespec& t) { return int64_t{t.tv_sec} * 1000000000 + t.tv_nsec; }

bool NoWriteBits(uint32_t mode) { return (mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0; }

std::string FolderOf(const std::string& path) {
  const std::string folder = fs::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

uint32_t BigEndian32(const unsigned char* p) {
  return (uint32_t{p[0]} << 24) | (uint32_t{p[1]} << 16) | (uint32_t{p[2]} << 8) | p[3];
}

}  // namespace

FileIdentity InspectFile(const std::string& path) {
  if (path.empty()) Raise(errc::kInvalidPath, "(empty path)", kEngineSource);
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) {
    const fs::path parent = fs::path(path).parent_path();
    std::error_code ec;
    const bool folder_exists = parent.empty() || fs::is_directory(parent, ec);
    Raise(folder_exists ? errc::kDatabaseNotFound : errc::kInvalidPath, path, kEngineSource);
  }
  if (!S_ISREG(st.st_mode)) Raise(errc::kCannotOpen, path, kEngineSource);
  FileIdentity id;
  id.device = st.st_dev;
  id.inode = st.st_ino;
  id.size = st.st_size;
  id.modified_ns = Nanoseconds(st.st_mtim);
  id.changed_ns = Nanoseconds(st.st_ctim);
  id.mode = st.st_mode;
  return id;
}

bool FileReadOnly(const std::string& path, const FileIdentity& identity) {
  return NoWriteBits(identity.mode) || ::access(path.c_str(), W_OK) != 0;
}

bool FolderReadOnly(const std::string& path) {
  const std::string folder = FolderOf(path);
  struct stat st {};
  return ::stat(folder.c_str(), &st) != 0 || NoWriteBits(st.st_mode) ||
         ::access(folder.c_str(), W_OK) != 0;
}

FileHeader ReadOwnHeader(const std::string& path, int32_t application_id) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) Raise(errc::kCannotOpen, path, kEngineSource);
  std::array<unsigned char, kHeaderSize> header{};
  size_t got = 0;
  while (got < header.size()) {
    const ssize_t n = ::read(fd, header.data() + got, header.size() - got);
    if (n <= 0) break;
    got += static_cast<size_t>(n);
  }
  ::close(fd);
  if (got < header.size() || std::memcmp(header.data(), kMagic, sizeof kMagic) != 0 ||
      BigEndian32(header.data() + 68) != static_cast<uint32_t>(application_id)) {
    Raise(errc::kUnrecognizedFormat, path, kEngineSource);
  }
  // Bytes 18 and 19 are the file format's write and read versions: 2 means
  // a write-ahead log.
  return FileHeader{header[18] == 2 || header[19] == 2};
}

}  // namespace zerbal::data
