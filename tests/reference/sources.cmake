list(APPEND ZERBAL_TEST_SOURCES
  reference/datos_generales_test.cc
  reference/general_test.cc
  reference/lookup_data_test.cc
)
