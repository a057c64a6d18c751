# Fails on an error out-parameter in src/ (`QString *error`, `QString &reason`,
# `Error *error`, `Error &error`): a function that can fail returns Error, or Result<T> when
# it also makes something, so that every caller reads failures one way.
# cmake -DROOT=<project folder> -P error-style.cmake
cmake_minimum_required(VERSION 3.25)

if(NOT ROOT)
  message(FATAL_ERROR "Usage: cmake -DROOT=<project folder> -P error-style.cmake")
endif()
set(names "[A-Za-z]*([Ee]rror|[Rr]eason|[Pp]roblem)")
file(GLOB_RECURSE files ${ROOT}/src/*.h ${ROOT}/src/*.cpp)
set(found "")
foreach(file ${files})
  file(STRINGS ${file} hits REGEX "QString \\*${names}|[(,] *QString &${names}|[(,] *Error [*&][a-z]")
  foreach(hit ${hits})
    file(RELATIVE_PATH name ${ROOT} ${file})
    string(STRIP "${hit}" hit)
    string(APPEND found "\n  ${name}: ${hit}")
  endforeach()
endforeach()
if(found)
  message(FATAL_ERROR "Error out-parameters; return Error or Result<T> instead:${found}")
endif()
message(STATUS "No error out-parameters in src/")
