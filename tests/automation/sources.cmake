list(APPEND ZERBAL_TEST_SOURCES
  automation/bindings_test.cc
  automation/members_test.cc
  automation/session_test.cc
)
