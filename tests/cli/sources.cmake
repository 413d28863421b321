list(APPEND ZERBAL_TEST_SOURCES
  cli/cli_test.cc
  cli/export_target_test.cc
  cli/export_test.cc
  cli/import_test.cc
  cli/locations_test.cc
  cli/upgrade_command_test.cc
)
