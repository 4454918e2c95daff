# The window's interface file, and the string tables inside the library that shows them.
set_target_properties(norvex_window PROPERTIES AUTOUIC_SEARCH_PATHS ${CMAKE_CURRENT_SOURCE_DIR}/resources)
qt_add_lrelease(norvex_application TS_FILES ${CMAKE_CURRENT_SOURCE_DIR}/resources/norvex_en.ts
  QM_FILES_OUTPUT_VARIABLE NORVEX_STRING_TABLES)
qt_add_resources(norvex_application norvex_strings PREFIX /strings BASE ${CMAKE_CURRENT_BINARY_DIR}
  FILES ${NORVEX_STRING_TABLES})
