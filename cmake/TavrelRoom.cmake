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

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

# tavrel_room(NAME LINKS ...): the static library tavrel_NAME of the sources in this folder. Its headers are included as
# "folder/header.h" from src/.
function(tavrel_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS;PRIVATE_LINKS;RESOURCES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(tavrel_${name} STATIC ${sources} ${ROOM_RESOURCES})
  target_include_directories(tavrel_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(tavrel_${name} PUBLIC tavrel_options ${ROOM_LINKS} PRIVATE ${ROOM_PRIVATE_LINKS})
endfunction()

# tavrel_test(NAME LINKS ...): the test program NAME_tests of the sources in this folder. Windows are driven on the offscreen
# platform; every test gets its own empty settings folder.
function(tavrel_test name)
  cmake_parse_arguments(TEST "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${name}_tests ${sources})
  target_include_directories(${name}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name}_tests PRIVATE tavrel_test_support ${TEST_LINKS})
  target_compile_definitions(${name}_tests PRIVATE TAVREL_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
  gtest_discover_tests(${name}_tests DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT 300
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
