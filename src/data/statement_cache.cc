#include "data/statement_cache.h"

#include <cctype>

namespace zerbal::data {
namespace {

// Shapes kept per connection: far more than the system builds, few enough
// to bound the memory a stream of odd statements could take.
constexpr size_t kMaxShapes = 512;

// Which of the candidate values get a LIKE range in this call.
std::vector<bool> RangesTaken(const std::vector<Literal>& values,
                              const std::vector<size_t>& candidates) {
  std::vector<bool> taken;
  std::string low, high;
  for (size_t value : candidates) taken.push_back(PrefixRange(values[value].text, &low, &high));
  return taken;
}

std::string FlagsKey(const std::vector<bool>& taken) {
  std::string key;
  for (bool b : taken) key.push_back(b ? '1' : '0');
  return key;
}

// The text a parameter stands for: the value itself or a bound of its range.
std::string RangeBound(const Literal& v, Bind::Part part) {
  std::string low, high;
  PrefixRange(v.text, &low, &high);
  return part == Bind::Part::kLow ? low : high;
}

void BindAll(sqlite3* db, sqlite3_stmt* stmt, const std::vector<Literal>& values,
             const std::vector<Bind>& binds) {
  for (size_t k = 0; k < binds.size(); ++k) {
    const int index = static_cast<int>(k) + 1;
    const Literal& v = values[binds[k].value];
    int rc;
    if (binds[k].part != Bind::Part::kValue) {
      const std::string bound = RangeBound(v, binds[k].part);
      rc = sqlite3_bind_text(stmt, index, bound.data(), static_cast<int>(bound.size()),
                             SQLITE_TRANSIENT);
    } else if (v.kind == Literal::Kind::kInteger) {
      rc = sqlite3_bind_int64(stmt, index, v.integer);
    } else if (v.kind == Literal::Kind::kReal) {
      rc = sqlite3_bind_double(stmt, index, v.real);
    } else {
      // The values outlive the statement's run (BoundStatement holds them).
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

BoundStatement::BoundStatement(BoundStatement&& other) noexcept
    : values_(std::move(other.values_)),
      stmt_(other.stmt_),
      owned_(std::move(other.owned_)),
      in_use_(other.in_use_),
      definition_(other.definition_),
      key_use_(other.key_use_),
      own_key_use_(std::move(other.own_key_use_)) {
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
  BoundStatement bound;
  bound.definition_ = shape.definition;
  auto one_off = [&](const Tokens& tokens, const std::vector<bool>& taken) {
    // A statement run once: a table definition (which changes what the kept
    // statements mean, so they are forgotten), or one already stepping for
    // an outer call.
    Translation translation = Translate(tokens, shape.values, indexed, taken);
    bound.owned_ = PrepareOne(db, translation.sql);
    bound.stmt_ = bound.owned_.get();
    bound.values_ = std::move(shape.values);
    BindAll(db, bound.stmt_, bound.values_, translation.binds);
    bound.own_key_use_ = std::make_unique<KeyUse>(KeyUseOf(tokens));
    bound.key_use_ = bound.own_key_use_.get();
    return std::move(bound);
  };
  if (shape.definition) {
    Clear();
    const Tokens tokens = Tokenize(shape.text);
    CheckShape(tokens, true);
    return one_off(tokens, {});
  }
  std::unique_ptr<Entry>& entry = entries_[shape.key];
  if (!entry) {
    auto made = std::make_unique<Entry>();
    made->tokens = Tokenize(shape.text);
    CheckShape(made->tokens, false);
    made->candidates = RangeCandidates(made->tokens, shape.values, indexed);
    made->key_use = KeyUseOf(made->tokens);
    if (entries_.size() > kMaxShapes) {
      entries_.clear();
      return Prepare(db, sql, indexed);  // after the clear, made again under its key
    }
    entry = std::move(made);
  }
  const std::vector<bool> taken = RangesTaken(shape.values, entry->candidates);
  std::unique_ptr<Prepared>& prepared = entry->prepared[FlagsKey(taken)];
  if (prepared && prepared->in_use) return one_off(entry->tokens, taken);
  if (!prepared) {
    Translation translation = Translate(entry->tokens, shape.values, indexed, taken);
    auto made = std::make_unique<Prepared>();
    made->stmt = PrepareOne(db, translation.sql);
    made->binds = std::move(translation.binds);
    prepared = std::move(made);
  }
  bound.stmt_ = prepared->stmt.get();
  bound.values_ = std::move(shape.values);
  bound.key_use_ = &entry->key_use;
  BindAll(db, bound.stmt_, bound.values_, prepared->binds);
  bound.in_use_ = &prepared->in_use;
  prepared->in_use = true;
  return bound;
}

std::string InlinedSql(std::string_view sql, const IndexedTextColumns& indexed) {
  const Shape shape = ShapeOf(sql);
  const Tokens tokens = Tokenize(shape.text);
  CheckShape(tokens, shape.definition);
  const std::vector<size_t> candidates = RangeCandidates(tokens, shape.values, indexed);
  const Translation translation =
      Translate(tokens, shape.values, indexed, RangesTaken(shape.values, candidates));
  std::string out;
  const std::string& text = translation.sql;
  for (size_t pos = 0; pos < text.size();) {
    Tok kind;
    const size_t len = ScanToken(text, pos, &kind);
    if (kind != Tok::kParam) {
      out.append(text, pos, len);
      pos += len;
      continue;
    }
    size_t end = pos + 1;
    while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end]))) ++end;
    const Bind& bind = translation.binds[std::stoul(text.substr(pos + 1, end - pos - 1)) - 1];
    const Literal& v = shape.values[bind.value];
    if (bind.part == Bind::Part::kValue) {
      out += SqlLiteral(v);
    } else {
      Literal range;
      range.text = RangeBound(v, bind.part);
      out += SqlLiteral(range);
    }
    pos = end;
  }
  return out;
}

}  // namespace zerbal::data
