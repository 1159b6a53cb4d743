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

# Windows are the files with these names. They stand beside the rules that they show, in a target of their own; only
# they can name a widget.
set(MARKLINK_FENSTERNAME "/(frm|cls|rpt)[A-Za-z_0-9]*\\.(cpp|h)$")

# marklink_ordner(<target> <folder below src/> LINKS <libraries>)
function(marklink_ordner ziel ordner)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB quellen CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${ordner}/*.cpp ${CMAKE_SOURCE_DIR}/src/${ordner}/*.h
       ${CMAKE_SOURCE_DIR}/src/${ordner}/schema/*.cpp)
  list(FILTER quellen EXCLUDE REGEX "${MARKLINK_FENSTERNAME}")
  add_library(${ziel} STATIC ${quellen})
  set(pfad ${CMAKE_BINARY_DIR}/include/${ziel})
  get_filename_component(oberordner ${pfad}/${ordner} DIRECTORY)
  file(MAKE_DIRECTORY ${oberordner})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${ordner} ${pfad}/${ordner} SYMBOLIC)
  target_include_directories(${ziel} PUBLIC ${pfad})
  target_link_libraries(${ziel} PUBLIC marklink_optionen ${ARG_LINKS})
  marklink_vorkompilieren(${ziel})
endfunction()

# marklink_moc(<target> "<sources>"): moc runs by itself. Left alone it overlooks files that are new, so it is made to
# run again when the list is another one.
function(marklink_moc ziel quellen)
  set_target_properties(${ziel} PROPERTIES AUTOMOC ON)
  set(stand ${CMAKE_CURRENT_BINARY_DIR}/${ziel}_quellen.txt)
  set(bekannt "")
  if(EXISTS ${stand})
    file(READ ${stand} bekannt)
  endif()
  if(NOT bekannt STREQUAL quellen)
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${ziel}_autogen/timestamp)
    file(WRITE ${stand} "${quellen}")
  endif()
endfunction()

# marklink_fenster(<target> <folder below src/> LINKS <the folder's own target, windows that it opens>)
function(marklink_fenster ziel ordner)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB quellen CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${ordner}/*.cpp ${CMAKE_SOURCE_DIR}/src/${ordner}/*.h)
  list(FILTER quellen INCLUDE REGEX "${MARKLINK_FENSTERNAME}")
  file(GLOB mittel CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${ordner}/*.qrc)
  add_library(${ziel} STATIC ${quellen} ${mittel})
  set_target_properties(${ziel} PROPERTIES AUTORCC ON)
  marklink_moc(${ziel} "${quellen}")
  target_link_libraries(${ziel} PUBLIC marklink_optionen ${ARG_LINKS} Qt6::Widgets PRIVATE Qt6::Svg)
  target_precompile_headers(${ziel} PRIVATE <QString> <QVariant> <QDateTime> <QWidget> <QDialog> <QEvent>
    <QLayout> <QLabel> <QPushButton> <memory> <vector> <functional>)
endfunction()
