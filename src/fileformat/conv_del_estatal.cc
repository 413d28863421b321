#include "fileformat/conv_del_estatal.h"

#include <string>
#include <string_view>

#include "base/convert.h"
#include "base/text.h"
#include "fileformat/layout.h"
#include "fileformat/layout_conv_dte.h"
#include "fileformat/layout_conv_reg2.h"
#include "fileformat/layout_conv_reg3.h"
#include "reference/general.h"

namespace zerbal::fileformat {
namespace {

std::string Tomar(std::string_view linea, const Source& campo) {
  return Mid(linea, campo.element, campo.length);
}

bool ReadsAs(std::string_view linea, const Source& campo, double number) {
  return General::BC(Variant(Tomar(linea, campo))) == number;
}

RecordInput Entrada(std::string_view linea) {
  RecordInput input;
  input.linea = linea;
  return input;
}

// 2008 and 2007: no NIF for a party of province 99 (abroad); otherwise the
// representative's NIF when there is one, the party's own when not.
std::string NifDeclarado(std::string_view linea) {
  if (ReadsAs(linea, kProvinciaEstatal, 99)) return "";
  std::string nif = Trim(Tomar(linea, kNifRepresentante));
  return nif.empty() ? Tomar(linea, kNifEstatal) : nif;
}

std::string Despachar(const std::string& strLinea, const std::string& strRuta,
                      const ModuloConversion& modulo) {
  const std::string tipo = FirstChar(strLinea);
  if (tipo == "0") return strLinea;
  if (tipo == "1") return modulo.ConvertirDte(strLinea, strRuta);
  if (tipo != "2") return "";
  const std::string clase = Trim(Mid(strLinea, 76, 1));
  if (clase == "D") return modulo.ConvertirDeclarado(strLinea);
  if (clase == "I") return modulo.ConvertirInmueble(strLinea);
  return "";
}

template <const ModuloConversion& modulo>
std::string Linea(const std::string& strLinea, const std::string& strRuta) {
  return Despachar(strLinea, strRuta, modulo);
}

// A converter that only reads fields.
template <const Layout& layout>
std::string Campos(const std::string& strLinea) {
  return WriteRecord(layout, Entrada(strLinea));
}

std::string Dte(const std::string& strLinea, const std::string& /*strRuta*/) {
  return Campos<kConvDte>(strLinea);
}

// The tenant's NIF is left out when the premises' province reads as 0.
template <const Layout& layout, const Source& provincia>
std::string Inmueble(const std::string& strLinea) {
  RecordInput input = Entrada(strLinea);
  input.values[kNifArrendatario] =
      ReadsAs(strLinea, provincia, 0) ? std::string() : Tomar(strLinea, kNifEstatal);
  return WriteRecord(layout, input);
}

std::string Declarado_2008(const std::string& strLinea) {
  RecordInput input = Entrada(strLinea);
  input.values[kNifDeclarado] = NifDeclarado(strLinea);
  return WriteRecord(kConvDeclarado_2008, input);
}

std::string Dte_2007(const std::string& strLinea, const std::string& /*strRuta*/) {
  RecordInput input = Entrada(strLinea);
  input.values[kMonedaDte] = Trim(Tomar(strLinea, kMonedaEstatal_2007)) == "347" ? "P" : "E";
  return WriteRecord(kConvDte_2007, input);
}

std::string Declarado_2007(const std::string& strLinea) {
  RecordInput input = Entrada(strLinea);
  input.values[kNifDeclarado] = NifDeclarado(strLinea);
  input.values[kClave] = General::ConvertirClave(Trim(Tomar(strLinea, kClaveEstatal)));
  std::string prov_pais = Trim(Tomar(strLinea, kProvPaisEstatal));
  input.values[kProvPais] = General::ConvertirProvPais(prov_pais);
  return WriteRecord(kConvDeclarado_2007, input);
}

}  // namespace

const ModuloConversion ConvDelEstatal_2014 = {
    Linea<ConvDelEstatal_2014>, Dte, Campos<kConvDeclarado_2014>,
    Inmueble<kConvInmueble_2014, kProvinciaInmueble>};
const ModuloConversion ConvDelEstatal_2011 = {
    Linea<ConvDelEstatal_2011>, Dte, Campos<kConvDeclarado_2011>,
    Inmueble<kConvInmueble_2011, kProvinciaInmueble>};
const ModuloConversion ConvDelEstatal_2008 = {
    Linea<ConvDelEstatal_2008>, Dte, Declarado_2008,
    Inmueble<kConvInmueble_2011, kProvinciaInmueble>};
const ModuloConversion ConvDelEstatal_2007 = {
    Linea<ConvDelEstatal_2007>, Dte_2007, Declarado_2007,
    Inmueble<kConvInmueble_2007, kProvinciaInmueble_2007>};

const ModuloConversion& ModuloDelEjercicio(const std::string& strLinea) {
  double ejercicio = 0;
  if (!ParseNumber(Mid(strLinea, 5, 4), &ejercicio)) return ConvDelEstatal_2014;
  if (ejercicio <= 2007) return ConvDelEstatal_2007;
  if (ejercicio <= 2010) return ConvDelEstatal_2008;
  if (ejercicio <= 2013) return ConvDelEstatal_2011;
  return ConvDelEstatal_2014;
}

std::string ConvertirLineaEstatal(const std::string& strLinea, const std::string& strRuta) {
  return ModuloDelEjercicio(strLinea).ConvertirLinea(strLinea, strRuta);
}

}  // namespace zerbal::fileformat
