# Fails when src/ has more `QString *error` out-parameters than the number
# below: failures are returned as Error or Result<T>. Lower the number as
# the old ones go; never raise it.
# cmake -DROOT=<project folder> -P error-style.cmake
cmake_minimum_required(VERSION 3.25)

set(allowed 87)

if(NOT ROOT)
  message(FATAL_ERROR "Usage: cmake -DROOT=<project folder> -P error-style.cmake")
endif()
file(GLOB_RECURSE files ${ROOT}/src/*.h ${ROOT}/src/*.cpp)
set(count 0)
foreach(file ${files})
  file(STRINGS ${file} hits REGEX "QString \\*[A-Za-z]*([Ee]rror|[Rr]eason|[Pp]roblem)")
  list(LENGTH hits n)
  math(EXPR count "${count} + ${n}")
endforeach()
if(count GREATER allowed)
  message(FATAL_ERROR "${count} lines with a QString error out-parameter, ${allowed} allowed: "
                      "return Error or Result<T> instead")
endif()
message(STATUS "${count} QString error out-parameters left (${allowed} allowed)")
