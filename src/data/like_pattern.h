// The LIKE of the original engine: "*" any run of characters, "?" any one
// character, "#" one digit, "[abc]" and "[a-z]" one character of a set,
// "[!abc]" one character outside it; letters match in either case.

#ifndef ZERBAL_DATA_LIKE_PATTERN_H_
#define ZERBAL_DATA_LIKE_PATTERN_H_

#include <string_view>

namespace zerbal::data {

bool LikePattern(std::string_view text, std::string_view pattern);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_LIKE_PATTERN_H_
