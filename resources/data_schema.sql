-- The data database: declarants, their declarations, the declared operations
-- and rentals of each declaration, the presenter and the user's settings.
--
-- Column types follow the original engine's: Long is a 32-bit whole number,
-- Double a REAL, Text(n) at most n characters compared without regard to
-- case, Counter a key numbered by the engine and never reused. Each size or
-- range check is named size_<column> or range_<column>: the database layer
-- reports them as "field too small" and "numeric field overflow".
--
-- The columns that the upgrade of an earlier year's database adds stand
-- where it puts them and carry the defaults and required flags it gives
-- them, so that an upgraded database and a new one are alike.

CREATE TABLE TDeclarante (
  coddec      INTEGER PRIMARY KEY AUTOINCREMENT,
  dni_cifd    TEXT COLLATE NOCASE CONSTRAINT size_dni_cifd   CHECK (length(dni_cifd) <= 20),
  nombred     TEXT COLLATE NOCASE CONSTRAINT size_nombred    CHECK (length(nombred) <= 100),
  viad        TEXT COLLATE NOCASE CONSTRAINT size_viad       CHECK (length(viad) <= 5),
  domiciliod  TEXT COLLATE NOCASE CONSTRAINT size_domiciliod CHECK (length(domiciliod) <= 100),
  numerod     INTEGER CONSTRAINT range_numerod  CHECK (numerod BETWEEN -2147483648 AND 2147483647),
  letrad      TEXT COLLATE NOCASE CONSTRAINT size_letrad     CHECK (length(letrad) <= 10),
  escalerad   TEXT COLLATE NOCASE CONSTRAINT size_escalerad  CHECK (length(escalerad) <= 10),
  pisod       TEXT COLLATE NOCASE CONSTRAINT size_pisod      CHECK (length(pisod) <= 10),
  manod       TEXT COLLATE NOCASE CONSTRAINT size_manod      CHECK (length(manod) <= 10),
  cod         INTEGER CONSTRAINT range_cod      CHECK (cod BETWEEN -2147483648 AND 2147483647),
  municipiod  TEXT COLLATE NOCASE CONSTRAINT size_municipiod CHECK (length(municipiod) <= 100),
  codpostald  INTEGER CONSTRAINT range_codpostald CHECK (codpostald BETWEEN -2147483648 AND 2147483647),
  prefijod    INTEGER CONSTRAINT range_prefijod CHECK (prefijod BETWEEN -2147483648 AND 2147483647),
  telefonod   TEXT COLLATE NOCASE CONSTRAINT size_telefonod  CHECK (length(telefonod) <= 20),
  nombrepd    TEXT COLLATE NOCASE CONSTRAINT size_nombrepd   CHECK (length(nombrepd) <= 100),
  prefijopd   INTEGER CONSTRAINT range_prefijopd CHECK (prefijopd BETWEEN -2147483648 AND 2147483647),
  telefonopd  TEXT COLLATE NOCASE CONSTRAINT size_telefonopd CHECK (length(telefonopd) <= 20)
) STRICT;
CREATE INDEX TDeclarante_dni_cifd ON TDeclarante (dni_cifd);

CREATE TABLE TDeclaraciones (
  coddecla    INTEGER PRIMARY KEY AUTOINCREMENT,
  coddecr     INTEGER CONSTRAINT range_coddecr   CHECK (coddecr BETWEEN -2147483648 AND 2147483647),
  ejercicio   INTEGER CONSTRAINT range_ejercicio CHECK (ejercicio BETWEEN -2147483648 AND 2147483647),
  moneda      TEXT COLLATE NOCASE CONSTRAINT size_moneda CHECK (length(moneda) <= 1)
) STRICT;
CREATE INDEX TDeclaraciones_coddecr ON TDeclaraciones (coddecr);

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
  impmobT4        REAL DEFAULT 0,
  siglaspaisintra TEXT NOT NULL DEFAULT '' COLLATE NOCASE CONSTRAINT size_siglaspaisintra CHECK (length(siglaspaisintra) <= 2),
  nifpaisintra    TEXT NOT NULL DEFAULT '' COLLATE NOCASE CONSTRAINT size_nifpaisintra    CHECK (length(nifpaisintra) <= 15),
  opeivacaja      TEXT NOT NULL DEFAULT '' COLLATE NOCASE CONSTRAINT size_opeivacaja      CHECK (length(opeivacaja) <= 1),
  opeinvsujpas    TEXT NOT NULL DEFAULT '' COLLATE NOCASE CONSTRAINT size_opeinvsujpas    CHECK (length(opeinvsujpas) <= 1),
  operegposadu    TEXT NOT NULL DEFAULT '' COLLATE NOCASE CONSTRAINT size_operegposadu    CHECK (length(operegposadu) <= 1),
  impanudevopecaj REAL DEFAULT 0
) STRICT;
-- With the identifier: the check for a repeated operation looks for both.
CREATE INDEX tOperadores_coddeclar ON tOperadores (coddeclar, nifo);

CREATE TABLE tArrendamientos (
  codarr      INTEGER PRIMARY KEY AUTOINCREMENT,
  coddeclar   INTEGER CONSTRAINT range_coddeclar CHECK (coddeclar BETWEEN -2147483648 AND 2147483647),
  prova       INTEGER CONSTRAINT range_prova     CHECK (prova BETWEEN -2147483648 AND 2147483647),
  provi       INTEGER NOT NULL DEFAULT 0 CONSTRAINT range_provi CHECK (provi BETWEEN -2147483648 AND 2147483647),
  paiso       TEXT DEFAULT '' COLLATE NOCASE CONSTRAINT size_paiso CHECK (length(paiso) <= 3),
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

CREATE TABLE TPresentador (
  codpres     INTEGER PRIMARY KEY AUTOINCREMENT,
  dni_cif     TEXT COLLATE NOCASE CONSTRAINT size_dni_cif    CHECK (length(dni_cif) <= 20),
  nombre      TEXT COLLATE NOCASE CONSTRAINT size_nombre     CHECK (length(nombre) <= 100),
  via         TEXT COLLATE NOCASE CONSTRAINT size_via        CHECK (length(via) <= 5),
  domicilio   TEXT COLLATE NOCASE CONSTRAINT size_domicilio  CHECK (length(domicilio) <= 100),
  numero      INTEGER CONSTRAINT range_numero    CHECK (numero BETWEEN -2147483648 AND 2147483647),
  letra       TEXT COLLATE NOCASE CONSTRAINT size_letra      CHECK (length(letra) <= 10),
  escalera    TEXT COLLATE NOCASE CONSTRAINT size_escalera   CHECK (length(escalera) <= 10),
  piso        TEXT COLLATE NOCASE CONSTRAINT size_piso       CHECK (length(piso) <= 10),
  mano        TEXT COLLATE NOCASE CONSTRAINT size_mano       CHECK (length(mano) <= 10),
  cod         INTEGER CONSTRAINT range_cod       CHECK (cod BETWEEN -2147483648 AND 2147483647),
  codpostal   INTEGER CONSTRAINT range_codpostal CHECK (codpostal BETWEEN -2147483648 AND 2147483647),
  municipio   TEXT COLLATE NOCASE CONSTRAINT size_municipio  CHECK (length(municipio) <= 100),
  prefijo     INTEGER CONSTRAINT range_prefijo   CHECK (prefijo BETWEEN -2147483648 AND 2147483647),
  telefono    TEXT COLLATE NOCASE CONSTRAINT size_telefono   CHECK (length(telefono) <= 20),
  nombrep     TEXT COLLATE NOCASE CONSTRAINT size_nombrep    CHECK (length(nombrep) <= 100),
  prefijop    INTEGER CONSTRAINT range_prefijop  CHECK (prefijop BETWEEN -2147483648 AND 2147483647),
  telefonop   TEXT COLLATE NOCASE CONSTRAINT size_telefonop  CHECK (length(telefonop) <= 20)
) STRICT;

CREATE TABLE tGeneral (
  ActOnline   INTEGER CONSTRAINT range_ActOnline CHECK (ActOnline BETWEEN -32768 AND 32767),
  Idioma      TEXT COLLATE NOCASE CONSTRAINT size_Idioma CHECK (length(Idioma) <= 5)
) STRICT;
INSERT INTO tGeneral (ActOnline, Idioma) VALUES (0, 'C');
