#include "data/transaction.h"

#include "data/connection.h"

namespace zerbal::data {

Transaction::Transaction(const Database& db) : conn_(db.Engine()) {
  conn_->Begin();
  open_ = true;
}

Transaction::~Transaction() {
  if (open_) conn_->Rollback();
}

void Transaction::Commit() {
  conn_->Commit();
  open_ = false;
}

void CheckWritable(const Database& db) { db.Engine()->CheckWritable(); }

}  // namespace zerbal::data
