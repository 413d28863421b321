list(APPEND ZERBAL_TEST_SOURCES
  import/imp_exp_test.cc
  import/importacion_anteriores_test.cc
  import/importacion_2014_test.cc
  import/importacion_test.cc
)
