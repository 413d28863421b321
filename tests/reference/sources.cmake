list(APPEND ZERBAL_TEST_SOURCES
  reference/general_test.cc
)
