-- The data database as the program of 2011 left it, for trying the upgrade
-- of an earlier year's database: applied after data_schema.sql, it drops
-- the intra-community and 2014 columns from the operations table (the
-- rentals table is already the current one).

ALTER TABLE tOperadores DROP COLUMN siglaspaisintra;
ALTER TABLE tOperadores DROP COLUMN nifpaisintra;
ALTER TABLE tOperadores DROP COLUMN opeivacaja;
ALTER TABLE tOperadores DROP COLUMN opeinvsujpas;
ALTER TABLE tOperadores DROP COLUMN operegposadu;
ALTER TABLE tOperadores DROP COLUMN impanudevopecaj;
