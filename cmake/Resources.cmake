# What is built into a program: the look (style sheet, icons, sounds), and the compiled texts.
function(tessera_look target)
  set(root ${PROJECT_SOURCE_DIR}/resources)
  file(GLOB icons CONFIGURE_DEPENDS ${root}/icons/*.svg)
  file(GLOB sounds CONFIGURE_DEPENDS ${root}/sounds/*.wav)
  qt_add_resources(${target} look PREFIX / BASE ${root} FILES ${root}/theme.qss ${root}/bioslist.xml ${icons} ${sounds})
endfunction()

function(tessera_texts target)
  set(texts ${PROJECT_BINARY_DIR}/translations/tessera_en.qm ${PROJECT_BINARY_DIR}/translations/tessera_ja.qm)
  set_source_files_properties(${texts} PROPERTIES GENERATED TRUE)
  qt_add_resources(${target} texts PREFIX /texts BASE ${PROJECT_BINARY_DIR}/translations FILES ${texts})
  add_dependencies(${target} tessera_translations)
endfunction()
