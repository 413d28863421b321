#include "fileformat/seleccion.h"

#include "fileformat/export2007.h"
#include "fileformat/export2008.h"
#include "fileformat/export2011.h"
#include "fileformat/export2014.h"
#include "testutil.h"

namespace zerbal::fileformat {
namespace {

// Both sides of each year where a record's layout changes; from 2011 to 2013
// the operations are written as in 2014.
TEST(ExportSelectionTest, EachYearPicksItsWritersPerRecordType) {
  namespace e07 = Export2007;
  namespace e08 = Export2008;
  namespace e11 = Export2011;
  namespace e14 = Export2014;
  const YearWriters rows[] = {
      {2014, e14::GenerarReg0, e14::GenerarReg1, e14::GenerarReg2, e14::GenerarReg3},
      {2013, e11::GenerarReg0, e11::GenerarReg1, e14::GenerarReg2, e11::GenerarReg3},
      {2011, e11::GenerarReg0, e11::GenerarReg1, e14::GenerarReg2, e11::GenerarReg3},
      {2010, e07::GenerarReg0, e08::GenerarReg1, e08::GenerarReg2, e08::GenerarReg3},
      {2008, e07::GenerarReg0, e08::GenerarReg1, e08::GenerarReg2, e08::GenerarReg3},
      {2007, e07::GenerarReg0, e07::GenerarReg1, e07::GenerarReg2, e07::GenerarReg3},
  };
  for (const YearWriters& row : rows) {
    const YearWriters& writers = WritersFor(row.desde);
    EXPECT_EQ(writers.GenerarReg0, row.GenerarReg0) << row.desde << " record 0";
    EXPECT_EQ(writers.GenerarReg1, row.GenerarReg1) << row.desde << " record 1";
    EXPECT_EQ(writers.GenerarReg2, row.GenerarReg2) << row.desde << " record 2";
    EXPECT_EQ(writers.GenerarReg3, row.GenerarReg3) << row.desde << " record 3";
  }
}

}  // namespace
}  // namespace zerbal::fileformat
