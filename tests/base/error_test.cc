#include "base/raise.h"

#include <new>
#include <stdexcept>

#include "testutil.h"

namespace zerbal {
namespace {

TEST(ErrorTest, WithPrefixChangesOnlyTheDescription) {
  const auto error = test::ErrorOf([] {
    WithPrefix("cOuter.Method ", [] {
      WithPrefix("cInner.Method ", [] {
        throw Error(3021, "zerbal.Database", "No current record.", "help.chm", 42);
      });
    });
  });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), 3021);
  EXPECT_EQ(error->Source(), "zerbal.Database");
  EXPECT_EQ(error->Description(), "cOuter.Method cInner.Method No current record.");
  EXPECT_EQ(error->HelpFile(), "help.chm");
  EXPECT_EQ(error->HelpContext(), 42);
}

TEST(ErrorTest, ForeignExceptionsBecomeNumberedErrors) {
  const auto memory = test::ErrorOf([] { WithPrefix("c.M ", [] { throw std::bad_alloc(); }); });
  ASSERT_TRUE(memory);
  EXPECT_EQ(memory->Number(), errc::kOutOfMemory);
  EXPECT_EQ(memory->Description(), "c.M Out of memory");

  const auto other =
      test::ErrorOf([] { WithPrefix("", [] { throw std::runtime_error("boom"); }); });
  ASSERT_TRUE(other);
  EXPECT_EQ(other->Number(), errc::kInternalError);
  EXPECT_EQ(other->Description(), "Internal error: boom");
}

TEST(ErrorTest, RaiseUsesTheStandardTextAndTheDetail) {
  const auto error = test::ErrorOf([] { Raise(errc::kTypeMismatch, "'abc'"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Description(), "Type mismatch: 'abc'");
  EXPECT_EQ(error->Source(), "zerbal");
  EXPECT_TRUE(ErrorText(12345).empty());
}

}  // namespace
}  // namespace zerbal
