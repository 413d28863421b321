// The dialect on any SQL text: lifting the values out, checking the shape,
// the LIKE ranges and the translation, then running the statement on a data
// database made by `zerbal init` (any but a query inside a transaction that
// is rolled back, so that every input meets the same tables). Every
// refusal must be a numbered error.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/database.h"
#include "data/dialect.h"
#include "data/statement_cache.h"
#include "data/transaction.h"
#include "fuzz_folder.h"

namespace {

using namespace zerbal::data;

// Columns that indexes of the data database start with, as the connection
// finds them.
const IndexedTextColumns kIndexed = {"dni_cifd", "dni_cifp", "nombred", "nif", "nombre"};

void Translated(std::string_view sql) {
  const Shape shape = ShapeOf(sql);
  const Tokens tokens = Tokenize(shape.text);
  CheckShape(tokens, shape.definition);
  const std::vector<size_t> candidates = RangeCandidates(tokens, shape.values, kIndexed);
  std::vector<bool> ranged;
  for (size_t k = 0; k < candidates.size(); ++k) {
    std::string low, high;
    const Literal& value = shape.values.at(candidates[k]);
    ranged.push_back(value.kind == Literal::Kind::kText && PrefixRange(value.text, &low, &high));
  }
  Translate(tokens, shape.values, kIndexed, ranged);
  InlinedSql(sql, kIndexed);
}

Database& DataDatabase() {
  static Workspace workspace("wrk", "admin", "", 2);
  static Database db =
      workspace.OpenDatabase(zerbal::fuzz::FuzzFolder::Get().data(), false, false, "");
  return db;
}

void Run(std::string_view sql) {
  Database& db = DataDatabase();
  const Tokens tokens = Tokenize(sql);
  if (Is(tokens, Next(tokens, 0), "SELECT")) {
    db.OpenRecordset(sql);  // a query changes nothing
    return;
  }
  Transaction changes(db);  // rolled back
  db.Execute(sql);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view sql(reinterpret_cast<const char*>(data), size);
  bool translated = false;
  zerbal::fuzz::Tolerating([&] {
    Translated(sql);
    translated = true;
  });
  if (translated) zerbal::fuzz::Tolerating([&] { Run(sql); });
  return 0;
}
