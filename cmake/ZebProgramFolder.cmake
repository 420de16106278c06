# The program folder: everything a portable copy of the program needs, made of data/.

set(ZEB_DATA ${PROJECT_SOURCE_DIR}/data)

# Copies the files that match the pattern into a folder of the program folder.
function(zeb_copy pattern to)
  file(GLOB files CONFIGURE_DEPENDS ${ZEB_DATA}/${pattern})
  foreach(file IN LISTS files)
    cmake_path(GET file FILENAME name)
    cmake_path(SET copy NORMALIZE ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${to}/${name})
    add_custom_command(OUTPUT ${copy} DEPENDS ${file} VERBATIM
                       COMMAND ${CMAKE_COMMAND} -E copy ${file} ${copy})
    set_property(GLOBAL APPEND PROPERTY ZEB_PROGRAM_FILES ${copy})
    install(FILES ${file} DESTINATION ${CMAKE_INSTALL_DATADIR}/zeb/${to})
  endforeach()
endfunction()

# Packs the files that match the pattern into an archive of the program folder.
function(zeb_protected_archive name password pattern)
  file(GLOB files CONFIGURE_DEPENDS ${ZEB_DATA}/${pattern})
  if(NOT files)
    return()
  endif()
  set(archive ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
  add_custom_command(OUTPUT ${archive} DEPENDS ${files} VERBATIM
                     COMMAND protect_archive ${archive} ${password} ${files})
  set_property(GLOBAL APPEND PROPERTY ZEB_PROGRAM_FILES ${archive})
  install(FILES ${archive} DESTINATION ${CMAKE_INSTALL_DATADIR}/zeb)
endfunction()

function(zeb_program_folder)
  include(GNUInstallDirs)
  add_executable(protect_archive ${PROJECT_SOURCE_DIR}/tools/protect_archive.cpp)
  set_target_properties(protect_archive PROPERTIES
                        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tools)
  target_link_libraries(protect_archive PRIVATE PkgConfig::LIBZIP)

  zeb_copy(pipedata/*.PDT pipedata)
  zeb_copy(examples/*.zeb Examples)
  zeb_copy(zeblast.txt .)
  zeb_protected_archive(DesignAuth_V2.dat ${ZEB_DESIGN_AUTH_PASSWORD} authorities/DesignAuth.csv)

  get_property(files GLOBAL PROPERTY ZEB_PROGRAM_FILES)
  add_custom_target(program_folder ALL DEPENDS ${files})
  foreach(program IN ITEMS zeb zeb-batch)
    if(TARGET ${program})
      add_dependencies(program_folder ${program})
    endif()
  endforeach()
endfunction()

# What is installed beside the programs and their data.
function(zeb_install)
  file(GLOB manuals CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/packaging/*.1)
  install(FILES ${manuals} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  set(share ${CMAKE_INSTALL_DATADIR})
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/zeb.desktop DESTINATION ${share}/applications)
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/zeb-mime.xml DESTINATION ${share}/mime/packages
          RENAME zeb.xml)
  install(FILES ${PROJECT_SOURCE_DIR}/src/ui/icons/zeb.svg
          DESTINATION ${share}/icons/hicolor/scalable/apps)
endfunction()
