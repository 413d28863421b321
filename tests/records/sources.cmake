list(APPEND ZERBAL_TEST_SOURCES
  records/presentador_test.cc
)
