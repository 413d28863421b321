-- The operation keys of form 347, in Spanish (descripcionc) and Basque
-- (descripcione). F and G are the travel agencies' keys.
INSERT INTO TOperaciones (codigo, descripcionc, descripcione) VALUES
  ('A', 'Adquisiciones de bienes y servicios superiores a 3.005,06 euros',
        '3.005,06 eurotik gorako ondasun eta zerbitzuen erosketak'),
  ('B', 'Entregas de bienes y prestaciones de servicios superiores a 3.005,06 euros',
        '3.005,06 eurotik gorako ondasun-emateak eta zerbitzu-prestazioak'),
  ('C', 'Cobros por cuenta de terceros de honorarios profesionales o de derechos de autor superiores a 300,51 euros',
        'Hirugarrenen kontura egindako 300,51 eurotik gorako lanbide-ordainsarien edo egile-eskubideen kobrantzak'),
  ('D', 'Adquisiciones de bienes y servicios efectuadas por entidades públicas al margen de su actividad empresarial o profesional',
        'Erakunde publikoek beren enpresa- edo lanbide-jardueratik kanpo egindako ondasun eta zerbitzuen erosketak'),
  ('E', 'Subvenciones, auxilios y ayudas satisfechas por las administraciones públicas',
        'Administrazio publikoek ordaindutako diru-laguntzak, sorospenak eta laguntzak'),
  ('F', 'Ventas de agencias de viajes',
        'Bidaia-agentzien salmentak'),
  ('G', 'Compras de agencias de viajes',
        'Bidaia-agentzien erosketak');
