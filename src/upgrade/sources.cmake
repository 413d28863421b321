list(APPEND ZERBAL_SOURCES
  upgrade/columnas.cc
  upgrade/copia_seguridad.cc
  upgrade/grupos.cc
  upgrade/message_box.cc
  upgrade/traspaso.cc
  upgrade/traspaso_binding.cc
)
