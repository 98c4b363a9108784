# What an installed program consists of.
install(TARGETS ostrand ostrand-batch RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS ostrand_web LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/ostrand)
install(FILES resources/ostrand.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES resources/icons/ostrand.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES resources/icons/ostrand.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps)
install(DIRECTORY resources/html resources/languages resources/samples resources/skins DESTINATION ${CMAKE_INSTALL_DATADIR}/ostrand)
install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
