list(APPEND ZERBAL_SOURCES
  automation/binding.cc
  automation/json_variant.cc
  automation/registry.cc
  automation/session.cc
)
