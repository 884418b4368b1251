# Writes the text tables into one source file: cmake -DOUTPUT=… -DFOLDER=… -DTABLES=a.types;b.types -P …

set(entries "")
foreach(table IN LISTS TABLES)
  file(READ ${FOLDER}/${table} text)
  string(APPEND entries "    {\"${table}\", R\"~table~(${text})~table~\"},\n")
endforeach()
file(READ ${FOLDER}/defaults.nodes defaults)
file(WRITE ${OUTPUT} "// The text tables of host/engine/types.
#include \"engine/typeReader.h\"

namespace tvxhost::engine {

const std::vector<TypeText> kBuiltinTables = {
${entries}};

const std::string_view kDefaultNodes = R\"~table~(${defaults})~table~\";

} // namespace tvxhost::engine
")
