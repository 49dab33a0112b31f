# What every target of our own is compiled with.

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
