# What every target of our own is compiled with.
#
# torvane_library(<name> <source>...) makes a static library of one layer. Headers are included by
# their path from the project's root ("math/Vecteur.h"), so an include shows which layer it uses.

add_library(torvane_options INTERFACE)
target_compile_options(
  torvane_options
  INTERFACE
    # The float and double steps of the model are behaviour: a fused multiply-add would change bits.
    -ffp-contract=off
    -Wall
    -Wextra
    -Wpedantic
    -Wshadow
    -Wconversion
    -Werror)
target_include_directories(torvane_options INTERFACE ${PROJECT_SOURCE_DIR})

if(TORVANE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
                 -fno-omit-frame-pointer)
  target_compile_options(torvane_options INTERFACE ${sanitizers})
  target_link_options(torvane_options INTERFACE ${sanitizers})
endif()
if(TORVANE_COVERAGE)
  target_compile_options(torvane_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(torvane_options INTERFACE --coverage)
endif()

# The toolkit's and the scene library's headers are not ours: their warnings stay out.
foreach(library Coin::Coin SoQt::SoQt)
  get_target_property(directories ${library} INTERFACE_INCLUDE_DIRECTORIES)
  set_target_properties(${library} PROPERTIES INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${directories}")
endforeach()

function(torvane_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC torvane_options)
endfunction()
