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

# One folder of src/, its files listed by hand: tessera_room(name SOURCES ... LINK ...).
function(tessera_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;LINK")
  add_library(tessera_${name} STATIC ${room_SOURCES})
  target_link_libraries(tessera_${name} PUBLIC tessera_options ${room_LINK})
  target_precompile_headers(tessera_${name} PRIVATE
    <QObject> <QString> <QStringList> <QByteArray> <array> <expected> <functional> <memory>
    <optional> <span> <string> <string_view> <vector>)
endfunction()

# Same, for a folder that shows widgets.
function(tessera_window_room name)
  tessera_room(${name} ${ARGN})
  target_link_libraries(tessera_${name} PUBLIC Qt6::Widgets)
  target_precompile_headers(tessera_${name} PRIVATE <QtWidgets>)
endfunction()
