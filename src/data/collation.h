// The order of text in the database: letters compare without regard to
// case (every Latin letter, accented or not, as LIKE folds them), anything
// else by its code point. For text without capital letters beyond ASCII it
// is the engine's own NOCASE order, so an index stays readable by other
// tools.

#ifndef ZERBAL_DATA_COLLATION_H_
#define ZERBAL_DATA_COLLATION_H_

#include <string_view>

namespace zerbal::data {

// Negative, zero or positive as `a` sorts before, with or after `b`.
int CompareFolded(std::string_view a, std::string_view b);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_COLLATION_H_
