# How Qt is built for Windows: as static libraries, with what Quilla and its tests use and no more.
set(CMAKE_BUILD_TYPE MinSizeRel CACHE STRING "")
set(BUILD_SHARED_LIBS OFF CACHE BOOL "")
set(QT_BUILD_EXAMPLES OFF CACHE BOOL "")
set(QT_BUILD_TESTS OFF CACHE BOOL "")

foreach(feature concurrent dbus network sql tabletevent vulkan xml)
  set(FEATURE_${feature} OFF CACHE BOOL "")
endforeach()
set(INPUT_opengl no CACHE STRING "")

# The libraries that come with Qt's source, for there are no others for Windows.
set(FEATURE_pkg_config OFF CACHE BOOL "")
foreach(library doubleconversion freetype harfbuzz jpeg libb2 pcre2 png zlib)
  set(FEATURE_system_${library} OFF CACHE BOOL "")
endforeach()
