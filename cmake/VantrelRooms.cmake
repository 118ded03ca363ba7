# One target per source folder ("room"). A room links only rooms on lower floors, so that an
# upward dependency fails to link as well as failing the include test.

add_library(vantrel_flags INTERFACE)
target_include_directories(vantrel_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(vantrel_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 warns of an overlap inside its own std::string operator+ when it optimises.
  target_compile_options(vantrel_flags INTERFACE -Wno-restrict)
endif()
if(VANTREL_WERROR)
  target_compile_options(vantrel_flags INTERFACE -Werror)
endif()
if(VANTREL_HARDEN)
  target_compile_options(vantrel_flags INTERFACE -fstack-protector-strong -fstack-clash-protection
    -D_GLIBCXX_ASSERTIONS
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:VANTREL_IS_TEST>>>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=2>)
  # Only some processors have it, and the compiler refuses it for the others.
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fcf-protection VANTREL_HAS_CF_PROTECTION)
  if(VANTREL_HAS_CF_PROTECTION)
    target_compile_options(vantrel_flags INTERFACE -fcf-protection)
  endif()
  target_link_options(vantrel_flags INTERFACE -Wl,-z,relro -Wl,-z,now)
  # Libraries are compiled position independent; the executables are linked as PIE.
  target_link_options(vantrel_flags INTERFACE $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
endif()
if(VANTREL_SANITIZE)
  # Lines for the reports, but no more: all of -g takes half of the compiler's time here.
  target_compile_options(vantrel_flags INTERFACE -fsanitize=address,undefined
    -fno-sanitize-recover=all -fno-omit-frame-pointer -g1
    $<IF:$<BOOL:$<TARGET_PROPERTY:VANTREL_IS_TEST>>,-O0,-O1>)
  target_link_options(vantrel_flags INTERFACE -fsanitize=address,undefined)
  target_compile_definitions(vantrel_flags INTERFACE _GLIBCXX_ASSERTIONS)
endif()

if(CMAKE_BUILD_TYPE STREQUAL "Release")
  # Most of a full build is its tests, and what they test is optimised all the same.
  target_compile_options(vantrel_flags INTERFACE
    $<$<BOOL:$<TARGET_PROPERTY:VANTREL_IS_TEST>>:-O0>)
endif()

if(VANTREL_WINDOWS OR VANTREL_DRAWING)
  find_package(wxWidgets 3.2 REQUIRED COMPONENTS core base)
  add_library(vantrel_wx INTERFACE)
  # As system headers: the toolkit's own headers are not ours to warn about.
  target_include_directories(vantrel_wx SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(vantrel_wx INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(vantrel_wx INTERFACE ${wxWidgets_CXX_FLAGS})
  target_link_libraries(vantrel_wx INTERFACE ${wxWidgets_LIBRARIES})
endif()

if(VANTREL_WINDOWS)
  # Apart from the rest of the toolkit: only the 3D view draws with OpenGL.
  find_package(wxWidgets 3.2 REQUIRED COMPONENTS gl core base)
  find_package(OpenGL REQUIRED COMPONENTS OpenGL)
  add_library(vantrel_wxgl INTERFACE)
  target_link_libraries(vantrel_wxgl INTERFACE ${wxWidgets_LIBRARIES} vantrel_wx OpenGL::GLU
    OpenGL::GL)
endif()

# Only its tessellator, which needs neither a window nor a context: the windowless build has it too.
find_path(VANTREL_GLU_INCLUDE_DIR GL/glu.h REQUIRED)
find_library(VANTREL_GLU_LIBRARY GLU REQUIRED)
mark_as_advanced(VANTREL_GLU_INCLUDE_DIR VANTREL_GLU_LIBRARY)
add_library(vantrel_glu INTERFACE)
target_include_directories(vantrel_glu SYSTEM INTERFACE ${VANTREL_GLU_INCLUDE_DIR})
target_link_libraries(vantrel_glu INTERFACE ${VANTREL_GLU_LIBRARY})

# vantrel_room(NAME FOLDER [LINKS...]): the static library vantrel_NAME of all sources directly in
# src/FOLDER.
function(vantrel_room name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp
    ${CMAKE_SOURCE_DIR}/src/${folder}/*.h)
  set(has_code ${sources})
  list(FILTER has_code INCLUDE REGEX "\\.cpp$")
  if(has_code)
    add_library(vantrel_${name} STATIC ${sources})
    target_link_libraries(vantrel_${name} PUBLIC vantrel_flags ${ARGN})
  else()
    add_library(vantrel_${name} INTERFACE)
    target_link_libraries(vantrel_${name} INTERFACE vantrel_flags ${ARGN})
  endif()
endfunction()
