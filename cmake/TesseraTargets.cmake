# What every target of the project shares: warnings, sanitizers, one set of precompiled headers.

add_library(tessera_options INTERFACE)
target_compile_options(tessera_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
  -Wcast-qual -Wformat=2 -Werror
  # GCC 12 takes the payload of every moved std::optional for uninitialized; the sanitizers look instead.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
target_compile_definitions(tessera_options INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_USE_QSTRINGBUILDER QT_STRICT_ITERATORS)
target_include_directories(tessera_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(TESSERA_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options(${sanitizers})
  add_link_options(${sanitizers})
endif()
if(TESSERA_FUZZ)
  # Coverage for every library; each fuzz target alone links the driver.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Headers are precompiled once for each kind of target, and shared by all of that kind.
function(tessera_headers kind)
  cmake_parse_arguments(PARSE_ARGV 1 headers "" "" "LINK;HEADERS")
  file(CONFIGURE OUTPUT headers/${kind}.cpp CONTENT "// Nothing but what a ${kind} includes.\n")
  add_library(tessera_${kind}_headers STATIC ${CMAKE_CURRENT_BINARY_DIR}/headers/${kind}.cpp)
  set_target_properties(tessera_${kind}_headers PROPERTIES AUTOMOC OFF AUTORCC OFF)
  target_link_libraries(tessera_${kind}_headers PRIVATE tessera_options ${headers_LINK})
  target_precompile_headers(tessera_${kind}_headers PRIVATE ${headers_HEADERS})
endfunction()

set(standard_headers <array> <expected> <functional> <memory> <optional> <span> <string> <string_view> <vector>)
# Headers of the standard library and of the toolkit, for rooms without and with windows.
tessera_headers(room LINK Qt6::Core HEADERS <QtCore> ${standard_headers})
tessera_headers(window LINK Qt6::Widgets HEADERS <QtWidgets> ${standard_headers})

# One folder of src/, its files listed by hand: tessera_room(name SOURCES ... LINK ...).
function(tessera_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "WINDOWS" "" "SOURCES;LINK")
  add_library(tessera_${name} STATIC ${room_SOURCES})
  target_link_libraries(tessera_${name} PUBLIC tessera_options ${room_LINK})
  if(room_WINDOWS)
    target_link_libraries(tessera_${name} PUBLIC Qt6::Widgets)
    target_precompile_headers(tessera_${name} REUSE_FROM tessera_window_headers)
  else()
    target_precompile_headers(tessera_${name} REUSE_FROM tessera_room_headers)
  endif()
endfunction()

# Same, for a folder that shows widgets.
function(tessera_window_room name)
  tessera_room(${name} WINDOWS ${ARGN})
endfunction()
