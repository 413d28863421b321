list(APPEND ZERBAL_TEST_SOURCES
  reference/validacion/nif_command_test.cc
  reference/validacion/nif_es_test.cc
  reference/validacion/vat_countries_test.cc
  reference/validacion/vat_prefix_test.cc
  reference/validacion/vectors_test.cc
)
# The collected identifiers that the vector tests read.
set(ZERBAL_VALIDACION_DATA ${CMAKE_CURRENT_SOURCE_DIR}/reference/validacion/data)
