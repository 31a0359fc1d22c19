# Puts beside the portable program what it loads: the libraries, Qt's plugins, and the licences of their packages.
# Left to the machine is what belongs to its C library, its display and its fonts: another version than the desktop's
# own would not get on with it.
set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(machines_own
    "^(ld-linux|libc|libm|libdl|libpthread|librt|libgcc_s|libstdc[+][+])[.-]"
    "^lib(X11|X11-xcb|xcb|Xau|Xdmcp|GL|GLX|GLdispatch|EGL|OpenGL|drm|gbm)[.]"
    "^lib(fontconfig|freetype|expat|z|dbus-1|systemd|cups)[.]")

foreach(plugin platforms/libqxcb imageformats/libqsvg iconengines/libqsvgicon printsupport/libcupsprintersupport
               platforminputcontexts/libcomposeplatforminputcontextplugin)
    get_filename_component(kind ${plugin} DIRECTORY)
    file(INSTALL "${qt_plugins}/${plugin}.so" DESTINATION "${folder}/lib/plugins/${kind}")
    list(APPEND modules "${qt_plugins}/${plugin}.so")
endforeach()
file(GET_RUNTIME_DEPENDENCIES
    EXECUTABLES "${folder}/Tolmark" "${folder}/tolmark-datafile"
    MODULES ${modules}
    RESOLVED_DEPENDENCIES_VAR libraries
    PRE_EXCLUDE_REGEXES ${machines_own})
list(SORT libraries)
file(INSTALL ${libraries} DESTINATION "${folder}/lib" FOLLOW_SYMLINK_CHAIN)

# An RPATH, not a RUNPATH: it also serves the libraries and plugins that the program loads.
foreach(program Tolmark tolmark-datafile)
    execute_process(COMMAND patchelf --force-rpath --set-rpath "\$ORIGIN/lib" "${folder}/${program}"
                    COMMAND_ERROR_IS_FATAL ANY)
endforeach()

foreach(library ${libraries} ${modules})
    file(REAL_PATH "${library}" real)
    execute_process(COMMAND dpkg-query --search "${real}" OUTPUT_VARIABLE owner COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE ":.*" "" package "${owner}")
    file(REAL_PATH "/usr/share/doc/${package}/copyright" licence)
    file(INSTALL "${licence}" DESTINATION "${folder}/lib/licences/${package}")
endforeach()
