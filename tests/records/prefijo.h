// The error prefixes of the record classes: a table of calls, each with the
// text its error must start with.

#ifndef ZERBAL_TESTS_RECORDS_PREFIJO_H_
#define ZERBAL_TESTS_RECORDS_PREFIJO_H_

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "testutil.h"

namespace zerbal::test {

using Prefijos = std::vector<std::pair<std::string, std::function<void()>>>;

// Each call raises, and its description starts with its text.
inline void ExpectPrefixes(const Prefijos& rows) {
  for (const auto& [prefix, call] : rows) {
    const std::optional<Error> error = ErrorOf(call);
    ASSERT_TRUE(error) << prefix;
    EXPECT_EQ(error->Description().rfind(prefix, 0), 0u) << error->Description();
  }
}

}  // namespace zerbal::test

#endif  // ZERBAL_TESTS_RECORDS_PREFIJO_H_
