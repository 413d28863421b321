#ifndef ZERBAL_BD_H_
#define ZERBAL_BD_H_

#include <cstdint>

namespace zerbal {

// Which of the two databases a connection operation addresses.
enum BD : int32_t {
  bd347mod = 0,  // the data database
  bd347lec = 1,  // the lookup database
};

}  // namespace zerbal

#endif  // ZERBAL_BD_H_
