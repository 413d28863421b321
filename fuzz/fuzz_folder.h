// What the fuzz targets share: one temporary folder per process holding a
// pair of databases made by the same code as `zerbal init`, put back as
// made whenever an input has changed them, so that every input meets the
// same files.

#ifndef ZERBAL_FUZZ_FUZZ_FOLDER_H_
#define ZERBAL_FUZZ_FUZZ_FOLDER_H_

#include <string>

#include "data/file_identity.h"
#include "zerbal/error.h"

namespace zerbal::fuzz {

class FuzzFolder {
 public:
  // The process's folder, created on first use and removed at exit.
  static FuzzFolder& Get();

  const std::string& data() const { return data_; }
  const std::string& lookup() const { return lookup_; }

  // Makes the folder the working folder while it lives, so that a file an
  // input names by a plain name lands there (libFuzzer itself keeps its own
  // working folder, where it reads the corpus from).
  class Inside {
   public:
    explicit Inside(const FuzzFolder& folder);
    ~Inside();
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;

   private:
    int previous_;
  };

  // Puts each database back as it was made when an input has written to
  // it (a file renamed into place, as a user would).
  void RestoreIfChanged();

 private:
  FuzzFolder();
  std::string folder_;
  std::string data_;
  std::string lookup_;
  // Each file's identity and times as put back last.
  data::FileIdentity data_stamp_;
  data::FileIdentity lookup_stamp_;
};

// Runs `body`: a raised zerbal::Error is an answer like any other; anything
// else that escapes ends the run as a finding.
template <typename F>
void Tolerating(F&& body) {
  try {
    body();
  } catch (const Error&) {
  }
}

}  // namespace zerbal::fuzz

#endif  // ZERBAL_FUZZ_FUZZ_FOLDER_H_
