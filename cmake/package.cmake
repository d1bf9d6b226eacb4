# What `cpack` makes of the install: a .deb and a .tar.gz of each component.
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME norvick-lorimet)
set(CPACK_PACKAGE_VENDOR Norvick)
set(CPACK_PACKAGE_CONTACT "Norvick <lorimet@norvick.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # the first line of each package's own
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL program simulator)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/cmake/package_prefix.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME norvick-lorimet)
# In a wider font than Arial's measures a printed report leaves its columns.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "fonts-liberation, qt6-wayland")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS norvick-lorimet-simulator)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
  "diagnostics of trailer brake ECUs
Shows identity and live values of the brake ECU of a road trailer, reads and
clears its faults, edits its parameters, runs the end-of-line tests and signs
the trailer off. In English, French and Spanish.

It loads the link library that LORIMET32 names, or libLorimet32.so beside it.
Reports, parameter files and recordings go to the folder Norvick Lorimet in
the documents of whoever runs it, and messages name the whole path.")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_NAME norvick-lorimet-simulator)
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_RECOMMENDS norvick-lorimet)
set(CPACK_DEBIAN_SIMULATOR_DESCRIPTION
  "simulated trailer for Norvick Lorimet, with its bench
A link library that behaves as a trailer with its adapter, for training and
trying, and the bench, a window at which one pumps, brakes, loads and spins
wheels, pulls the cable and raises faults. The bench is in the desktop's menu;
its command is lorimet_bench_window, and it starts the program on the trailer.

While it is installed, the program runs on it unless LORIMET32 names another
library.")

set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_ARCHIVE_PROGRAM_FILE_NAME
  norvick-lorimet-${PROJECT_VERSION}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_ARCHIVE_SIMULATOR_FILE_NAME
  norvick-lorimet-simulator-${PROJECT_VERSION}-${CMAKE_SYSTEM_PROCESSOR})
# What is packed has been built before.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
include(CPack)
