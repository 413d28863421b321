list(APPEND ZERBAL_TEST_SOURCES
  records/declaraciones_test.cc
  records/declarante_test.cc
  records/presentador_test.cc
)
list(APPEND ZERBAL_TEST_SOURCES
  records/declarado_test.cc
  records/arrendamiento_test.cc
  records/duplicar_test.cc
)
