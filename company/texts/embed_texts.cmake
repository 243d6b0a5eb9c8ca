# cmake -DINPUT=<texts.tsv> -DOUTPUT=<file.cpp> -P embed_texts.cmake
# Writes the file as a raw string literal.

file(READ ${INPUT} text)
file(WRITE ${OUTPUT} "#include \"company/texts/embedded_texts.h\"\n
namespace varnel::company {
const char* const kEmbeddedTexts = R\"tsv(${text})tsv\";
}  // namespace varnel::company
")
