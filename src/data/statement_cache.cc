#include "data/statement_cache.h"

#include <cctype>

namespace zerbal::data {
namespace {

// Shapes kept per connection: far more than the system builds, few enough
// to bound the memory a stream of odd statements could take.
constexpr size_t kMaxShapes = 512;

// Which of the candidate values get a LIKE range in this call.
std::vector<bool> RangesTaken(const Shape& shape, const std::vector<size_t>& candidates) {
  std::vector<bool> taken;
  std::string low, high;
  for (size_t value : candidates) taken.push_back(PrefixRange(shape.values[value].text, &low, &high));
  return taken;
}

std::string FlagsKey(const std::vector<bool>& taken) {
  std::string key;
  for (bool b : taken) key.push_back(b ? '1' : '0');
  return key;
}

void BindAll(sqlite3* db, sqlite3_stmt* stmt, const Shape& shape, const std::vector<Bind>& binds) {
  for (size_t k = 0; k < binds.size(); ++k) {
    const int index = static_cast<int>(k) + 1;
    const Literal& v = shape.values[binds[k].value];
    int rc;
    if (binds[k].part != Bind::Part::kValue) {
      std::string low, high;
      PrefixRange(v.text, &low, &high);
      const std::string& bound = binds[k].part == Bind::Part::kLow ? low : high;
      rc = sqlite3_bind_text(stmt, index, bound.data(), static_cast<int>(bound.size()),
                             SQLITE_TRANSIENT);
    } else if (v.kind == Literal::Kind::kInteger) {
      rc = sqlite3_bind_int64(stmt, index, v.integer);
    } else if (v.kind == Literal::Kind::kReal) {
      rc = sqlite3_bind_double(stmt, index, v.real);
    } else {
      rc = sqlite3_bind_text(stmt, index, v.text.data(), static_cast<int>(v.text.size()),
                             SQLITE_STATIC);
    }
    Check(rc, db);
  }
}

std::string SqlLiteral(const Literal& v) {
  if (v.kind != Literal::Kind::kText) return v.text;
  std::string out = "'";
  for (char c : v.text) out += c == '\'' ? std::string("''") : std::string(1, c);
  return out + "'";
}

}  // namespace

BoundStatement::BoundStatement(Shape shape, sqlite3_stmt* stmt, Statement owned, bool* in_use)
    : shape_(std::move(shape)), stmt_(stmt), owned_(std::move(owned)), in_use_(in_use) {}

BoundStatement::BoundStatement(BoundStatement&& other) noexcept
    : shape_(std::move(other.shape_)),
      stmt_(other.stmt_),
      owned_(std::move(other.owned_)),
      in_use_(other.in_use_) {
  other.stmt_ = nullptr;
  other.in_use_ = nullptr;
}

BoundStatement::~BoundStatement() {
  if (stmt_ == nullptr || owned_.get() != nullptr) return;
  sqlite3_reset(stmt_);
  sqlite3_clear_bindings(stmt_);
  if (in_use_ != nullptr) *in_use_ = false;
}

BoundStatement StatementCache::Prepare(sqlite3* db, std::string_view sql,
                                       const IndexedTextColumns& indexed) {
  Shape shape = ShapeOf(sql);
  if (shape.definition) {
    // Table definitions change what the kept statements mean; they are
    // prepared once, and the kept ones forgotten.
    Clear();
    Statement stmt = PrepareOne(db, Translate(shape, indexed, {}).sql);
    sqlite3_stmt* raw = stmt.get();
    return BoundStatement(std::move(shape), raw, std::move(stmt), nullptr);
  }
  auto found = entries_.find(shape.key);
  if (found == entries_.end()) {
    if (entries_.size() >= kMaxShapes) entries_.clear();
    found = entries_.emplace(shape.key, Entry{RangeCandidates(shape, indexed), {}}).first;
  }
  Entry& entry = found->second;
  const std::vector<bool> taken = RangesTaken(shape, entry.candidates);
  std::unique_ptr<Prepared>& variant = entry.variants[FlagsKey(taken)];
  if (variant && variant->in_use) {
    // Already stepping for an outer call: this one runs on its own copy.
    Translation translation = Translate(shape, indexed, taken);
    Statement stmt = PrepareOne(db, translation.sql);
    BindAll(db, stmt.get(), shape, translation.binds);
    sqlite3_stmt* raw = stmt.get();
    return BoundStatement(std::move(shape), raw, std::move(stmt), nullptr);
  }
  if (!variant) {
    Translation translation = Translate(shape, indexed, taken);
    auto made = std::make_unique<Prepared>();
    made->stmt = PrepareOne(db, translation.sql);
    made->binds = std::move(translation.binds);
    variant = std::move(made);
  }
  BoundStatement bound(std::move(shape), variant->stmt.get(), Statement(), &variant->in_use);
  variant->in_use = true;
  BindAll(db, bound.get(), bound.shape(), variant->binds);
  return bound;
}

std::string InlinedSql(const Shape& shape, const IndexedTextColumns& indexed) {
  const std::vector<size_t> candidates = RangeCandidates(shape, indexed);
  const Translation translation = Translate(shape, indexed, RangesTaken(shape, candidates));
  std::string out;
  const std::string& sql = translation.sql;
  for (size_t pos = 0; pos < sql.size();) {
    if (sql[pos] != '?' ) {
      // Texts between apostrophes are copied whole: a "?" there is no parameter.
      if (sql[pos] == '\'') {
        const size_t end = sql.find('\'', pos + 1);
        const size_t stop = end == std::string::npos ? sql.size() : end + 1;
        out.append(sql, pos, stop - pos);
        pos = stop;
      } else {
        out.push_back(sql[pos++]);
      }
      continue;
    }
    size_t end = pos + 1;
    while (end < sql.size() && std::isdigit(static_cast<unsigned char>(sql[end]))) ++end;
    const Bind& bind = translation.binds[std::stoul(sql.substr(pos + 1, end - pos - 1)) - 1];
    const Literal& v = shape.values[bind.value];
    if (bind.part == Bind::Part::kValue) {
      out += SqlLiteral(v);
    } else {
      Literal range;
      std::string low, high;
      PrefixRange(v.text, &low, &high);
      range.text = bind.part == Bind::Part::kLow ? low : high;
      out += SqlLiteral(range);
    }
    pos = end;
  }
  return out;
}

}  // namespace zerbal::data
