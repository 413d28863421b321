// Uses every public header of the installed library: they must compile on
// their own, with nothing from inside the library's tree.
#include <filesystem>
#include <iostream>

#include "zerbal/arrendamiento.h"
#include "zerbal/automation.h"
#include "zerbal/bd.h"
#include "zerbal/conexion_dao.h"
#include "zerbal/databases.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/error.h"
#include "zerbal/exportacion.h"
#include "zerbal/path_properties.h"
#include "zerbal/platform.h"
#include "zerbal/presentador.h"
#include "zerbal/recordset.h"
#include "zerbal/timpexp.h"
#include "zerbal/variant.h"

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  try {
    const zerbal::DatabasePaths paths = zerbal::CreateDatabases(argv[1]);
    zerbal::cPresentador presenter;
    presenter.mdbmod(paths.data.string());
    zerbal::Variant buffer;
    presenter.CargarPresentador(buffer);
    std::cout << "presenter " << zerbal::DebugString(buffer(0)) << "\n";
    return 0;
  } catch (const zerbal::Error& e) {
    std::cerr << e.Description() << "\n";
    return 1;
  }
}
