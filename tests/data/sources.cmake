list(APPEND ZERBAL_TEST_SOURCES
  data/buffers_test.cc
  data/conexion_test.cc
  data/databases_test.cc
  data/dialect_test.cc
  data/open_test.cc
  data/replace_test.cc
)
