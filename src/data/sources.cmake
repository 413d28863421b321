list(APPEND ZERBAL_SOURCES
  data/buffers.cc
  data/busy_pointer.cc
  data/conexion_dao.cc
  data/conexion_dao_binding.cc
  data/database.cc
  data/databases.cc
  data/dialect.cc
  data/inserted_key.cc
  data/sql_lexer.cc
  data/sql_shape.cc
  data/statement_cache.cc
  data/engine.cc
  data/collation.cc
  data/file_identity.cc
  data/like_pattern.cc
  data/queries.cc
  data/recordset.cc
  data/recordset_binding.cc
  data/sqlite.cc
)
# The SQL that creates and fills the databases, embedded in the library.
list(APPEND ZERBAL_RESOURCES
  data_schema.sql=${PROJECT_SOURCE_DIR}/resources/data_schema.sql
  lookup_schema.sql=${PROJECT_SOURCE_DIR}/resources/lookup_schema.sql
  lookup_operaciones.sql=${PROJECT_SOURCE_DIR}/resources/lookup_operaciones.sql
  lookup_provincias.sql=${PROJECT_SOURCE_DIR}/resources/lookup_provincias.sql
  lookup_siglas_via.sql=${PROJECT_SOURCE_DIR}/resources/lookup_siglas_via.sql
  lookup_paises.sql=${PROJECT_SOURCE_DIR}/resources/lookup_paises.sql
  lookup_general.sql=${PROJECT_SOURCE_DIR}/resources/lookup_general.sql
)
