# cmake -DFOLDER=<folder of the .sql files> -DOUTPUT=<file.cpp> -P embed_sql.cmake
# Writes the SQL texts as raw string literals; names follow schema.h.

function(append_text name file)
    file(READ ${FOLDER}/${file} text)
    string(APPEND source "const char* const ${name} = R\"sql(${text})sql\";\n")
    set(source "${source}" PARENT_SCOPE)
endfunction()

set(source "#include \"company/schema/schema.h\"\n\nnamespace varnel::company {\n")
append_text(kSchemaSql schema.sql)
append_text(kIndexesSql indexes.sql)
append_text(kServerPreludeSql server_prelude.sql)
append_text(kServerRemovalSql server_removal.sql)
string(APPEND source "}  // namespace varnel::company\n")
file(WRITE ${OUTPUT} "${source}")
