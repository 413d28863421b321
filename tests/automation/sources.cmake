list(APPEND ZERBAL_TEST_SOURCES
  automation/registry_test.cc
  automation/session_test.cc
)
