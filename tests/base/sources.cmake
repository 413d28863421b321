list(APPEND ZERBAL_TEST_SOURCES
  base/convert_test.cc
  base/error_test.cc
  base/text_test.cc
  base/variant_test.cc
)
