#include "cli/locations.h"

#include <filesystem>
#include <system_error>

#include "base/raise.h"
#include "data/connection.h"
#include "zerbal/databases.h"

namespace zerbal::cli {

namespace fs = std::filesystem;

namespace {

// A named location: a URI as it is, an existing folder's usual file, or a file.
std::string Named(const std::string& given, std::string_view usual) {
  std::error_code ec;
  if (!IsServerLocation(given) && fs::is_directory(given, ec)) {
    return (fs::path(given) / usual).string();
  }
  return given;
}

}  // namespace

bool IsServerLocation(std::string_view location) { return data::IsServerName(location); }

bool LocationArgs::IsOption(std::string_view name) {
  return name == "--dir" || name == "--data" || name == "--lookup";
}

bool LocationArgs::Take(const std::string& name, const std::string& value) {
  std::string& slot = name == "--dir" ? dir_ : name == "--data" ? data_ : lookup_;
  if (!IsOption(name) || !slot.empty() || value.empty()) return false;
  slot = value;
  return true;
}

std::optional<Locations> LocationArgs::Resolve() const {
  Locations l;
  if (!data_.empty()) {
    l.data = Named(data_, kDataFileName);
  } else if (!dir_.empty()) {
    l.data = (fs::path(dir_) / kDataFileName).string();
  } else {
    return std::nullopt;
  }
  if (!lookup_.empty()) {
    l.lookup = Named(lookup_, kLookupFileName);
  } else if (!dir_.empty()) {
    l.lookup = (fs::path(dir_) / kLookupFileName).string();
  } else if (!IsServerLocation(l.data)) {
    l.lookup = (fs::path(l.data).parent_path() / kLookupFileName).string();
  } else {
    return std::nullopt;
  }
  return l;
}

void CreateAt(const Locations& where, bool replace, int schema) {
  for (const std::string& location : {where.data, where.lookup}) {
    std::error_code ec;
    if (!replace && !IsServerLocation(location) && fs::exists(location, ec)) {
      Raise(errc::kFileAlreadyExists, location);
    }
  }
  CreateDataDatabase(where.data, replace, schema);
  CreateLookupDatabase(where.lookup, replace);
}

}  // namespace zerbal::cli
