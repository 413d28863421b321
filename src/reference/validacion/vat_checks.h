// The check of each country's VAT number body, one function per country, each
// defined in its own vat_<country>.cc and listed in the table of vat.cc.
//
// A body is what remains after the country prefix and the country's separators
// are removed, in upper case. It may hold anything (a check must verify the
// layout before reading digits) and must not read outside it.

#ifndef ZERBAL_REFERENCE_VALIDACION_VAT_CHECKS_H_
#define ZERBAL_REFERENCE_VALIDACION_VAT_CHECKS_H_

#include <string_view>

namespace zerbal::validacion {

bool CheckAT(std::string_view body);
bool CheckBE(std::string_view body);
bool CheckBG(std::string_view body);
bool CheckCY(std::string_view body);
bool CheckCZ(std::string_view body);
bool CheckDE(std::string_view body);
bool CheckDK(std::string_view body);
bool CheckEE(std::string_view body);
bool CheckEL(std::string_view body);
bool CheckES(std::string_view body);
bool CheckFI(std::string_view body);
bool CheckFR(std::string_view body);
bool CheckHR(std::string_view body);
bool CheckHU(std::string_view body);
bool CheckIE(std::string_view body);
bool CheckIT(std::string_view body);
bool CheckLT(std::string_view body);
bool CheckLU(std::string_view body);
bool CheckLV(std::string_view body);
bool CheckMT(std::string_view body);
bool CheckNL(std::string_view body);
bool CheckPL(std::string_view body);
bool CheckPT(std::string_view body);
bool CheckRO(std::string_view body);
bool CheckSE(std::string_view body);
bool CheckSI(std::string_view body);
bool CheckSK(std::string_view body);
bool CheckXI(std::string_view body);

// Czech and Slovak birth number: 9 digits (issued up to 1953, no check digit)
// or 10 digits; YYMMDD must be a real date once the month offsets are removed.
bool IsBirthNumber(std::string_view digits);

}  // namespace zerbal::validacion

#endif  // ZERBAL_REFERENCE_VALIDACION_VAT_CHECKS_H_
