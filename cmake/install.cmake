# What `cmake --install` puts under a prefix: bin/ with the program and the link library that it
# loads from its own folder, share/ with the help pages, the entry of the desktop's menu, the icon
# and what a software centre tells of it. The translations, the toolkit's own among them, and the
# pictures are in the program. Two components: the program, and the simulated trailer with its bench,
# which is left out where an adapter's library takes its place.
include(GNUInstallDirs)

set(folder ${CMAKE_INSTALL_DATADIR}/norvick-lorimet)

install(TARGETS lorimet RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
install(DIRECTORY ${CMAKE_BINARY_DIR}/bin/help DESTINATION ${folder} COMPONENT program)
install(FILES packaging/norvick-lorimet.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT program)
install(FILES packaging/com.norvick.Lorimet.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT program)
foreach(size 16 20 24 32 48 64 128 256)
  install(FILES packaging/pictures/lorimet_${size}.png RENAME norvick-lorimet.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps COMPONENT program)
endforeach()
install(FILES packaging/pictures/lorimet.svg RENAME norvick-lorimet.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT program)
install(FILES README.md CHANGELOG.md
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/norvick-lorimet COMPONENT program)

install(TARGETS Lorimet32 LIBRARY DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT simulator
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT simulator)
install(TARGETS lorimet_bench_window RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  COMPONENT simulator)
install(FILES packaging/bench/norvick-lorimet-bench.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT simulator)
install(FILES packaging/bench/com.norvick.LorimetBench.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT simulator)
foreach(size 48 64 128)
  install(FILES packaging/bench/norvick-lorimet-bench_${size}.png RENAME norvick-lorimet-bench.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps COMPONENT simulator)
endforeach()
install(FILES packaging/bench/norvick-lorimet-bench.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT simulator)
install(DIRECTORY simulator/scenarios DESTINATION ${folder} COMPONENT simulator)
install(FILES docs/simulator.md
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/norvick-lorimet-simulator COMPONENT simulator)

if(LORIMET_TESTS)
  find_program(PYTHON3 python3 REQUIRED)
  add_test(NAME Install.PutsAProgramThatStartsUnderAPrefix
    COMMAND ${PYTHON3} -B ${CMAKE_SOURCE_DIR}/tools/install_test.py ${CMAKE_BINARY_DIR})
  set_tests_properties(Install.PutsAProgramThatStartsUnderAPrefix PROPERTIES TIMEOUT 120)
endif()
