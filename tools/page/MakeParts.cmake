# Writes the source file OUTPUT, which holds the page without its data: the file PAGE with the files STYLES and
# SCRIPTS inserted, and with the hashes of the only style and script that the browser may use.
cmake_minimum_required(VERSION 3.25)

# Sets `result` to the SHA-256 hash of `text` in Base64.
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

# Sets `result` to the contents of the files named after it, joined.
function(read_all result)
  set(all "")
  foreach(file IN LISTS ARGN)
    file(READ ${file} text)
    string(APPEND all "${text}")
  endforeach()
  set(${result} "${all}" PARENT_SCOPE)
endfunction()

read_all(page ${PAGE})
read_all(style ${STYLES})
read_all(script ${SCRIPTS})
set(script "'use strict';\n{\n${script}}\n")
hash_of("${style}" style_hash)
hash_of("${script}" script_hash)
foreach(part IN ITEMS style_hash script_hash style script)
  string(TOUPPER "@${part}@" place)
  string(REPLACE "${place}" "${${part}}" page "${page}")
endforeach()

string(FIND "${page}" "@DATA@" data)
string(SUBSTRING "${page}" 0 ${data} before)
math(EXPR data "${data} + 6")
string(SUBSTRING "${page}" ${data} -1 after)
file(WRITE ${OUTPUT} "#include <ZKStrings/tools/page/PageParts.h>

const std::string_view zk::tools::kPageBeforeData = R\"page(${before})page\";
const std::string_view zk::tools::kPageAfterData = R\"page(${after})page\";
")
