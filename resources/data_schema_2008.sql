-- The data database as the program of 2008 left it, for trying the upgrade
-- of an earlier year's database: applied after data_schema.sql, it puts
-- the operations table of 2008 in place of the current one: the
-- cash and real-estate amounts and paiso as text, none of the quarterly
-- amounts (the rentals table is already the current one).

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
  opearr          TEXT COLLATE NOCASE CONSTRAINT size_opearr   CHECK (length(opearr) <= 1)
) STRICT;
CREATE INDEX tOperadores_coddeclar ON tOperadores (coddeclar);
