-- Addresses of the online update, read by position (row 1, row 2) and, for
-- URLAct, by name. These are placeholders: a deployment replaces them with
-- its own addresses (UPDATE tgeneral SET URLAct = ... on the lookup database).
INSERT INTO tgeneral (URLAct, Descripcion) VALUES
  ('https://actualizaciones.example.invalid/347/version.txt', 'Dirección de la actualización en línea'),
  ('https://descargas.example.invalid/347/', 'Dirección de descarga del programa');
