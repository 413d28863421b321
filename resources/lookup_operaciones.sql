-- The operation keys of form 347, in Spanish (descripcionc) and Basque
-- (descripcione), as the form's instructions word them. F and G are the
-- travel agencies' keys.
INSERT INTO TOperaciones (codigo, descripcionc, descripcione) VALUES
  ('A', 'Adquisiciones de bienes y servicios superiores a 3.005,06 euros',
        '3.005,06 eurotik gorako ondasun eta zerbitzuen erosketak'),
  ('B', 'Entregas de bienes y prestaciones de servicios superiores a 3.005,06 euros',
        '3.005,06 eurotik gorako ondasun-emateak eta zerbitzu-prestazioak'),
  ('C', 'Cobros por cuenta de terceros de honorarios profesionales o de derechos derivados de la propiedad intelectual, industrial, de autor u otros, superiores a 300,51 euros',
        'Hirugarrenen kontura egindako 300,51 eurotik gorako kobrantzak: lanbide-ordainsariak edo jabetza intelektual edo industrialaren, egile-eskubideen edo bestelakoen eskubideak'),
  ('D', 'Adquisiciones de bienes y servicios efectuadas por entidades públicas al margen de su actividad empresarial o profesional, superiores a 3.005,06 euros',
        'Erakunde publikoek beren enpresa- edo lanbide-jardueratik kanpo egindako 3.005,06 eurotik gorako ondasun eta zerbitzuen erosketak'),
  ('E', 'Subvenciones, auxilios y ayudas satisfechas por las administraciones públicas, superiores a 3.005,06 euros',
        'Administrazio publikoek ordaindutako 3.005,06 eurotik gorako diru-laguntzak, sorospenak eta laguntzak'),
  ('F', 'Ventas de agencias de viajes',
        'Bidaia-agentzien salmentak'),
  ('G', 'Compras de agencias de viajes',
        'Bidaia-agentzien erosketak');
