// The LIKE of the original engine: "*" any run of characters, "?" any one
// character, "#" one digit, "[abc]" and "[a-z]" one character of a set,
// "[!abc]" one character outside it; letters match in either case.

#ifndef ZERBAL_DATA_JET_LIKE_H_
#define ZERBAL_DATA_JET_LIKE_H_

#include <string_view>

namespace zerbal::data {

bool JetLike(std::string_view text, std::string_view pattern);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_JET_LIKE_H_
