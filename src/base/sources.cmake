list(APPEND ZERBAL_SOURCES
  base/array.cc
  base/convert.cc
  base/error.cc
  base/number_text.cc
  base/text.cc
  base/variant.cc
)
