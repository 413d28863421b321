list(APPEND ZERBAL_SOURCES
  records/declaraciones/declaraciones.cc
  records/declaraciones/declaraciones_binding.cc
  records/declaraciones/t_declaraciones.cc
  records/declarante/declarante.cc
  records/declarante/declarante_binding.cc
  records/declarante/t_declarante.cc
  records/persona/persona_row.cc
  records/presentador/presentador.cc
  records/presentador/presentador_binding.cc
  records/presentador/t_presentador.cc
)
list(APPEND ZERBAL_SOURCES
  records/declarados/declarado.cc
  records/declarados/declarado_binding.cc
  records/declarados/duplicar_declarados.cc
  records/declarados/pais.cc
  records/declarados/t_declarados.cc
  records/declarados/table_row.cc
  records/arrendamientos/arrendamiento.cc
  records/arrendamientos/arrendamiento_binding.cc
  records/arrendamientos/duplicar_arrendamientos.cc
  records/arrendamientos/t_arrendamientos.cc
)
