#include "cli/import_texts.h"

namespace zerbal::cli {
namespace {

constexpr ErrorText kErrorTexts[] = {
    {0, "NIF del declarante no válido", "Aitortzailearen IFZ baliogabea"},
    {1, "Nombre o razón social en blanco", "Izena edo sozietatearen izena hutsik"},
    {2, "Tipo de vía desconocido", "Bide mota ezezaguna"},
    {3, "Domicilio incompleto: tipo de vía o calle en blanco",
     "Helbide osatugabea: bide mota edo kalea hutsik"},
    {4, "Provincia en blanco o desconocida", "Probintzia hutsik edo ezezaguna"},
    {6, "Provincia o código postal demasiado corto", "Probintzia edo posta kodea laburregia"},
    {7, "Municipio en blanco", "Udalerria hutsik"},
    {17, "Clave de operación en blanco", "Eragiketa gakoa hutsik"},
    {18, "Municipio del inmueble en blanco", "Lokalaren udalerria hutsik"},
    {19, "Número de la vía no numérico", "Kale zenbakia ez da zenbakizkoa"},
    {20, "Código de provincia no numérico", "Probintzia kodea ez da zenbakizkoa"},
    {21, "Código postal no numérico", "Posta kodea ez da zenbakizkoa"},
    {24, "Registro demasiado largo", "Erregistro luzeegia"},
    {25, "Modelo distinto de 347", "347 ez den eredua"},
    {26, "No residente con NIF español", "Egoiliar ez dena Espainiako IFZrekin"},
    {27, "País en blanco", "Herrialdea hutsik"},
    {28, "Código de país no numérico", "Herrialde kodea ez da zenbakizkoa"},
    {29, "Arrendamiento de local declarado a un no residente",
     "Egoiliar ez denari aitortutako lokal errentamendua"},
    {30, "Declarado repetido: el mismo NIF con las mismas claves ya está en la declaración",
     "Aitortu errepikatua: IFZ bera gako berekin badago aitorpenean"},
    {31, "El declarante ya tiene declaración de ese ejercicio",
     "Aitortzaileak badu ekitaldi horretako aitorpena"},
    {32, "NIF no válido", "IFZ baliogabea"},
    {33, "Arrendamiento de local con clave de operación C, D o E",
     "Lokal errentamendua C, D edo E eragiketa gakoarekin"},
    {34, "Clave de representante distinta de R", "R ez den ordezkari gakoa"},
    {35, "País extranjero en un residente", "Atzerriko herrialdea egoiliar batean"},
    {36, "Importe con caracteres no numéricos", "Zenbatekoak zenbakiak ez diren karaktereak ditu"},
    {37, "Importe negativo", "Zenbateko negatiboa"},
    {38, "Clave de seguro distinta de X", "X ez den aseguru gakoa"},
    {39, "Clave de arrendamiento distinta de X", "X ez den errentamendu gakoa"},
    {40, "Claves de seguro y de arrendamiento a la vez", "Aseguru eta errentamendu gakoak batera"},
    {41, "Importe en blanco", "Zenbatekoa hutsik"},
    {43, "Ejercicio no numérico", "Ekitaldia ez da zenbakizkoa"},
    {44, "Ejercicio fuera de los admitidos", "Onartutakoetatik kanpoko ekitaldia"},
    {46, "Fichero en euros y declaración en pesetas", "Fitxategia eurotan eta aitorpena pezetatan"},
    {47, "Carácter no permitido", "Karaktere debekatua"},
    {48, "Línea de un ejercicio distinto del de la declaración",
     "Aitorpenarena ez den ekitaldi bateko lerroa"},
    {49, "Código de país desconocido", "Herrialde kode ezezaguna"},
    {50, "Clave de operación desconocida", "Eragiketa gako ezezaguna"},
    {51, "Ejercicio del importe en metálico fuera de rango",
     "Eskudiruzko zenbatekoaren ekitaldia tartetik kanpo"},
    {52, "El importe en metálico y su ejercicio no concuerdan",
     "Eskudiruzko zenbatekoa eta bere ekitaldia ez datoz bat"},
    {53, "La suma de los trimestres no es el importe de las operaciones",
     "Hiruhilekoen batura ez da eragiketen zenbatekoa"},
    {54, "La suma de los trimestres no es el importe de las transmisiones",
     "Hiruhilekoen batura ez da eskualdaketen zenbatekoa"},
    {55, "Sin importe de operaciones, en metálico ni con criterio de caja",
     "Eragiketen, eskudiruaren eta kutxa irizpidearen zenbatekorik gabe"},
    {56, "Signo del importe no válido", "Zenbatekoaren zeinu baliogabea"},
    {57, "Ejercicio del importe en metálico no numérico",
     "Eskudiruzko zenbatekoaren ekitaldia ez da zenbakizkoa"},
    {58, "NIF intracomunitario no válido", "Erkidego barneko IFZ baliogabea"},
    {65, "Importe trimestral no exigido (declarante con H o criterio de caja)",
     "Eskatzen ez den hiruhileko zenbatekoa (H-dun aitortzailea edo kutxa irizpidea)"},
    {66, "Marca de criterio de caja distinta de X", "X ez den kutxa irizpidearen marka"},
    {67, "Marca de inversión del sujeto pasivo distinta de X",
     "X ez den subjektu pasiboaren inbertsioaren marka"},
    {68, "Marca de depósito aduanero distinta de X", "X ez den aduana-gordailuaren marka"},
    {69, "Importe con criterio de caja sin su marca",
     "Kutxa irizpideko zenbatekoa bere markarik gabe"},
};

struct WordText {
  Word word;
  std::string_view es;
  std::string_view eu;
};

constexpr WordText kWords[] = {
    {Word::kLine, "línea {n}, registro {t}", "{n}. lerroa, {t} erregistroa"},
    {Word::kNotStored, "no grabada", "ez da gorde"},
    {Word::kStoredWithNotes, "grabada con avisos", "oharrekin gorde da"},
    {Word::kDeclarationRefused, "omitida: su declaración fue rechazada",
     "baztertua: bere aitorpena ez zen onartu"},
    {Word::kNoDeclarant, "omitida: no hay un declarante antes",
     "baztertua: ez dago aitortzailerik aurretik"},
    {Word::kUnknownType, "tipo de registro desconocido", "erregistro mota ezezaguna"},
    {Word::kTooLong, "línea demasiado larga", "lerro luzeegia"},
    {Word::kFailed, "no se pudo grabar", "ezin izan da gorde"},
    {Word::kSummary, "Resumen de {n} líneas:", "{n} lerroren laburpena:"},
    {Word::kDeclarants, "declarantes: {a} nuevos, {b} reescritos, {c} sin cambios",
     "aitortzaileak: {a} berri, {b} berridatzi, {c} aldatu gabe"},
    {Word::kDeclarations, "declaraciones: {a} creadas, {b} rechazadas",
     "aitorpenak: {a} sortu, {b} baztertu"},
    {Word::kOperations, "operaciones grabadas: {n}", "gordetako eragiketak: {n}"},
    {Word::kRentals, "arrendamientos grabados: {n}", "gordetako errentamenduak: {n}"},
    {Word::kRefusedLines, "líneas no grabadas: {n}", "gorde gabeko lerroak: {n}"},
    {Word::kError, "error {n}", "{n} errorea"},
};

}  // namespace

std::span<const ErrorText> ErrorTexts() { return kErrorTexts; }

std::string_view TextOf(int32_t number, Lang lang) {
  for (const ErrorText& row : kErrorTexts) {
    if (row.number == number) return lang == Lang::kEs ? row.es : row.eu;
  }
  return {};
}

std::string_view WordOf(Word word, Lang lang) {
  for (const WordText& row : kWords) {
    if (row.word == word) return lang == Lang::kEs ? row.es : row.eu;
  }
  return {};
}

}  // namespace zerbal::cli
