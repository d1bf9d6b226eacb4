# What `cmake --install` puts under a prefix: bin/ with the program and the link library that it
# loads from its own folder, share/ with the help pages, the entry of the desktop's menu and the
# icon. The translations and the pictures are in the program.
include(GNUInstallDirs)

install(TARGETS lorimet RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# The simulated trailer; leave the component out where an adapter's library takes its place.
install(TARGETS Lorimet32 LIBRARY DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT simulator
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT simulator)
install(DIRECTORY ${CMAKE_BINARY_DIR}/bin/help
  DESTINATION ${CMAKE_INSTALL_DATADIR}/norvick-lorimet)
install(FILES packaging/norvick-lorimet.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
foreach(size 16 20 24 32 48 64 128 256)
  install(FILES packaging/pictures/lorimet_${size}.png RENAME norvick-lorimet.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES packaging/pictures/lorimet.svg RENAME norvick-lorimet.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

if(LORIMET_TESTS)
  find_program(PYTHON3 python3 REQUIRED)
  add_test(NAME Install.PutsAProgramThatStartsUnderAPrefix
    COMMAND ${PYTHON3} -B ${CMAKE_SOURCE_DIR}/tools/install_test.py ${CMAKE_BINARY_DIR})
  set_tests_properties(Install.PutsAProgramThatStartsUnderAPrefix PROPERTIES TIMEOUT 120)
endif()
