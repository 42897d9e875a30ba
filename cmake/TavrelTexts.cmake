# tavrel_texts(OUT): the C++ source, in the variable OUT, that embeds the text tables resources/texts/<language>/<Table>.ts,
# compiled, as :/texts/<language>/<Table>.qm. Its resource is named "texts".
function(tavrel_texts out)
  set(texts ${PROJECT_SOURCE_DIR}/resources/texts)
  set(compiled ${CMAKE_CURRENT_BINARY_DIR}/texts)
  file(GLOB tables RELATIVE ${texts} CONFIGURE_DEPENDS ${texts}/*/*.ts)
  set(list "<RCC><qresource prefix=\"/texts\">\n")
  set(files)
  foreach(table IN LISTS tables)
    string(REGEX REPLACE "\\.ts$" ".qm" file ${table})
    get_filename_component(folder ${compiled}/${file} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    add_custom_command(OUTPUT ${compiled}/${file} DEPENDS ${texts}/${table}
      COMMAND Qt6::lrelease -silent ${texts}/${table} -qm ${compiled}/${file} VERBATIM)
    string(APPEND list "<file alias=\"${file}\">${compiled}/${file}</file>\n")
    list(APPEND files ${compiled}/${file})
  endforeach()
  string(APPEND list "</qresource></RCC>\n")
  file(CONFIGURE OUTPUT ${compiled}/texts.qrc CONTENT "${list}" @ONLY)
  add_custom_command(OUTPUT ${compiled}/texts_resource.cpp DEPENDS ${files} ${compiled}/texts.qrc
    COMMAND Qt6::rcc --name texts --output ${compiled}/texts_resource.cpp ${compiled}/texts.qrc VERBATIM)
  set_source_files_properties(${compiled}/texts_resource.cpp PROPERTIES SKIP_AUTOGEN ON)
  set(${out} ${compiled}/texts_resource.cpp PARENT_SCOPE)
endfunction()
