// What the upgrade's tests share: an earlier year's database with a few
// rows, the messages shown, and the schema of a file set out line by line.

#ifndef ZERBAL_TESTS_UPGRADE_UPGRADE_FIXTURE_H_
#define ZERBAL_TESTS_UPGRADE_UPGRADE_FIXTURE_H_

#include <string>
#include <vector>

#include "testutil.h"
#include "zerbal/platform.h"

namespace zerbal::test {

using TextRows = std::vector<std::vector<std::string>>;

// The rows of `sql` on the database at `path`, every value as its text
// ("NULL" for Null).
TextRows Text(const std::string& path, const std::string& sql);

// Two operations and two rentals of a declaration 1, with the columns every
// year has: operation 1 domestic (paiso 0), key X; operation 2 in country
// 724; rental 1 of province 99, rental 2 of province 7. In the databases of
// 2008 on, paiso is the text "FR" or "PT" instead.
void FillEarlier(const std::string& mod, int schema);

// Every table, column (with what the table definitions read of it and its
// definition without blanks), index and trigger of the file, one line each,
// tables by name.
std::vector<std::string> SchemaLines(const std::string& path);
// The same of a new data database.
std::vector<std::string> NewSchemaLines();

// Collects the critical messages shown on this thread while it lives.
class ShownMessages final : public CriticalMessageBox {
 public:
  ShownMessages() { SetCriticalMessageBox(this); }
  ~ShownMessages() override { SetCriticalMessageBox(nullptr); }
  void Show(const std::string& message) override { shown.push_back(message); }
  std::vector<std::string> shown;
};

}  // namespace zerbal::test

#endif  // ZERBAL_TESTS_UPGRADE_UPGRADE_FIXTURE_H_
