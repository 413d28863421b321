list(APPEND ZERBAL_SOURCES
  records/persona/persona_row.cc
  records/presentador/presentador.cc
  records/presentador/t_presentador.cc
)
