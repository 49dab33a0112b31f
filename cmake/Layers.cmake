# The layers, kept apart by the compiler.
#
# Headers are included by their path from the project's root ("math/Vecteur.h"), so an include shows
# which layer it uses. But the root itself is no include directory: every folder has one of its own,
# <build>/include/<folder>, with a link to the folder in it, and a target sees those of the targets
# that it links. An include of a layer that is not below does not compile.

# torvane_include_folder(<target> <PUBLIC|PRIVATE> <folder>)
# Lets a target, and for PUBLIC those that link it, include "<folder>/...".
function(torvane_include_folder target visibility folder)
  set(directory ${PROJECT_BINARY_DIR}/include/${folder})
  file(MAKE_DIRECTORY ${directory})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${directory}/${folder} SYMBOLIC)
  target_include_directories(${target} ${visibility} ${directory})
endfunction()

# The folder at the project's root that the current CMakeLists.txt stands in.
function(torvane_current_folder result)
  file(RELATIVE_PATH path ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  string(REGEX REPLACE "/.*" "" folder ${path})
  set(${result} ${folder} PARENT_SCOPE)
endfunction()

# torvane_library(<name> <source>...)
# A static library of the layer whose folder this is.
function(torvane_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC torvane_options)
  torvane_current_folder(folder)
  torvane_include_folder(${name} PUBLIC ${folder})
endfunction()

# torvane_executable(<name> <source>...)
# A program of the folder.
function(torvane_executable name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE torvane_options)
  torvane_current_folder(folder)
  torvane_include_folder(${name} PRIVATE ${folder})
endfunction()
