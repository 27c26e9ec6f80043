# What every target of the project is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
option(NERIDA_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

add_library(nerida_warnings INTERFACE)
target_compile_options(nerida_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Wconversion -Wnon-virtual-dtor
                       -Woverloaded-virtual -Werror)
# GCC 12 takes the unused alternatives of a std::variant for uninitialized variables.
target_compile_options(nerida_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)

if(NERIDA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
  add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
  add_compile_options(-ffunction-sections -fdata-sections)
  # Everything is linked in: a program of ours needs nothing but the system's own libraries.
  add_link_options(-static -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_link_options(-Wl,--high-entropy-va)
  endif()
  set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG -s")

  # Header-only libraries of the build machine, reached through links: the machine's whole include folder must not
  # come into a cross build.
  set(NERIDA_BORROWED ${CMAKE_BINARY_DIR}/borrowed)
  file(MAKE_DIRECTORY ${NERIDA_BORROWED})
  foreach(header nlohmann stb tiny_gltf.h tiny_obj_loader.h)
    if(EXISTS /usr/include/${header} AND NOT EXISTS ${NERIDA_BORROWED}/${header})
      file(CREATE_LINK /usr/include/${header} ${NERIDA_BORROWED}/${header} SYMBOLIC)
    endif()
  endforeach()
endif()

# Headers of third-party libraries (host, tools and tests only; the library itself has none).
add_library(nerida_borrowed INTERFACE)
if(WIN32)
  target_include_directories(nerida_borrowed SYSTEM INTERFACE ${NERIDA_BORROWED})
endif()
