list(APPEND ZERBAL_TEST_SOURCES
  fileformat/layout_test.cc
)
