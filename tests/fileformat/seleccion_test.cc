#include "fileformat/seleccion.h"

#include "fileformat/export2007.h"
#include "fileformat/export2008.h"
#include "fileformat/export2011.h"
#include "fileformat/export2014.h"
#include "testutil.h"

namespace zerbal::fileformat {
namespace {

TEST(ExportSelectionTest, EachYearPicksItsWritersPerRecordType) {
  const struct {
    int32_t year;
    decltype(YearWriters::GenerarReg0) reg0;
    decltype(YearWriters::GenerarReg1) reg1;
    decltype(YearWriters::GenerarReg2) reg2;
    decltype(YearWriters::GenerarReg3) reg3;
  } rows[] = {
      {2030, Export2014::GenerarReg0, Export2014::GenerarReg1, Export2014::GenerarReg2,
       Export2014::GenerarReg3},
      {2014, Export2014::GenerarReg0, Export2014::GenerarReg1, Export2014::GenerarReg2,
       Export2014::GenerarReg3},
      {2013, Export2011::GenerarReg0, Export2011::GenerarReg1, Export2014::GenerarReg2,
       Export2011::GenerarReg3},
      {2012, Export2011::GenerarReg0, Export2011::GenerarReg1, Export2014::GenerarReg2,
       Export2011::GenerarReg3},
      {2011, Export2011::GenerarReg0, Export2011::GenerarReg1, Export2014::GenerarReg2,
       Export2011::GenerarReg3},
      {2010, Export2007::GenerarReg0, Export2008::GenerarReg1, Export2008::GenerarReg2,
       Export2008::GenerarReg3},
      {2009, Export2007::GenerarReg0, Export2008::GenerarReg1, Export2008::GenerarReg2,
       Export2008::GenerarReg3},
      {2008, Export2007::GenerarReg0, Export2008::GenerarReg1, Export2008::GenerarReg2,
       Export2008::GenerarReg3},
      {2007, Export2007::GenerarReg0, Export2007::GenerarReg1, Export2007::GenerarReg2,
       Export2007::GenerarReg3},
      {1999, Export2007::GenerarReg0, Export2007::GenerarReg1, Export2007::GenerarReg2,
       Export2007::GenerarReg3},
      {0, Export2007::GenerarReg0, Export2007::GenerarReg1, Export2007::GenerarReg2,
       Export2007::GenerarReg3},
  };
  for (const auto& row : rows) {
    const YearWriters& writers = WritersFor(row.year);
    EXPECT_EQ(writers.GenerarReg0, row.reg0) << row.year << " record 0";
    EXPECT_EQ(writers.GenerarReg1, row.reg1) << row.year << " record 1";
    EXPECT_EQ(writers.GenerarReg2, row.reg2) << row.year << " record 2";
    EXPECT_EQ(writers.GenerarReg3, row.reg3) << row.year << " record 3";
  }
}

}  // namespace
}  // namespace zerbal::fileformat
