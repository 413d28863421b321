list(APPEND ZERBAL_SOURCES
  reference/country_codes.cc
  reference/datos_generales.cc
  reference/datos_generales_binding.cc
  reference/general.cc
  reference/miscelaneos.cc
  reference/t_lec_mdb.cc
  reference/t_personalizacion.cc
)
