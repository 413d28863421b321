-- The data database as the program of 2011 left it, for trying the upgrade
-- of an earlier year's database: applied after data_schema.sql, it puts
-- the operations table of 2011 in place of the current one: the
-- quarterly amounts, none of the intra-community and 2014 columns (the
-- rentals table is already the current one).

DROP TABLE tOperadores;
CREATE TABLE tOperadores (
  codope          INTEGER PRIMARY KEY AUTOINCREMENT,
  coddeclar       INTEGER CONSTRAINT range_coddeclar  CHECK (coddeclar BETWEEN -2147483648 AND 2147483647),
  provo           INTEGER CONSTRAINT range_provo      CHECK (provo BETWEEN -2147483648 AND 2147483647),
  paiso           TEXT DEFAULT '' COLLATE NOCASE CONSTRAINT size_paiso CHECK (length(paiso) <= 3),
  nifo            TEXT COLLATE NOCASE CONSTRAINT size_nifo     CHECK (length(nifo) <= 20),
  razon           TEXT COLLATE NOCASE CONSTRAINT size_razon    CHECK (length(razon) <= 100),
  claveopo        TEXT COLLATE NOCASE CONSTRAINT size_claveopo CHECK (length(claveopo) <= 1),
  importe         REAL,
  impmet          REAL DEFAULT 0,
  impinm          REAL DEFAULT 0,
  claverep        TEXT COLLATE NOCASE CONSTRAINT size_claverep CHECK (length(claverep) <= 1),
  opeseg          TEXT COLLATE NOCASE CONSTRAINT size_opeseg   CHECK (length(opeseg) <= 1),
  opearr          TEXT COLLATE NOCASE CONSTRAINT size_opearr   CHECK (length(opearr) <= 1),
  ejerimpmet      INTEGER DEFAULT 0 CONSTRAINT range_ejerimpmet CHECK (ejerimpmet BETWEEN -2147483648 AND 2147483647),
  impopeT1        REAL DEFAULT 0,
  impopeT2        REAL DEFAULT 0,
  impopeT3        REAL DEFAULT 0,
  impopeT4        REAL DEFAULT 0,
  impmobT1        REAL DEFAULT 0,
  impmobT2        REAL DEFAULT 0,
  impmobT3        REAL DEFAULT 0,
  impmobT4        REAL DEFAULT 0
) STRICT;
CREATE INDEX tOperadores_coddeclar ON tOperadores (coddeclar);
