list(APPEND ZERBAL_SOURCES
  reference/country_codes.cc
  reference/general.cc
  reference/miscelaneos.cc
)
