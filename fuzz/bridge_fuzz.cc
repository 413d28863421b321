// The automation bridge as `zerbal automation` runs it: each input is what
// a client writes on standard input, one request a line, answered by a new
// session in the fuzz folder, where the databases are 347mod.db and
// 347lec.db.
//
// An input that could name a file outside the fuzz folder, or a server
// (any "/", also escaped) is passed over: the bridge writes and removes the
// files a client names, as it must.

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string_view>

#include "automation/session.h"
#include "fuzz_folder.h"

namespace {

bool NamesOtherFolders(std::string_view input) {
  if (input.find('/') != std::string_view::npos) return true;
  for (size_t at = input.find("u002"); at != std::string_view::npos;
       at = input.find("u002", at + 1)) {
    if (at + 4 < input.size() && (input[at + 4] == 'f' || input[at + 4] == 'F')) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  zerbal::fuzz::FuzzFolder& folder = zerbal::fuzz::FuzzFolder::Get();
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  if (NamesOtherFolders(input)) return -1;  // not added to the corpus
  {
    const zerbal::fuzz::FuzzFolder::Inside inside(folder);
    std::istringstream in{std::string(input)};
    std::ostringstream out;
    zerbal::automation::Session().Serve(in, out);
  }
  folder.RestoreIfChanged();
  return 0;
}
