# A room is a static library tavrel_<room>; its windows are a second one, tavrel_<room>_ui. What a room may include is
# what it links, so an include against the grain fails to build.

add_library(tavrel_options INTERFACE)
target_compile_options(tavrel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast)
target_compile_definitions(tavrel_options INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400
  TAVREL_VERSION="${PROJECT_VERSION}")
if(TAVREL_WARNINGS_AS_ERRORS)
  target_compile_options(tavrel_options INTERFACE -Werror)
endif()
if(TAVREL_SANITIZE)
  target_compile_options(tavrel_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer)
  target_link_options(tavrel_options INTERFACE -fsanitize=address,undefined)
endif()
if(TAVREL_FUZZ)
  target_compile_options(tavrel_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
  target_link_options(tavrel_options INTERFACE -fsanitize=address,undefined)
endif()

# tavrel_room(NAME SOURCES ... LINKS ...): the library tavrel_NAME, whose headers are included as "NAME/header.h".
function(tavrel_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(tavrel_${name} STATIC ${ROOM_SOURCES})
  target_include_directories(tavrel_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(tavrel_${name} PUBLIC tavrel_options ${ROOM_LINKS} PRIVATE ${ROOM_PRIVATE_LINKS})
endfunction()
