# win32_resources(TARGET FILE.rc): the dialogs, icons and version that a program or library holds. Windows has
# windres for that; the native build turns the same script into code that registers them.
if(WIN32)
  enable_language(RC)
endif()

function(win32_resources target file)
  if(WIN32)
    target_sources(${target} PRIVATE ${file})
    return()
  endif()
  get_filename_component(name ${file} NAME_WE)
  get_filename_component(folder ${file} DIRECTORY)
  file(GLOB pictures ${folder}/*.ico)
  set(code ${CMAKE_CURRENT_BINARY_DIR}/${target}_${name}_resources.cpp)
  add_custom_command(OUTPUT ${code} COMMAND rc ${file} ${code} DEPENDS rc ${file} ${pictures}
                     COMMENT "Compiling ${name}.rc for ${target}" VERBATIM)
  target_sources(${target} PRIVATE ${code})
endfunction()
