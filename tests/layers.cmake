# Fails when a file includes from a folder that its row of the layer table
# does not name, or sits in a source folder the table does not know.
# cmake -DROOT=<project folder> -P layers.cmake   (the table: ROOT/layers.txt)

cmake_minimum_required(VERSION 3.25)

if(NOT ROOT)
  message(FATAL_ERROR "Usage: cmake -DROOT=<project folder> -P layers.cmake")
endif()
get_filename_component(ROOT "${ROOT}" ABSOLUTE BASE_DIR "$ENV{PWD}")
file(STRINGS ${ROOT}/layers.txt rows REGEX "^[^#]")

set(rows_seen "")
set(known "")
foreach(row ${rows})
  string(REGEX REPLACE "[ \t]+" ";" fields "${row}")
  list(POP_FRONT fields folder)
  get_filename_component(name "${folder}" NAME)
  list(APPEND rows_seen "${folder}")
  set(allowed_${folder} "${name};${fields}")
  # Only the source folders are checked; any other first component is a
  # library's (<plist/plist.h>) or a test's own helper folder.
  if(folder MATCHES "^src/")
    list(APPEND known "${name}")
  endif()
endforeach()

set(problems 0)
# Every source folder has a row.
file(GLOB src_folders LIST_DIRECTORIES true RELATIVE ${ROOT} ${ROOT}/src/*)
foreach(folder ${src_folders})
  if(IS_DIRECTORY ${ROOT}/${folder} AND NOT folder IN_LIST rows_seen)
    message(NOTICE "${folder} has no row in layers.txt")
    math(EXPR problems "${problems} + 1")
  endif()
endforeach()

set(count 0)
foreach(folder ${rows_seen})
  file(GLOB_RECURSE files RELATIVE ${ROOT} ${ROOT}/${folder}/*.h ${ROOT}/${folder}/*.cpp)
  foreach(file ${files})
    math(EXPR count "${count} + 1")
    # Quoted and angled alike: a project header is a project header.
    file(STRINGS ${ROOT}/${file} includes REGEX "^[ \t]*#[ \t]*include[ \t]*[\"<][A-Za-z_]+/")
    foreach(line ${includes})
      string(REGEX REPLACE "^[ \t]*#[ \t]*include[ \t]*[\"<]([A-Za-z_]+)/.*" "\\1" target "${line}")
      if(target IN_LIST known AND NOT target IN_LIST allowed_${folder})
        message(NOTICE "${file} includes “${target}/”, which layers.txt does not allow for ${folder}")
        math(EXPR problems "${problems} + 1")
      endif()
    endforeach()
  endforeach()
endforeach()
if(problems GREATER 0)
  message(FATAL_ERROR "${problems} include(s) against the layers, in ${count} files")
endif()
message(STATUS "${count} files, every include as layers.txt allows")
