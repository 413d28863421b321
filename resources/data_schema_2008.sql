-- The data database as the program of 2008 left it, for trying the upgrade
-- of an earlier year's database: applied after data_schema_2011.sql, it
-- drops the quarterly amounts from the operations table as well.

ALTER TABLE tOperadores DROP COLUMN ejerimpmet;
ALTER TABLE tOperadores DROP COLUMN impopeT1;
ALTER TABLE tOperadores DROP COLUMN impopeT2;
ALTER TABLE tOperadores DROP COLUMN impopeT3;
ALTER TABLE tOperadores DROP COLUMN impopeT4;
ALTER TABLE tOperadores DROP COLUMN impmobT1;
ALTER TABLE tOperadores DROP COLUMN impmobT2;
ALTER TABLE tOperadores DROP COLUMN impmobT3;
ALTER TABLE tOperadores DROP COLUMN impmobT4;
