// What the database layer knows of a file before and between its uses: the
// checks that come before the engine may touch a path, and the identity
// that tells whether the file at a path is still the one a kept connection
// stands for.

#ifndef ZERBAL_DATA_FILE_IDENTITY_H_
#define ZERBAL_DATA_FILE_IDENTITY_H_

#include <cstdint>
#include <string>

namespace zerbal::data {

struct FileIdentity {
  uint64_t device = 0;
  uint64_t inode = 0;
  int64_t size = 0;
  int64_t modified_ns = 0;
  int64_t changed_ns = 0;  // any write, copy, rename or chmod onto the file moves it
  uint32_t mode = 0;
  bool operator==(const FileIdentity&) const = default;
};

// The identity of the file at `path` (one stat). A missing file is 3024, a
// missing folder or an empty path 3044, anything but a regular file 3051.
FileIdentity InspectFile(const std::string& path);

// Whether the file at `path` may not be written.
bool FileReadOnly(const std::string& path, const FileIdentity& identity);

// Whether nothing may be written in the folder of `path` (where the engine
// keeps its log and index beside the database). Looked at when a file is
// opened: the files beside a database that is open stay writable.
bool FolderReadOnly(const std::string& path);

// The first bytes of a database file, as far as the layer reads them.
struct FileHeader {
  bool write_ahead_log = false;  // left in that journal mode by an earlier version
};

// Reads the header of the file at `path` without the engine, so that a file
// which is not a database of ours is refused (3343) before anything is
// created beside it. Unreadable files are 3051.
FileHeader ReadOwnHeader(const std::string& path, int32_t application_id);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_FILE_IDENTITY_H_
