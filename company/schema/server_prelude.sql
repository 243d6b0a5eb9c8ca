-- For PostgreSQL, before schema.sql and in the same schema, which must be on the search path of every session
-- that reads the company (ALTER DATABASE .. SET search_path, ALTER ROLE .. SET search_path, or ConnSettings).
-- The names that schema.sql gives its types. Sums of amounts stay numeric and exact.
CREATE DOMAIN RealAmount AS numeric(19,4);
CREATE DOMAIN RealRate   AS numeric(18,8);
CREATE DOMAIN BookText  AS text COLLATE "C";
-- What the reports write beyond standard SQL: "+" between texts is null when one is, "&" reads null as the empty text.
CREATE OPERATOR + (FUNCTION = pg_catalog.textcat, LEFTARG = text, RIGHTARG = text);
CREATE FUNCTION concat_null_as_empty(text, text) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE
  AS 'SELECT coalesce($1, '''') || coalesce($2, '''')';
CREATE OPERATOR & (FUNCTION = concat_null_as_empty, LEFTARG = text, RIGHTARG = text);
CREATE FUNCTION iif(boolean, integer, integer) RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE
  AS 'SELECT CASE WHEN $1 THEN $2 ELSE $3 END';
