list(APPEND ZERBAL_SOURCES
  import/arrendamiento_2014.cc
  import/caracteres.cc
  import/comprobaciones.cc
  import/cortes.cc
  import/declarado_2014.cc
  import/declarante.cc
  import/errores.cc
  import/imp_exp.cc
  import/imp_exp_binding.cc
  import/modulos.cc
  import/registros.cc
  import/servicios.cc
  import/validacion.cc
)
