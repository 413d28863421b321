#include "data/pg_engine.h"

#include <cstdlib>
#include <limits>

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "data/recordset_state.h"

namespace zerbal::data {
namespace {

// Shapes kept per connection, as for files (statement_cache.cc).
constexpr size_t kMaxShapes = 512;

constexpr Oid kFloat8Type = 701;

// The first word of a shape: what kind of statement it is.
bool StartsWith(const Shape& shape, std::string_view word) {
  const size_t begin = shape.text.find_first_not_of(" \t\r\n(");
  if (begin == std::string::npos) return false;
  return SameText(std::string_view(shape.text).substr(begin, word.size()), word) &&
         (shape.text.size() == begin + word.size() ||
          std::string_view(" \t\r\n(").find(shape.text[begin + word.size()]) != std::string_view::npos);
}

std::string Quoted(std::string_view text) {
  std::string out = "'";
  for (char c : text) out += c == '\'' ? std::string("''") : std::string(1, c);
  return out + "'";
}

// A value with a minus sign before it, as the server reads a number.
std::string Negated(const std::string& text) {
  return text.starts_with('-') ? text.substr(1) : "-" + text;
}

}  // namespace

std::shared_ptr<PgConnection> PgConnection::Open(const std::string& uri, bool read_only) {
  std::shared_ptr<PgConnection> conn(new PgConnection(uri, PgConnect(uri), read_only));
  conn->Configure();
  conn->ReadCounters();
  if (conn->counters_.empty()) {
    conn->Retire();
    Raise(errc::kUnrecognizedFormat, "no tables of this system in " + uri, kEngineSource);
  }
  return conn;
}

PgConnection::~PgConnection() { Retire(); }

void PgConnection::Configure() {
  PQsetNoticeProcessor(handle_.get(), [](void*, const char*) {}, nullptr);
  lock_timeout_ = BusyTimeout();
  std::string setup = "SET client_encoding = 'UTF8'; SET lock_timeout = " +
                      std::to_string(lock_timeout_.count()) + ";";
  if (read_only_) setup += " SET default_transaction_read_only = on;";
  PgExecScript(handle_.get(), setup);
}

// The tables of the database's schema, each with its counter (empty for
// none).
void PgConnection::ReadCounters() {
  PgResult r = PgExec(handle_.get(),
                      "SELECT c.relname, coalesce(a.attname, '') FROM pg_class c "
                      "JOIN pg_namespace n ON n.oid = c.relnamespace "
                      "LEFT JOIN pg_attribute a ON a.attrelid = c.oid AND a.attidentity <> '' "
                      "AND NOT a.attisdropped "
                      "WHERE n.nspname = current_schema() AND c.relkind = 'r'");
  counters_.clear();
  for (int row = 0; row < PQntuples(r.get()); ++row) {
    counters_[LCase(PQgetvalue(r.get(), row, 0))] = PQgetvalue(r.get(), row, 1);
  }
}

std::string PgConnection::CounterOf(std::string_view table) const {
  const auto it = counters_.find(LCase(table));
  return it == counters_.end() ? std::string() : it->second;
}

void PgConnection::Retire() {
  if (retired()) return;
  set_retired();
  prepared_.clear();
  handle_.reset();
}

bool PgConnection::IsCurrent() const {
  return handle_ && PQstatus(handle_.get()) == CONNECTION_OK &&
         PQtransactionStatus(handle_.get()) == PQTRANS_IDLE;
}

void PgConnection::Reused() {
  inserted_key_.Forget();  // a key read back belongs to its own call
  if (BusyTimeout() != lock_timeout_) {
    lock_timeout_ = BusyTimeout();
    PgExecScript(handle_.get(), "SET lock_timeout = " + std::to_string(lock_timeout_.count()));
  }
}

void PgConnection::Forget() {
  if (!prepared_.empty() && PQstatus(handle_.get()) == CONNECTION_OK) {
    PgResult ignored(PQexec(handle_.get(), "DEALLOCATE ALL"));
  }
  prepared_.clear();
}

PgConnection::Prepared& PgConnection::Entry(const Shape& shape) {
  std::unique_ptr<Prepared>& entry = prepared_[shape.key];
  if (entry) return *entry;
  auto made = std::make_unique<Prepared>();
  const Tokens tokens = Tokenize(shape.text);
  CheckShape(tokens, false);
  made->key_use = KeyUseOf(tokens);
  made->names = SelectedNames(tokens);
  const std::string counter =
      made->key_use.insert_table.empty() ? std::string() : CounterOf(made->key_use.insert_table);
  Translation translation = TranslateForServer(tokens, counter);
  made->returning = !counter.empty();
  made->sql = std::move(translation.sql);
  made->binds = std::move(translation.binds);
  made->name = "z" + std::to_string(next_name_++);
  if (prepared_.size() > kMaxShapes) {
    Forget();
    return Entry(shape);
  }
  entry = std::move(made);
  return *entry;
}

PgResult PgConnection::RunOnce(const Shape& shape, Prepared& entry) {
  PGconn* c = handle_.get();
  if (!entry.on_server) {
    std::vector<Oid> types;
    for (const Bind& b : entry.binds) {
      types.push_back(shape.values[b.value].kind == Literal::Kind::kReal ? kFloat8Type : 0);
    }
    PgResult prepared(PQprepare(c, entry.name.c_str(), entry.sql.c_str(),
                                static_cast<int>(types.size()), types.data()));
    if (!PgSucceeded(prepared.get())) return prepared;
    entry.on_server = true;
  }
  std::vector<std::string> patterns;
  patterns.reserve(entry.binds.size());
  std::vector<const char*> values;
  values.reserve(entry.binds.size());
  for (const Bind& b : entry.binds) {
    const Literal& v = shape.values[b.value];
    if (b.part == Bind::Part::kPattern && v.kind == Literal::Kind::kText) {
      values.push_back(patterns.emplace_back(PatternRegex(v.text)).c_str());
    } else if (b.part == Bind::Part::kNegated) {
      values.push_back(patterns.emplace_back(Negated(v.text)).c_str());
    } else {
      values.push_back(v.text.c_str());
    }
  }
  return PgResult(PQexecPrepared(c, entry.name.c_str(), static_cast<int>(values.size()),
                                 values.data(), nullptr, nullptr, 0));
}

void PgConnection::Reconnect() {
  PQreset(handle_.get());
  for (auto& [key, entry] : prepared_) entry->on_server = false;
  if (PQstatus(handle_.get()) != CONNECTION_OK) RaisePgError(handle_.get(), nullptr);
  Configure();
}

PgResult PgConnection::Run(const Shape& shape, Prepared& entry) {
  PGconn* c = handle_.get();
  if (PQstatus(c) != CONNECTION_OK) Reconnect();
  const bool in_transaction = PQtransactionStatus(c) != PQTRANS_IDLE;
  PgResult r = RunOnce(shape, entry);
  if (PgSucceeded(r.get())) return r;
  const char* state = r ? PQresultErrorField(r.get(), PG_DIAG_SQLSTATE) : nullptr;
  if (PQstatus(c) == CONNECTION_BAD && !in_transaction) {
    // Gone since its last use (a server restarted): sent again once.
    Reconnect();
    r = RunOnce(shape, entry);
  } else if (state != nullptr && !in_transaction &&
             (std::string_view(state) == "0A000" || std::string_view(state) == "26000")) {
    // The tables changed under a kept statement: prepared afresh.
    PgResult ignored(PQexec(c, ("DEALLOCATE " + entry.name).c_str()));
    entry.on_server = false;
    r = RunOnce(shape, entry);
  }
  if (!PgSucceeded(r.get())) RaisePgError(c, r.get());
  return r;
}

void PgConnection::RunDefinition(const Shape& shape) {
  const Tokens tokens = Tokenize(shape.text);
  CheckShape(tokens, true);
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].text == ";" && Next(tokens, i + 1) < tokens.size() && !Is(tokens, Next(tokens, i + 1), ";")) {
      Raise(errc::kTextAfterStatement, shape.text.substr(0, 60), kEngineSource);
    }
  }
  Forget();
  // The extended protocol runs one statement, whatever the text holds.
  PgExec(handle_.get(), shape.text);
  ReadCounters();
}

void PgConnection::Execute(std::string_view sql) {
  inserted_key_.Forget();
  const Shape shape = ShapeOf(sql);
  if (shape.definition) return RunDefinition(shape);
  if (StartsWith(shape, "SELECT")) Raise(errc::kSelectInExecute, {}, kEngineSource);
  Prepared& entry = Entry(shape);
  const PgResult r = Run(shape, entry);
  int64_t rows = 0;
  int64_t key = 0;
  if (entry.returning) {
    rows = PQntuples(r.get());
    if (rows == 1) key = std::strtoll(PQgetvalue(r.get(), 0, 0), nullptr, 10);
  } else {
    rows = std::strtoll(PQcmdTuples(r.get()), nullptr, 10);
  }
  inserted_key_.AfterStatement(entry.key_use, rows, key);
}

void PgConnection::Query(std::string_view sql, RecordsetState& out) {
  const Shape shape = ShapeOf(sql);
  if (!StartsWith(shape, "SELECT")) Raise(errc::kInvalidOperation, {}, kEngineSource);
  Prepared& entry = Entry(shape);
  const auto key = inserted_key_.ReadBack(entry.key_use, [&](const std::string& t, const std::string& c) {
    return SameText(CounterOf(t), c);
  });
  if (key) {
    out.names.push_back("max");
    out.values.push_back(Variant(static_cast<int32_t>(*key)));
    out.rows = 1;
    return;
  }
  const PgResult r = Run(shape, entry);
  const int columns = PQnfields(r.get());
  const int rows = PQntuples(r.get());
  for (int c = 0; c < columns; ++c) {
    // The server gives unquoted names in lower case; the statement's own
    // spelling is kept, as a file gives it.
    const char* name = PQfname(r.get(), c);
    const bool written = static_cast<size_t>(c) < entry.names.size() && SameText(entry.names[c], name);
    out.names.emplace_back(written ? entry.names[c] : name);
  }
  out.values.reserve(static_cast<size_t>(columns) * static_cast<size_t>(rows));
  for (int row = 0; row < rows; ++row) {
    for (int c = 0; c < columns; ++c) out.values.push_back(PgValue(r.get(), row, c));
  }
  out.rows = rows;
}

std::string PgConnection::Translate(std::string_view sql) const {
  const Shape shape = ShapeOf(sql);
  if (shape.definition) return shape.text;
  const Tokens tokens = Tokenize(shape.text);
  CheckShape(tokens, false);
  const KeyUse use = KeyUseOf(tokens);
  const Translation translation =
      TranslateForServer(tokens, use.insert_table.empty() ? "" : CounterOf(use.insert_table));
  std::string out;
  const Tokens written = Tokenize(translation.sql);
  for (size_t i = 0; i < written.size(); ++i) {
    if (written[i].text == "$" && i + 1 < written.size() && written[i + 1].kind == Tok::kNumber) {
      const Bind& b = translation.binds[std::stoul(written[i + 1].text) - 1];
      const Literal& v = shape.values[b.value];
      const std::string text = b.part == Bind::Part::kPattern   ? PatternRegex(v.text)
                               : b.part == Bind::Part::kNegated ? Negated(v.text)
                                                                : v.text;
      out += v.kind == Literal::Kind::kText ? Quoted(text) : text;
      ++i;
    } else {
      out += written[i].text;
    }
  }
  return out;
}

void PgConnection::Begin() { PgExecScript(handle_.get(), "BEGIN"); }

void PgConnection::Commit() { PgExecScript(handle_.get(), "COMMIT"); }

void PgConnection::Rollback() noexcept {
  if (!handle_) return;
  PgResult ignored(PQexec(handle_.get(), "ROLLBACK"));
  try {
    ReadCounters();  // the tables may be as they were before it began
  } catch (...) {
  }
}

void PgConnection::CheckWritable() {
  PgResult r = PgExec(handle_.get(), "SHOW transaction_read_only");
  if (read_only_ || std::string_view(PQgetvalue(r.get(), 0, 0)) == "on") {
    Raise(errc::kReadOnly, path(), kEngineSource);
  }
}

}  // namespace zerbal::data
