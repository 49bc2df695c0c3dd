# What every target of the tree has in common: language, warnings, sanitizers, and the two ways to
# declare a target. A floor is one library; the floors' order is written in docs/architecture.md.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTORCC OFF)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

add_library(quillford_settings INTERFACE)
target_include_directories(quillford_settings INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_compile_options(quillford_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(quillford_settings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_STRICT_ITERATORS)
if(QUILLFORD_TESTS)
  # The toolkit drops its assertions, and ours with them, from every build with optimisation.
  target_compile_definitions(quillford_settings INTERFACE QT_FORCE_ASSERTS)
endif()
if(QUILLFORD_WERROR)
  target_compile_options(quillford_settings INTERFACE -Werror)
endif()
if(QUILLFORD_SANITIZE)
  target_compile_options(quillford_settings INTERFACE
    -fsanitize=${QUILLFORD_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quillford_settings INTERFACE -fsanitize=${QUILLFORD_SANITIZE})
endif()

# quillford_floor(NAME SOURCES file... LINKS target...): the library of one floor. It is told the
# floors below it and nothing else, so that an include from above does not link.
function(quillford_floor name)
  cmake_parse_arguments(FLOOR "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${FLOOR_SOURCES})
  target_link_libraries(${name} PUBLIC quillford_settings ${FLOOR_LINKS})
endfunction()

# The same for a floor with widgets: its designed forms (.ui files, beside the class that shows them)
# and the toolkit's signals are compiled with it.
function(quillford_widget_floor name)
  quillford_floor(${name} ${ARGN})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
  target_link_libraries(${name} PUBLIC Qt6::Widgets)
endfunction()

# quillford_program(NAME SOURCES file... LINKS target... [TOOL]): a program that users start, in the
# program's folder, or one for tests and benchmarks, in the folder "tools".
function(quillford_program name)
  cmake_parse_arguments(PROGRAM "TOOL" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE quillford_settings ${PROGRAM_LINKS})
  if(PROGRAM_TOOL)
    set(folder tools)
  else()
    set(folder Quillford)
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${folder}")
endfunction()

# quillford_runs_the_program(NAME): the tool NAME runs the wizard within itself, which looks for its
# help, its dictionary and its way to the word processor beside the program: links lead there.
function(quillford_runs_the_program name)
  if(TARGET quillford_writer)
    add_dependencies(${name} quillford_writer)
  endif()
  foreach(part help Dictionary quillford_writer.so)
    file(CREATE_LINK
      "${CMAKE_BINARY_DIR}/Quillford/${part}" "${CMAKE_BINARY_DIR}/tools/${part}" SYMBOLIC)
  endforeach()
  add_dependencies(${name} help_pages dictionary)
endfunction()
