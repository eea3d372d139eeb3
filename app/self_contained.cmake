# Copies the plugins of Qt, and the libraries that they and the programs need, into the installed
# folder. The caller sets `programs` and `plugin_folder`.
# The system provides its drivers, its display libraries and what every Debian has.
set(of_the_system
    "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|util|stdc\\+\\+|gcc_s|asan|ubsan)\\.so"
    "^lib(X11|X11-xcb|xcb|Xau|Xdmcp|bsd|md)\\.so" "^lib(GL|EGL|GLX|GLdispatch|gbm|drm)\\.so"
    "^lib(fontconfig|freetype|expat|brotli.*|png16|z|bz2)\\.so" "^libcups"
    "^lib(systemd|gcrypt|gpg-error|cap|lz4|lzma|zstd|pcre2-8|selinux|mount|blkid|uuid|ffi)\\.so")

set(wanted platforms/libqxcb platforms/libqoffscreen platforms/libqminimal platforms/libqwayland-*
    wayland-*/* imageformats/* platforminputcontexts/* printsupport/* styles/*)
list(TRANSFORM wanted REPLACE "(.+)" "${plugin_folder}/\\1.so")
file(GLOB plugins ${wanted})

file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programs} MODULES ${plugins}
     RESOLVED_DEPENDENCIES_VAR libraries PRE_EXCLUDE_REGEXES ${of_the_system})
file(INSTALL ${libraries} DESTINATION "${CMAKE_INSTALL_PREFIX}/lib" FOLLOW_SYMLINK_CHAIN)
foreach(plugin ${plugins})
  get_filename_component(kind "${plugin}" DIRECTORY)
  get_filename_component(kind "${kind}" NAME)
  file(INSTALL "${plugin}" DESTINATION "${CMAKE_INSTALL_PREFIX}/plugins/${kind}")
endforeach()
