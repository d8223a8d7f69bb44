# Writes the source file OUTPUT with the page around its data: page.html with the style and the scripts in it, and the
# only style and script that the browser may run named by their hashes.
cmake_minimum_required(VERSION 3.25)

# The Base64 form of the SHA-256 hash of `text`.
function(hash_of text result)
  set(digits "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
  string(SHA256 hash "${text}")
  set(encoded "")
  foreach(begin RANGE 0 63 3)
    string(SUBSTRING "${hash}00" ${begin} 3 group)
    math(EXPR first "0x${group} >> 6")
    math(EXPR second "0x${group} & 63")
    string(SUBSTRING "${digits}" ${first} 1 first)
    string(SUBSTRING "${digits}" ${second} 1 second)
    string(APPEND encoded "${first}${second}")
  endforeach()
  string(REGEX REPLACE ".$" "=" encoded "${encoded}")
  set(${result} "${encoded}" PARENT_SCOPE)
endfunction()

set(script "'use strict';\n{\n")
foreach(file IN LISTS SCRIPTS)
  file(READ ${SOURCE}/${file} text)
  string(APPEND script "${text}")
endforeach()
string(APPEND script "}\n")
file(READ ${SOURCE}/page.css style)
file(READ ${SOURCE}/page.html page)

hash_of("${style}" style_hash)
hash_of("${script}" script_hash)
foreach(part IN ITEMS style_hash script_hash style script)
  string(TOUPPER "@${part}@" place)
  string(REPLACE "${place}" "${${part}}" page "${page}")
endforeach()

string(FIND "${page}" "@DATA@" data)
string(SUBSTRING "${page}" 0 ${data} before)
math(EXPR data "${data} + 6")
string(SUBSTRING "${page}" ${data} -1 behind)
file(WRITE ${OUTPUT} "#include <ZKStrings/tools/page/PageParts.h>

const std::string_view zk::tools::kPageBeforeData = R\"page(${before})page\";
const std::string_view zk::tools::kPageBehindData = R\"page(${behind})page\";
")
