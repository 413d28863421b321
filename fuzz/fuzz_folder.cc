#include "fuzz_folder.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "data/file_identity.h"
#include "zerbal/databases.h"

namespace zerbal::fuzz {
namespace {

namespace fs = std::filesystem;

// The file's identity; a file gone (an input may remove one) counts as changed.
data::FileIdentity Stamp(const std::string& path) {
  try {
    return data::InspectFile(path);
  } catch (const Error&) {
    return {};
  }
}

void PutBack(const fs::path& pristine, const std::string& path) {
  const std::string fresh = path + ".fresh";
  fs::copy_file(pristine, fresh, fs::copy_options::overwrite_existing);
  fs::rename(fresh, path);
}

std::string g_removed_at_exit;

}  // namespace

FuzzFolder& FuzzFolder::Get() {
  static FuzzFolder* folder = new FuzzFolder();  // left to the exit handler
  return *folder;
}

FuzzFolder::FuzzFolder() {
  std::string pattern = (fs::temp_directory_path() / "zerbal-fuzz-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  folder_ = pattern;
  g_removed_at_exit = folder_;
  ::atexit([] {
    std::error_code ignored;
    fs::remove_all(g_removed_at_exit, ignored);
  });
  const DatabasePaths made = CreateDatabases(fs::path(folder_) / "pristine");
  data_ = (fs::path(folder_) / kDataFileName).string();
  lookup_ = (fs::path(folder_) / kLookupFileName).string();
  PutBack(made.data, data_);
  PutBack(made.lookup, lookup_);
  data_stamp_ = Stamp(data_);
  lookup_stamp_ = Stamp(lookup_);
}

FuzzFolder::Inside::Inside(const FuzzFolder& folder) : previous_(::open(".", O_RDONLY | O_DIRECTORY)) {
  if (previous_ < 0 || ::chdir(folder.folder_.c_str()) != 0) throw std::runtime_error("chdir failed");
}

FuzzFolder::Inside::~Inside() {
  if (::fchdir(previous_) != 0) std::abort();
  ::close(previous_);
}

void FuzzFolder::RestoreIfChanged() {
  const fs::path pristine = fs::path(folder_) / "pristine";
  if (Stamp(data_) != data_stamp_) {
    PutBack(pristine / kDataFileName, data_);
    data_stamp_ = Stamp(data_);
  }
  if (Stamp(lookup_) != lookup_stamp_) {
    PutBack(pristine / kLookupFileName, lookup_);
    lookup_stamp_ = Stamp(lookup_);
  }
}

}  // namespace zerbal::fuzz
