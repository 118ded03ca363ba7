# The program keeps its plans and preferences beside itself, so the install prefix is one flat
# folder that belongs to the user. Plans and blocks that are already there are never touched: the
# samples are copied only when their file is missing. What a desktop wants to know lies in share/
# under the prefix; integrate.sh, which run.sh calls, makes the user's desktop know it.
if(TARGET vantrel)
  set(desktop_folder ${CMAKE_SOURCE_DIR}/desktop)
  # Users have no need of symbols, which are a good part of the file; the build folder keeps them.
  install(CODE "set(CMAKE_INSTALL_DO_STRIP TRUE)")
  install(TARGETS vantrel RUNTIME DESTINATION .)
  install(PROGRAMS ${desktop_folder}/uninstall.sh DESTINATION .)
  install(PROGRAMS ${desktop_folder}/integrate.sh DESTINATION share/vantrel)
  install(FILES ${desktop_folder}/vantrel.xml DESTINATION share/mime/packages)
  install(FILES ${desktop_folder}/example.kelmor.vantrel.metainfo.xml DESTINATION share/metainfo)
  install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/icons/ DESTINATION share/icons)

  # For uninstall.sh, which may stand in a folder with other programs.
  file(GLOB_RECURSE icons CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/resources
    ${CMAKE_SOURCE_DIR}/resources/icons/*)
  list(TRANSFORM icons PREPEND share/)
  set(installed vantrel ${icons} share/mime/packages/vantrel.xml
    share/metainfo/example.kelmor.vantrel.metainfo.xml share/applications/vantrel.desktop
    share/vantrel/integrate.sh share/vantrel/samples.sha256 share/vantrel/installed uninstall.sh)
  list(JOIN installed "\n" installed)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/generated/installed CONTENT "@installed@\n" @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/generated/installed DESTINATION share/vantrel)

  file(GLOB_RECURSE samples CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/samples
    ${CMAKE_SOURCE_DIR}/samples/*.vtl)
  install(CODE "
    set(samples \"${samples}\")
    set(samples_folder \"${CMAKE_SOURCE_DIR}/samples\")
    set(desktop_entry \"${desktop_folder}/vantrel.desktop.in\")
    include(\"${CMAKE_SOURCE_DIR}/cmake/InstallSteps.cmake\")")
endif()
