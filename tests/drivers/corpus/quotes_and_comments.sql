SELECT 'it''s & +' + "a & b" + [c & d] + `e` -- & +
 /* & + */ FROM t