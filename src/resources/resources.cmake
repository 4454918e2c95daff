# The window's interface file, and the string tables inside the library that shows them.
set_target_properties(norvex_window PROPERTIES AUTOUIC_SEARCH_PATHS ${CMAKE_CURRENT_SOURCE_DIR}/resources)
file(GLOB NORVEX_TEXTS CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/resources/norvex_*.ts)
qt_add_lrelease(norvex_application TS_FILES ${NORVEX_TEXTS}
  QM_FILES_OUTPUT_VARIABLE NORVEX_STRING_TABLES)
qt_add_resources(norvex_application norvex_strings PREFIX /strings BASE ${CMAKE_CURRENT_BINARY_DIR}
  FILES ${NORVEX_STRING_TABLES})

# The manual: a folder a language with its pictures (scripts/manual-pictures makes them); those of English, which
# a language without its own shows too, lie beside the folders.
file(GLOB_RECURSE NORVEX_MANUAL CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/resources/manual/*.html
     ${CMAKE_CURRENT_SOURCE_DIR}/resources/manual/*.png)
qt_add_resources(norvex_application norvex_manual PREFIX / BASE ${CMAKE_CURRENT_SOURCE_DIR}/resources
  FILES ${NORVEX_MANUAL})
