# How a target is made here. Every folder of src/ is one static library that shows nobody but its own headers:
# its include path holds a link to this one folder, so a header can be named ("db/Recordset.h") only by a
# target that links the folder. The order of the floors stands in src/CMakeLists.txt.

add_library(marklink_optionen INTERFACE)
target_compile_options(marklink_optionen INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
target_compile_definitions(marklink_optionen INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
if(MARKLINK_SANITIZE)
  target_compile_options(marklink_optionen INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(marklink_optionen INTERFACE -fsanitize=address,undefined)
endif()

if(MARKLINK_LIBFUZZER)
  # Without this the fuzzers see nothing of the library, and do not find their way into it.
  target_compile_options(marklink_optionen INTERFACE -fsanitize=fuzzer-no-link)
endif()

# A slim set of headers that nearly every file needs; precompiled once a target.
function(marklink_vorkompilieren ziel)
  target_precompile_headers(${ziel} PRIVATE <QString> <QVariant> <QDateTime> <QList> <QHash> <memory> <vector> <functional>)
endfunction()

# marklink_ordner(<target> <folder below src/> LINKS <libraries>)
function(marklink_ordner ziel ordner)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB quellen CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${ordner}/*.cpp ${CMAKE_SOURCE_DIR}/src/${ordner}/*.h
       ${CMAKE_SOURCE_DIR}/src/${ordner}/schema/*.cpp)
  add_library(${ziel} STATIC ${quellen})
  set(pfad ${CMAKE_BINARY_DIR}/include/${ziel})
  get_filename_component(oberordner ${pfad}/${ordner} DIRECTORY)
  file(MAKE_DIRECTORY ${oberordner})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${ordner} ${pfad}/${ordner} SYMBOLIC)
  target_include_directories(${ziel} PUBLIC ${pfad})
  target_link_libraries(${ziel} PUBLIC marklink_optionen ${ARG_LINKS})
  marklink_vorkompilieren(${ziel})
endfunction()
