// The factories of every class that can be created by name, with the name
// each is registered under; registry.cc lists them. And the objects that
// members return, which no client creates by name.

#ifndef ZERBAL_AUTOMATION_CLASSES_H_
#define ZERBAL_AUTOMATION_CLASSES_H_

#include <memory>
#include <string_view>

#include "zerbal/automation.h"
#include "zerbal/recordset.h"

namespace zerbal::automation {

inline constexpr std::string_view kConexionDAOProgId = "zerbal.cConexionDAO";
inline constexpr std::string_view kDeclaranteProgId = "zerbal.cDeclarante";
inline constexpr std::string_view kDeclaracionesProgId = "zerbal.cDeclaraciones";
inline constexpr std::string_view kDeclaradoProgId = "zerbal.cDeclarado";
inline constexpr std::string_view kArrendamientoProgId = "zerbal.cArrendamiento";
inline constexpr std::string_view kPresentadorProgId = "zerbal.cPresentador";
inline constexpr std::string_view kDatosGeneralesProgId = "zerbal.cDatosGenerales";
inline constexpr std::string_view kExportacionProgId = "zerbal.cExportacion";
inline constexpr std::string_view kTImpExpProgId = "zerbal.cTImpExp";
inline constexpr std::string_view kImpExpProgId = "zerbal.cImpExp";
inline constexpr std::string_view kTraspasoProgId = "zerbal.cTraspaso";

std::unique_ptr<AutomationObject> NewMiscelaneos();
std::unique_ptr<AutomationObject> NewConexionDAO();
std::unique_ptr<AutomationObject> NewDeclarante();
std::unique_ptr<AutomationObject> NewDeclaraciones();
std::unique_ptr<AutomationObject> NewDeclarado();
std::unique_ptr<AutomationObject> NewArrendamiento();
std::unique_ptr<AutomationObject> NewPresentador();
std::unique_ptr<AutomationObject> NewDatosGenerales();
std::unique_ptr<AutomationObject> NewExportacion();
std::unique_ptr<AutomationObject> NewTImpExp();
std::unique_ptr<AutomationObject> NewImpExp();
std::unique_ptr<AutomationObject> NewTraspaso();

// A recordset as an object (class name "Recordset"): what openRecordset
// returns.
std::unique_ptr<AutomationObject> WrapRecordset(Recordset recordset);

}  // namespace zerbal::automation

#endif  // ZERBAL_AUTOMATION_CLASSES_H_
