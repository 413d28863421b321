// Record layouts of the declaration file, each written once as data.
//
// A layout is a constant table of fields that reads like the layout tables
// of the file: every field has its 1-based start, its width, its kind (how
// the value is formatted) and its source (which buffer element or computed
// value it shows). The record writers of the year modules write records from
// these tables; the import's splitters cut lines with the same ones
// (ReadField). The conversions of state-layout lines use the same tables,
// with fields taken from the state line (Estatal) instead of a buffer.
//
// Every table is checked where it is defined (static_assert on FaultyField):
// a field that does not start where the previous one ends, a constant whose
// text is not its width, or a last field that does not end at the record's
// length stops the build. WriteRecord checks the same before writing, so a
// table assembled any other way fails with error 51 instead of a bad file.
//
// Values that do not fit are not guarded: a number with more digits than its
// width, or a negative number in a field without a sign position (it gets a
// leading "-"), is written in full and the record comes out longer; an empty
// text in a "00"/"000" mask field, or a 2007 key that ConvertirClave does not
// know, comes out empty and the record shorter. Validated data never holds
// such values; writing them as they are keeps the fault visible (a record of
// the wrong length) instead of sending an amount or code silently changed.
// A MisfitWatch names the field that did it.

#ifndef ZERBAL_FILEFORMAT_LAYOUT_H_
#define ZERBAL_FILEFORMAT_LAYOUT_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::fileformat {

enum class Kind : uint8_t {
  kConstant,      // the source's literal
  kBlanks,        // `width` blanks
  kText,          // T(w): the text cut to w characters or padded with blanks
  kTextZeroFill,  // T(w) with fill "0", of the text without surrounding blanks
  kNumber,        // N(w): the value converted to a number (13 not a number, 94 Null)
  kNumberBC,      // N(w) of BC: anything but digits and "-" is 0; never fails
  kMask,          // Format with w zeros: a text that is not a number passes unchanged
  kAmount,        // A(w): absolute value of BC, zero-filled
  kSignedAmount,  // S+A(w-1): "N" or a blank, then A(w-1) of the same BC value
  kConverted,     // N(w) of the amount, pesetas to euro cents when the currency is "P"
  kKey,           // the operation key through ConvertirClave (2007 and before)
  kTrimmed,       // T(w) of the text without surrounding blanks
  kFlag,          // the source's letter when the text is not blank, else a blank
  kMaskBC,        // BC formatted with the mask "0#" (w characters: "0" and w-1 "#")
};

// Values a writer works out before it writes, numbered as elements.
enum Valor : int16_t {
  kEjercicio,         // the fiscal year written into the record
  kNoTotalDtes,       // record 0: number of declarants
  kNoTotalDos,        // record 0: number of type-2 and type-3 records
  kCodigoPostal,      // record 0: province followed by the last three postal-code digits
  kUltimosCodPostal,  // declarants file: last three characters of element 11
  kTotales,           // record 1: four values per key "A" to "E" from here
  // Conversions of state lines: what a rule works out from several fields.
  kNifDeclarado = kTotales + 5 * 4,  // the declared party's NIF (2008 and 2007)
  kNifArrendatario,  // the tenant's NIF, none when the premises' province reads 0
  kClave,            // the operation key through ConvertirClave (2007)
  kProvPais,         // the province and country through ConvertirProvPais (2007)
  kMonedaDte,        // "P" or "E" at the end of a 2007 declarant line
  kValores,
};

// The four values of one key of record 1.
enum ParteTotal : int16_t {
  kCuenta,    // number of operations (TablaTotales column 2)
  kSigno,     // "N" when the sum is negative, a blank otherwise
  kMagnitud,  // the sum's text without its "-"
  kSuma,      // the sum as it stands (TablaTotales column 1)
};

constexpr int16_t TotalIndex(char key, ParteTotal part) {
  return static_cast<int16_t>(kTotales + (key - 'A') * 4 + part);
}

// Where a field's value comes from. The presenter and the declarant buffer
// take the same place (record 0 has no declarant); so do the operation and
// the rental buffer. A state line's field is its characters `element` to
// `element + length - 1`.
enum class From : uint8_t { kNothing, kLiteral, kPersona, kRecord, kValue, kLinea };

struct Source {
  From from = From::kNothing;
  int16_t element = 0;
  std::string_view literal;
  int16_t length = 0;
};

constexpr Source Literal(std::string_view text) { return {From::kLiteral, 0, text}; }
constexpr Source Presentador(int16_t element) { return {From::kPersona, element, {}}; }
constexpr Source Declarante(int16_t element) { return {From::kPersona, element, {}}; }
constexpr Source Declarado(int16_t element) { return {From::kRecord, element, {}}; }
constexpr Source Arrendamiento(int16_t element) { return {From::kRecord, element, {}}; }
constexpr Source Calculado(Valor valor) { return {From::kValue, valor, {}}; }
constexpr Source Total(char key, ParteTotal part) {
  return {From::kValue, TotalIndex(key, part), {}};
}
// Characters `desde` to `hasta` of the state line being converted.
constexpr Source Estatal(int16_t desde, int16_t hasta) {
  return {From::kLinea, desde, {}, static_cast<int16_t>(hasta - desde + 1)};
}

struct Field {
  std::string_view name;
  int16_t start = 0;  // 1-based, as in the layout tables
  int16_t width = 0;
  Kind kind = Kind::kBlanks;
  Source source;
};

// One maker per kind, so that a table row reads like a row of the layout.
constexpr Field Const(int16_t start, std::string_view text) {
  return {text, start, static_cast<int16_t>(text.size()), Kind::kConstant, Literal(text)};
}
constexpr Field Blanks(int16_t start, int16_t width) {
  return {"blancos", start, width, Kind::kBlanks, {}};
}
template <Kind kind>
constexpr Field Make(std::string_view name, int16_t start, int16_t width, Source source) {
  return {name, start, width, kind, source};
}
inline constexpr auto T = Make<Kind::kText>;
inline constexpr auto T0 = Make<Kind::kTextZeroFill>;
inline constexpr auto N = Make<Kind::kNumber>;
inline constexpr auto NBC = Make<Kind::kNumberBC>;
inline constexpr auto Mask = Make<Kind::kMask>;
inline constexpr auto A = Make<Kind::kAmount>;
inline constexpr auto SA = Make<Kind::kSignedAmount>;
inline constexpr auto Pts = Make<Kind::kConverted>;
inline constexpr auto Key = Make<Kind::kKey>;
inline constexpr auto TT = Make<Kind::kTrimmed>;
inline constexpr auto MaskBC = Make<Kind::kMaskBC>;
// "X" or "R" in one position when the source is filled.
constexpr Field Flag(std::string_view name, int16_t start, std::string_view letter,
                     Source source) {
  source.literal = letter;
  return {name, start, 1, Kind::kFlag, source};
}

// Pieces of a layout joined in order (shared heads and tails are written once).
template <typename T, size_t... N>
constexpr std::array<T, (N + ...)> Join(const std::array<T, N>&... parts) {
  std::array<T, (N + ...)> all{};
  size_t next = 0;
  ((std::copy(parts.begin(), parts.end(), all.begin() + next), next += N), ...);
  return all;
}

struct Layout {
  std::string_view name;
  int16_t length;  // characters of a record whose values fit
  std::span<const Field> fields;
};

// The index of the first field that is out of place (not starting where the
// previous one ends, not at least one character wide, a constant whose text
// is not its width, a computed value that does not exist, a state field of
// no characters); the number of
// fields when the last one does not end at the record's length; -1 when the
// layout is sound.
constexpr int FaultyField(const Layout& layout) {
  int next = 1;
  for (size_t i = 0; i < layout.fields.size(); ++i) {
    const Field& f = layout.fields[i];
    const bool constant_fits =
        f.kind != Kind::kConstant || f.source.literal.size() == static_cast<size_t>(f.width);
    const bool value_exists = f.source.from != From::kValue ||
                              (f.source.element >= 0 && f.source.element < kValores);
    const bool span_exists =
        f.source.from != From::kLinea || (f.source.element >= 1 && f.source.length >= 1);
    if (f.start != next || f.width < 1 || !constant_fits || !value_exists || !span_exists) {
      return static_cast<int>(i);
    }
    next += f.width;
  }
  return next == layout.length + 1 ? -1 : static_cast<int>(layout.fields.size());
}

// The field of `fields` called `name`. Used in a constant expression, a name
// that is not there stops the build.
constexpr Field FieldNamed(std::span<const Field> fields, std::string_view name) {
  for (const Field& f : fields) {
    if (f.name == name) return f;
  }
  throw "no field of that name";
}

// The text of `field` as it stands in `line`: `width` characters from its
// start, fewer or none where the line ends sooner. This is how the import's
// splitters cut a line with the table the writer wrote it from.
std::string ReadField(const Field& field, std::string_view line);

// What a record is written from; the buffers are borrowed for the call. A
// missing buffer reads as Empty, so a field taken from it raises 13.
struct RecordInput {
  const Variant* persona = nullptr;  // presenter or declarant buffer
  const Variant* record = nullptr;   // operation or rental buffer
  std::array<Variant, kValores> values;
  std::string_view moneda;  // the currency letter: "P" converts pesetas
  std::string_view linea;   // the state line being converted; past its end reads as ""
};

// One field, formatted by its kind. Errors of the conversions pass unchanged:
// 13 for a number field whose text is not a number (the empty text
// included), 94 for a Null where text is needed, 9 for an element outside
// its buffer.
std::string WriteField(const Field& field, const RecordInput& input);

// Every field of `layout` in order. Raises 51 when the layout is faulty.
std::string WriteRecord(const Layout& layout, const RecordInput& input);

// A field whose text came out longer or shorter than its width.
struct Misfit {
  std::string_view layout;  // "Export2014 registro 0"
  const Field* field;
  std::string text;    // what was written for it
  int32_t record = 0;  // records written under the watch before this one's
};

// While a watch lives, WriteRecord tells it of every record written on its
// thread, and it keeps the first field of them whose text is not the
// field's width; records are written as ever. A watch made inside another
// takes the notes until it ends.
class MisfitWatch {
 public:
  MisfitWatch();
  ~MisfitWatch();
  MisfitWatch(const MisfitWatch&) = delete;
  MisfitWatch& operator=(const MisfitWatch&) = delete;

  const std::optional<Misfit>& First() const { return first_; }
  // A record written; `misfit` is its first field that did not fit, if any.
  void Saw(std::optional<Misfit> misfit);

 private:
  MisfitWatch* outer_;
  std::optional<Misfit> first_;
  int32_t records_ = 0;
};

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_H_
