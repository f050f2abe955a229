# One folder of src/ is one library. Its headers are seen as "folder/Header.h", and only by a target that names the
# folder among its dependencies: the include path of each library holds a link to its own folder and nothing else,
# so that an include which the architecture does not allow does not compile.

add_library(vantrel_options INTERFACE)
target_compile_options(vantrel_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns of overlapping copies inside its own std::string at -O2 and above, where there are none.
  target_compile_options(vantrel_options INTERFACE -Wno-restrict)
endif()
if(VANTREL_WARNINGS_AS_ERRORS)
  target_compile_options(vantrel_options INTERFACE -Werror)
endif()
if(VANTREL_SANITIZE)
  target_compile_options(vantrel_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                   -fno-omit-frame-pointer)
  target_link_options(vantrel_options INTERFACE -fsanitize=address,undefined)
endif()
if(VANTREL_FUZZ)
  target_compile_options(vantrel_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
  target_link_options(vantrel_options INTERFACE -fsanitize=address,undefined)
endif()

function(vantrel_folder name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  set(faces ${CMAKE_BINARY_DIR}/faces/${name})
  file(MAKE_DIRECTORY ${faces})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${faces}/${name} SYMBOLIC)
  add_library(vantrel_${name} STATIC ${sources})
  set_target_properties(vantrel_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(vantrel_${name} PUBLIC ${faces})
  target_link_libraries(vantrel_${name} PUBLIC vantrel_options)
  foreach(dependency ${ARGN})
    target_link_libraries(vantrel_${name} PUBLIC vantrel_${dependency})
  endforeach()
endfunction()
