list(APPEND ZERBAL_TEST_SOURCES
  automation/registry_test.cc
)
