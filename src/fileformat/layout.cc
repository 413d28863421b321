#include "fileformat/layout.h"

#include <string>

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "fileformat/pesetas.h"
#include "reference/general.h"

namespace zerbal::fileformat {
namespace {

const Variant& Buffer(const Variant* buffer) {
  static const Variant kNone;
  return buffer != nullptr ? *buffer : kNone;
}

const Variant& ValueOf(const Source& source, const RecordInput& input) {
  switch (source.from) {
    case From::kPersona: return Buffer(input.persona)(source.element);
    case From::kRecord: return Buffer(input.record)(source.element);
    case From::kValue: return input.values[source.element];
    case From::kNothing:
    case From::kLiteral:
    case From::kLinea: break;  // cut by WriteField
  }
  return Buffer(nullptr);
}

// Euro cents of an amount in pesetas when the currency is "P".
double Converted(const Variant& value, std::string_view moneda) {
  const double amount = CDbl(value);
  return moneda == "P" ? CentimosDePesetas(amount) : amount;
}

std::string SignedAmount(const Variant& value, int16_t width) {
  const double amount = General::BC(value);
  std::string sign = General::Signo(amount, 0);
  return General::FormatoTexto(sign, 1, " ") + General::FormatoImporte(amount, width - 1, "0");
}

std::string Text(std::string text, int16_t width, std::string_view fill) {
  return General::FormatoTexto(text, width, fill);
}

thread_local MisfitWatch* watch = nullptr;

std::string Formatted(const Field& field, const Variant& value, std::string_view moneda) {
  const int16_t width = field.width;
  switch (field.kind) {
    case Kind::kText: return Text(CStr(value), width, " ");
    case Kind::kTextZeroFill: return Text(Trim(CStr(value)), width, "0");
    case Kind::kNumber: return General::FormatoNumero(CDbl(value), width, "0");
    case Kind::kNumberBC: return General::FormatoNumero(General::BC(value), width, "0");
    case Kind::kMask: return Format(value, RepeatChar("0", width));
    case Kind::kAmount: return General::FormatoImporte(General::BC(value), width, "0");
    case Kind::kSignedAmount: return SignedAmount(value, width);
    case Kind::kConverted:
      return General::FormatoNumero(Converted(value, moneda), width, "0");
    case Kind::kKey: return General::ConvertirClave(CStr(value));
    case Kind::kTrimmed: return Text(Trim(CStr(value)), width, " ");
    case Kind::kFlag:
      return Trim(CStr(value)).empty() ? std::string(" ") : std::string(field.source.literal);
    case Kind::kMaskBC: return Format(General::BC(value), std::string("0").append(RepeatChar("#", width - 1)));
    case Kind::kConstant:
    case Kind::kBlanks: break;
  }
  return {};
}

}  // namespace

std::string WriteField(const Field& field, const RecordInput& input) {
  if (field.kind == Kind::kConstant) return std::string(field.source.literal);
  if (field.kind == Kind::kBlanks) return std::string(field.width, ' ');
  if (field.source.from == From::kLinea) {
    return Formatted(field, Variant(Mid(input.linea, field.source.element, field.source.length)),
                     input.moneda);
  }
  return Formatted(field, ValueOf(field.source, input), input.moneda);
}

std::string ReadField(const Field& field, std::string_view line) {
  return Mid(line, field.start, field.width);
}

std::string WriteRecord(const Layout& layout, const RecordInput& input) {
  if (const int faulty = FaultyField(layout); faulty >= 0) {
    const bool at_end = static_cast<size_t>(faulty) == layout.fields.size();
    Raise(errc::kInternalError,
          std::string(layout.name) +
              (at_end ? " does not end at its length"
                      : ": field " + std::to_string(faulty + 1) + " (" +
                            std::string(layout.fields[faulty].name) + ") is out of place"));
  }
  std::string record;
  record.reserve(static_cast<size_t>(layout.length) + 8);
  std::optional<Misfit> misfit;
  for (const Field& field : layout.fields) {
    const std::string text = WriteField(field, input);
    if (watch != nullptr && !misfit && Len(text) != field.width) {
      misfit = Misfit{layout.name, &field, text};
    }
    record += text;
  }
  if (watch != nullptr) watch->Saw(std::move(misfit));
  return record;
}

MisfitWatch::MisfitWatch() : outer_(watch) { watch = this; }

MisfitWatch::~MisfitWatch() { watch = outer_; }

void MisfitWatch::Saw(std::optional<Misfit> misfit) {
  if (misfit && !first_) {
    first_ = std::move(misfit);
    first_->record = records_;
  }
  ++records_;
}

}  // namespace zerbal::fileformat
