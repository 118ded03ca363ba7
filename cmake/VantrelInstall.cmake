# The program keeps its plans and preferences beside itself, so the install prefix is one flat
# folder that belongs to the user. Plans that are already there are never touched: the samples are
# copied only when their file is missing.
if(TARGET vantrel)
  install(TARGETS vantrel RUNTIME DESTINATION .)
  file(GLOB samples ${CMAKE_SOURCE_DIR}/samples/*.vtl)
  foreach(sample ${samples})
    get_filename_component(sample_name ${sample} NAME)
    install(CODE "
      set(target \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${sample_name}\")
      if(NOT EXISTS \"\${target}\")
        file(INSTALL DESTINATION \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\" TYPE FILE
          FILES \"${sample}\")
      endif()")
  endforeach()
  install(CODE "file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/library\")")
endif()
