# nerida_type_library(IDL): makes the type library, the header and the identifiers of an interface definition in the
# current build folder and sets NAME_library, NAME_header and NAME_guids to them.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(NERIDA_WIDL x86_64-w64-mingw32-widl -m64 --win64)
else()
  set(NERIDA_WIDL i686-w64-mingw32-widl -m32 --win32)
endif()

# The interface definitions and the standard type library that ours build on come with Wine's development files.
find_path(NERIDA_IDL_FOLDER oaidl.idl PATHS /usr/include/wine/wine/windows /usr/include/wine/windows
          NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(NERIDA_STDOLE_FOLDER stdole2.tlb
          PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/i386-linux-gnu/wine/i386-windows
          NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)

function(nerida_type_library idl)
  get_filename_component(name ${idl} NAME_WE)
  set(library ${CMAKE_CURRENT_BINARY_DIR}/${name}.tlb)
  set(header ${CMAKE_CURRENT_BINARY_DIR}/${name}_h.h)
  set(guids ${CMAKE_CURRENT_BINARY_DIR}/${name}_i.c)
  set(widl ${NERIDA_WIDL} -I ${NERIDA_IDL_FOLDER} -L ${NERIDA_STDOLE_FOLDER})
  add_custom_command(
    OUTPUT ${library} ${header} ${guids}
    COMMAND ${widl} -t -o ${library} ${idl}
    COMMAND ${widl} -h -o ${header} ${idl}
    COMMAND ${widl} -u -o ${guids} ${idl}
    DEPENDS ${idl} VERBATIM)
  foreach(part library header guids)
    set(${name}_${part} ${${part}} PARENT_SCOPE)
  endforeach()
endfunction()
