# Run while installing, with `samples` (relative to `samples_folder`) and `desktop_entry` set.
cmake_policy(VERSION 3.25)

# On the disk, below DESTDIR; file(INSTALL) goes there by itself.
set(prefix "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

set(sums "")
foreach(sample IN LISTS samples)
  if(NOT EXISTS "${prefix}/${sample}")
    get_filename_component(folder "${CMAKE_INSTALL_PREFIX}/${sample}" DIRECTORY)
    file(INSTALL DESTINATION "${folder}" TYPE FILE FILES "${samples_folder}/${sample}")
  endif()
  file(SHA256 "${samples_folder}/${sample}" sum)
  string(APPEND sums "${sum}  ${sample}\n")
endforeach()
file(MAKE_DIRECTORY "${prefix}/library" "${prefix}/share/vantrel" "${prefix}/share/applications")
# So that uninstalling can tell a sample from a plan that was made of it.
file(WRITE "${prefix}/share/vantrel/samples.sha256" "${sums}")

# An entry's command quotes a path, with a backslash before what would be read otherwise; and each
# backslash is doubled once more, as in any text of the file. CMake's own paths have none.
set(VANTREL_TRY_EXEC "${CMAKE_INSTALL_PREFIX}/vantrel")
string(REGEX REPLACE "([\"`$])" "\\\\\\\\\\1" command "${VANTREL_TRY_EXEC}")
string(REPLACE "%" "%%" command "${command}")
set(VANTREL_EXEC "\"${command}\"")
configure_file("${desktop_entry}" "${prefix}/share/applications/vantrel.desktop" @ONLY)
