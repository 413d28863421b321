// One unit of changes to a database: every change made through the database
// between Begin and Commit reaches the file together, or none does. A
// process ended inside one leaves the file as it was before it began (the
// engine's rollback journal puts it back on the next open).

#ifndef ZERBAL_DATA_TRANSACTION_H_
#define ZERBAL_DATA_TRANSACTION_H_

#include <memory>

#include "data/database.h"

namespace zerbal::data {

class Transaction {
 public:
  // Begins on `db`'s connection, taking the write lock at once: while
  // another connection or process writes, it waits for the busy timeout and
  // then raises 3260.
  explicit Transaction(const Database& db);
  // Rolls back unless committed; never throws.
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  // Makes the changes permanent; raises (and stays uncommitted) when the
  // engine cannot write them.
  void Commit();

 private:
  std::shared_ptr<Connection> conn_;
  bool open_ = false;
};

// Raises unless `db` can be written now: 3027 when the file (or its folder)
// can only be read, 3260 when another connection or process is writing it
// (after the busy timeout). Changes nothing.
void CheckWritable(const Database& db);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_TRANSACTION_H_
