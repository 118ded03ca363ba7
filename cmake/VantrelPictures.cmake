# The pictures that the program shows in its playful mood, and the icon of its windows, compiled in
# from resources/. Without them, or without one of their files, it goes without.
option(VANTREL_PICTURES "Put the pictures of resources/ into the executable" ON)

file(GLOB vantrel_picture_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/*.jpg)
set(vantrel_pictures "")
set(vantrel_picture_depends "")
if(VANTREL_PICTURES)
  foreach(picture "101=splash" "102=inset" "103=help")
    string(REPLACE "=" "=${CMAKE_SOURCE_DIR}/resources/" picture "${picture}.jpg")
    string(REGEX REPLACE "^[0-9]+=" "" file "${picture}")
    if(file IN_LIST vantrel_picture_files)
      list(APPEND vantrel_pictures "${picture}")
      list(APPEND vantrel_picture_depends "${file}")
    endif()
  endforeach()
endif()
list(JOIN vantrel_pictures "," vantrel_pictures)

set(vantrel_pictures_source ${CMAKE_BINARY_DIR}/generated/embedded_pictures.cpp)
set(vantrel_pictures_script ${CMAKE_SOURCE_DIR}/cmake/EmbedPictures.cmake)
add_custom_command(OUTPUT ${vantrel_pictures_source}
  COMMAND ${CMAKE_COMMAND} -DOUTPUT=${vantrel_pictures_source} -DPICTURES=${vantrel_pictures}
    -P ${vantrel_pictures_script}
  DEPENDS ${vantrel_pictures_script} ${vantrel_picture_depends}
  COMMENT "Embedding the pictures" VERBATIM)
target_sources(vantrel_services PRIVATE ${vantrel_pictures_source})

# By their sides in pixels.
set(vantrel_icons "")
set(vantrel_icon_depends "")
foreach(side 16 24 32 48 64 128)
  set(file ${CMAKE_SOURCE_DIR}/resources/icons/hicolor/${side}x${side}/apps/vantrel.png)
  list(APPEND vantrel_icons "${side}=${file}")
  list(APPEND vantrel_icon_depends ${file})
endforeach()
list(JOIN vantrel_icons "," vantrel_icons)

set(vantrel_icons_source ${CMAKE_BINARY_DIR}/generated/embedded_icons.cpp)
add_custom_command(OUTPUT ${vantrel_icons_source}
  COMMAND ${CMAKE_COMMAND} -DOUTPUT=${vantrel_icons_source} -DPICTURES=${vantrel_icons}
    -DFUNCTION=EmbeddedIcons -P ${vantrel_pictures_script}
  DEPENDS ${vantrel_pictures_script} ${vantrel_icon_depends}
  COMMENT "Embedding the icon" VERBATIM)
target_sources(vantrel_services PRIVATE ${vantrel_icons_source})
