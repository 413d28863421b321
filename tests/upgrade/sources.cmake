list(APPEND ZERBAL_TEST_SOURCES
  upgrade/kill_test.cc
  upgrade/traspaso_test.cc
  upgrade/upgrade_fixture.cc
)
