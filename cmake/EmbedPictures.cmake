# Writes pictures as the C++ source of EmbeddedPictures(), so that the executable carries them; with
# FUNCTION as that of another function of app/services/embedded_pictures.h.
#   cmake -DOUTPUT=FILE -DPICTURES=ID=FILE,... [-DFUNCTION=NAME] -P EmbedPictures.cmake
# A picture whose file is missing is left out; without PICTURES there are none.
cmake_policy(VERSION 3.25)
if(NOT FUNCTION)
  set(FUNCTION EmbeddedPictures)
endif()
set(arrays "")
set(rows "")
string(REPLACE "," ";" pictures "${PICTURES}")
foreach(picture IN LISTS pictures)
  string(REGEX MATCH "^([0-9]+)=(.*)$" matched "${picture}")
  set(id "${CMAKE_MATCH_1}")
  set(file "${CMAKE_MATCH_2}")
  if(NOT EXISTS "${file}")
    continue()
  endif()
  file(READ "${file}" bytes HEX)
  string(REGEX REPLACE "(................................)" "\\1\n" bytes "${bytes}")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "constexpr unsigned char kPicture${id}[] = {\n${bytes}};\n")
  string(APPEND rows "    {${id}, kPicture${id}},\n")
endforeach()

string(CONCAT source "// Written by cmake/EmbedPictures.cmake.\n"
  "#include \"app/services/embedded_pictures.h\"\n\nnamespace vantrel {\n")
if(rows)
  string(APPEND source "namespace {\n\n${arrays}constexpr EmbeddedPicture kPictures[] = {\n${rows}};\n\n"
    "}  // namespace\n\nstd::span<const EmbeddedPicture> ${FUNCTION}() {\n  return kPictures;\n}\n")
else()
  string(APPEND source "\nstd::span<const EmbeddedPicture> ${FUNCTION}() {\n  return {};\n}\n")
endif()
string(APPEND source "\n}  // namespace vantrel\n")
file(WRITE "${OUTPUT}" "${source}")
