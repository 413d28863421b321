list(APPEND ZERBAL_SOURCES
  fileformat/conv_del_estatal.cc
  fileformat/export2007.cc
  fileformat/export2008.cc
  fileformat/export2011.cc
  fileformat/export2014.cc
  fileformat/exportacion.cc
  fileformat/exportacion_binding.cc
  fileformat/layout.cc
  fileformat/linea_dte.cc
  fileformat/seleccion.cc
  fileformat/t_imp_exp.cc
  fileformat/writers.cc
)
