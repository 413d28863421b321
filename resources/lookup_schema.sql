-- The lookup database: bilingual descriptions (Spanish and Basque) of the
-- codes stored in the data database, and the addresses of the online
-- update. The system only reads it. Types as in data_schema.sql.

CREATE TABLE TOperaciones (
  codigo        TEXT COLLATE NOCASE PRIMARY KEY CONSTRAINT size_codigo CHECK (length(codigo) <= 1),
  descripcionc  TEXT COLLATE NOCASE CONSTRAINT size_descripcionc CHECK (length(descripcionc) <= 255),
  descripcione  TEXT COLLATE NOCASE CONSTRAINT size_descripcione CHECK (length(descripcione) <= 255)
) STRICT;

CREATE TABLE TPROVINCIAS (
  PRO_ID        TEXT COLLATE NOCASE PRIMARY KEY CONSTRAINT size_PRO_ID CHECK (length(PRO_ID) <= 2),
  PRO_CAS       TEXT COLLATE NOCASE CONSTRAINT size_PRO_CAS CHECK (length(PRO_CAS) <= 100),
  PRO_EUS       TEXT COLLATE NOCASE CONSTRAINT size_PRO_EUS CHECK (length(PRO_EUS) <= 100)
) STRICT;

CREATE TABLE TSIGLASVIA (
  codigo        TEXT COLLATE NOCASE PRIMARY KEY CONSTRAINT size_codigo CHECK (length(codigo) <= 5),
  CAS           TEXT COLLATE NOCASE CONSTRAINT size_CAS CHECK (length(CAS) <= 100),
  EUS           TEXT COLLATE NOCASE CONSTRAINT size_EUS CHECK (length(EUS) <= 100)
) STRICT;

CREATE TABLE TPaises (
  codigo        INTEGER PRIMARY KEY CONSTRAINT range_codigo CHECK (codigo BETWEEN -2147483648 AND 2147483647),
  PAISCAS       TEXT COLLATE NOCASE CONSTRAINT size_PAISCAS CHECK (length(PAISCAS) <= 100),
  PAISEUS       TEXT COLLATE NOCASE CONSTRAINT size_PAISEUS CHECK (length(PAISEUS) <= 100)
) STRICT;

CREATE TABLE TSiglasPais (
  SIGLASPAIS    TEXT COLLATE NOCASE PRIMARY KEY CONSTRAINT size_SIGLASPAIS CHECK (length(SIGLASPAIS) <= 2),
  PAIS          TEXT COLLATE NOCASE CONSTRAINT size_PAIS CHECK (length(PAIS) <= 100),
  paiseus       TEXT COLLATE NOCASE CONSTRAINT size_paiseus CHECK (length(paiseus) <= 100)
) STRICT;

-- URLAct is read by name; the rows are read by position (row 1, row 2).
CREATE TABLE tgeneral (
  URLAct        TEXT COLLATE NOCASE CONSTRAINT size_URLAct CHECK (length(URLAct) <= 255),
  Descripcion   TEXT COLLATE NOCASE CONSTRAINT size_Descripcion CHECK (length(Descripcion) <= 255)
) STRICT;
