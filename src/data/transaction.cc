#include "data/transaction.h"

#include "base/raise.h"
#include "data/engine.h"

namespace zerbal::data {

Transaction::Transaction(const Database& db) : conn_(db.Engine()) {
  ExecScript(conn_->db(), "BEGIN IMMEDIATE");
  open_ = true;
}

Transaction::~Transaction() {
  if (!open_) return;
  sqlite3_exec(conn_->db(), "ROLLBACK", nullptr, nullptr, nullptr);
  conn_->NoteOwnWrite();
  try {
    conn_->TablesChanged();  // the tables may be as they were before it began
  } catch (...) {
    // The statements are forgotten all the same; the indexes only help LIKE.
  }
}

void Transaction::Commit() {
  ExecScript(conn_->db(), "COMMIT");
  open_ = false;
  conn_->NoteOwnWrite();
}

void CheckWritable(const Database& db) {
  const auto conn = db.Engine();
  if (sqlite3_db_readonly(conn->db(), "main") == 1) {
    Raise(errc::kReadOnly, conn->path(), kEngineSource);
  }
  Transaction probe(db);
}

}  // namespace zerbal::data
