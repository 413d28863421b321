list(APPEND ZERBAL_TEST_SOURCES
  fileformat/conv_del_estatal_test.cc
  fileformat/export2014_test.cc
  fileformat/export_earlier_test.cc
  fileformat/exportacion_test.cc
  fileformat/layout_test.cc
  fileformat/linea_dte_test.cc
  fileformat/seleccion_test.cc
)
