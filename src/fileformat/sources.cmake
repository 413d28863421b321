list(APPEND ZERBAL_SOURCES
  fileformat/layout.cc
)
