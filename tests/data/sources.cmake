list(APPEND ZERBAL_TEST_SOURCES
  data/buffers_test.cc
  data/conexion_test.cc
  data/databases_test.cc
  data/dialect_test.cc
  data/injection_test.cc
  data/keys_test.cc
  data/open_test.cc
  data/replace_test.cc
  data/server_test.cc
  data/statement_cache_test.cc
  data/table_defs_test.cc
)
