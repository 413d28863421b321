-- The data database as the program of 2007 left it, for trying the upgrade
-- of an earlier year's database: applied after data_schema.sql, it puts
-- the operations and rentals tables of 2007 in place of the current
-- ones: none of the upgrade's columns, and the country code paiso a
-- 16-bit number in both.

DROP TABLE tOperadores;
CREATE TABLE tOperadores (
  codope          INTEGER PRIMARY KEY AUTOINCREMENT,
  coddeclar       INTEGER CONSTRAINT range_coddeclar  CHECK (coddeclar BETWEEN -2147483648 AND 2147483647),
  provo           INTEGER CONSTRAINT range_provo      CHECK (provo BETWEEN -2147483648 AND 2147483647),
  paiso           INTEGER CONSTRAINT range_paiso CHECK (paiso BETWEEN -32768 AND 32767),
  nifo            TEXT COLLATE NOCASE CONSTRAINT size_nifo     CHECK (length(nifo) <= 20),
  razon           TEXT COLLATE NOCASE CONSTRAINT size_razon    CHECK (length(razon) <= 100),
  claveopo        TEXT COLLATE NOCASE CONSTRAINT size_claveopo CHECK (length(claveopo) <= 1),
  importe         REAL,
  claverep        TEXT COLLATE NOCASE CONSTRAINT size_claverep CHECK (length(claverep) <= 1),
  opeseg          TEXT COLLATE NOCASE CONSTRAINT size_opeseg   CHECK (length(opeseg) <= 1),
  opearr          TEXT COLLATE NOCASE CONSTRAINT size_opearr   CHECK (length(opearr) <= 1)
) STRICT;
CREATE INDEX tOperadores_coddeclar ON tOperadores (coddeclar, nifo);

DROP TABLE tArrendamientos;
CREATE TABLE tArrendamientos (
  codarr      INTEGER PRIMARY KEY AUTOINCREMENT,
  coddeclar   INTEGER CONSTRAINT range_coddeclar CHECK (coddeclar BETWEEN -2147483648 AND 2147483647),
  prova       INTEGER CONSTRAINT range_prova     CHECK (prova BETWEEN -2147483648 AND 2147483647),
  paiso       INTEGER CONSTRAINT range_paiso CHECK (paiso BETWEEN -32768 AND 32767),
  nifa        TEXT COLLATE NOCASE CONSTRAINT size_nifa       CHECK (length(nifa) <= 20),
  razon       TEXT COLLATE NOCASE CONSTRAINT size_razon      CHECK (length(razon) <= 100),
  importe     REAL,
  municipioa  TEXT COLLATE NOCASE CONSTRAINT size_municipioa CHECK (length(municipioa) <= 100),
  refcat      TEXT COLLATE NOCASE CONSTRAINT size_refcat     CHECK (length(refcat) <= 25),
  viaa        TEXT COLLATE NOCASE CONSTRAINT size_viaa       CHECK (length(viaa) <= 5),
  domicilioa  TEXT COLLATE NOCASE CONSTRAINT size_domicilioa CHECK (length(domicilioa) <= 100),
  numeroa     INTEGER CONSTRAINT range_numeroa   CHECK (numeroa BETWEEN -2147483648 AND 2147483647),
  escaleraa   TEXT COLLATE NOCASE CONSTRAINT size_escaleraa  CHECK (length(escaleraa) <= 10),
  pisoa       TEXT COLLATE NOCASE CONSTRAINT size_pisoa      CHECK (length(pisoa) <= 10),
  puertaa     TEXT COLLATE NOCASE CONSTRAINT size_puertaa    CHECK (length(puertaa) <= 10)
) STRICT;
CREATE INDEX tArrendamientos_coddeclar ON tArrendamientos (coddeclar);
