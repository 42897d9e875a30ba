# A room is a folder of src/: a static library tavrel_<room>, and for its windows a second one, tavrel_<room>_ui, in its
# folder ui/. A room includes only its own headers and those of rooms that it links, straight or through others. As a
# static library could include what it likes, tests/house holds every include against the links that are declared here.

add_library(tavrel_options INTERFACE)
target_compile_options(tavrel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast)
target_compile_definitions(tavrel_options INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
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
find_program(TAVREL_MOLD mold)
if(TAVREL_MOLD AND NOT TAVREL_FUZZ)
  target_link_options(tavrel_options INTERFACE -fuse-ld=mold)
endif()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

# With TAVREL_PRECOMPILE the headers that most files include are read once. A build from nothing becomes much shorter, but
# it does not notice a missing include; the everyday build does without. The compiler takes precompiled headers only where
# the same macros are defined, so all rooms link Qt's libraries then.
function(tavrel_precompile target)
  cmake_parse_arguments(PRECOMPILE "" "" "HEADERS;LINKS" ${ARGN})
  file(WRITE ${PROJECT_BINARY_DIR}/${target}.cpp "")
  add_library(${target} STATIC ${PROJECT_BINARY_DIR}/${target}.cpp)
  target_link_libraries(${target} PRIVATE tavrel_options ${PRECOMPILE_LINKS})
  target_precompile_headers(${target} PRIVATE <QtWidgets>
    <algorithm> <array> <functional> <map> <memory> <optional> <string> <utility> <vector> ${PRECOMPILE_HEADERS})
endfunction()
if(TAVREL_PRECOMPILE)
  target_link_libraries(tavrel_options INTERFACE Qt6::Widgets Qt6::PrintSupport Qt6::Svg Qt6::Network)
  tavrel_precompile(tavrel_precompiled)
endif()

# tavrel_room(LINKS ...): the library of the sources in this folder, named after it. Its headers are included as
# "folder/header.h" from src/; the target all_verify_interface_header_sets compiles each of them alone.
function(tavrel_room)
  cmake_parse_arguments(ROOM "" "" "LINKS;PRIVATE_LINKS;RESOURCES" ${ARGN})
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB headers CONFIGURE_DEPENDS *.h)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(tavrel_${name} STATIC ${sources} ${ROOM_RESOURCES})
  target_sources(tavrel_${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${headers})
  target_sources(tavrel_${name} PRIVATE ${headers})
  set_target_properties(tavrel_${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON LINKER_LANGUAGE CXX)
  target_include_directories(tavrel_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(tavrel_${name} PUBLIC tavrel_options ${ROOM_LINKS} PRIVATE ${ROOM_PRIVATE_LINKS})

  if(TAVREL_PRECOMPILE)
    target_precompile_headers(tavrel_${name} REUSE_FROM tavrel_precompiled)
  endif()

  list(FILTER ROOM_LINKS INCLUDE REGEX "^tavrel_")
  list(JOIN ROOM_LINKS " " links)
  set_property(GLOBAL APPEND PROPERTY TAVREL_ROOMS "${folder} tavrel_${name}: ${links}")
endfunction()

# tavrel_test(LINKS ...): the test program of the sources in this folder of tests/, named after it. Windows are driven on
# the offscreen platform; every test gets its own empty settings folder.
function(tavrel_test)
  cmake_parse_arguments(TEST "" "" "LINKS" ${ARGN})
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${name}_tests ${sources})
  target_include_directories(${name}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name}_tests PRIVATE tavrel_test_support ${TEST_LINKS})
  if(TAVREL_PRECOMPILE)
    target_precompile_headers(${name}_tests REUSE_FROM tavrel_precompiled_tests)
  endif()
  target_compile_definitions(${name}_tests PRIVATE TAVREL_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
  gtest_discover_tests(${name}_tests DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT 300
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
