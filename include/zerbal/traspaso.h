// cTraspaso: brings the data database of an earlier year's program up to
// the current columns, in place, after taking a backup copy of it.
//
// The columns come in four groups, each known by a marker column and
// skipped when the table already has it (whatever its case): IMPMET (cash
// and real-estate amounts, and the country code paiso as text), EJERIMPMET
// (the quarterly amounts), SIGLASPAISINTRA (the intra-community and 2014
// columns) in tOperadores, and PROVI (the rentals' province, and their
// paiso as text) in tArrendamientos. Each group is applied whole or not at
// all: a process ended during the upgrade leaves every group either as it
// was or complete, and a second run completes the work.
//
// Before the first change of a run the database is copied to mdbPath +
// "CopSegQORVMod.mdb" (unless that file exists, as after a run cut short);
// the copy holds every completed change. A complete run removes it; a run
// cut short leaves it. The two critical messages (a failed copy, a failed
// group) go to the platform's message box (zerbal/platform.h); a failed
// copy does not stop the groups, and a failed group does not stop the next.
//
// The upgrade opens its own database; it does not use the shared
// connection.

#ifndef ZERBAL_TRASPASO_H_
#define ZERBAL_TRASPASO_H_

#include <string>

#include "zerbal/path_properties.h"

namespace zerbal {

class cTraspaso : public PathProperties {
 public:
  // The folder of the backup copy, with its trailing path separator: the
  // file name is appended as it stands.
  void mdbPath(std::string path) { mdbPath_ = std::move(path); }

  // Runs the upgrade of mdbmod (mdblec is kept but not used), then sets the
  // rentals' province 99 to 0, on every run. Answers False in every case:
  // look at the columns to know the outcome. Errors of opening the database
  // (3027 for one that can only be read, 3260 for one that another process
  // is writing: nothing is created then), of that last statement and of
  // the close reach the caller unchanged.
  bool Traspaso();

 private:
  std::string mdbPath_;
};

}  // namespace zerbal

#endif  // ZERBAL_TRASPASO_H_
