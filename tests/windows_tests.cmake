# What the tests that run as Windows programs share.

# GoogleTest for Windows, from the sources that the distribution installs.
set(gtest /usr/src/googletest/googletest)
add_library(nerida_gtest STATIC ${gtest}/src/gtest-all.cc ${gtest}/src/gtest_main.cc)
target_include_directories(nerida_gtest SYSTEM PUBLIC ${gtest}/include PRIVATE ${gtest})

# Every program of the Windows tests is started by this script, under Wine where the machine is no Windows.
set(NERIDA_RUN ${CMAKE_CURRENT_SOURCE_DIR}/windows/run)

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(NERIDA_ARCH x64)
else()
  set(NERIDA_ARCH x86)
endif()

# nerida_windows_test(NAME COMMAND...): those of a bitness share one registry, one display and its focus, so they run one
# after the other. A test's full name ends in the architecture: one run takes in several build trees, and mixes up what
# bears the same name.
set(NERIDA_ON_DESKTOP ${CMAKE_CURRENT_SOURCE_DIR}/windows/on_desktop ${NERIDA_ARCH})
function(nerida_windows_test name)
  add_test(NAME ${name}.${NERIDA_ARCH} COMMAND ${NERIDA_ON_DESKTOP} ${ARGN})
  set_tests_properties(${name}.${NERIDA_ARCH} PROPERTIES RESOURCE_LOCK desktop-${NERIDA_ARCH} TIMEOUT 120)
endfunction()
