list(APPEND ZERBAL_SOURCES
  automation/binding.cc
  automation/registry.cc
)
