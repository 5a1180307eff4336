# The board package: everything lands where the panel expects it under the furnace user's home.
# Destinations are relative to the package root ("/"), so `cmake --install` on a development
# machine goes under CMAKE_INSTALL_PREFIX and never into a real /home/pi.
set(OVRA_PI_HOME home/pi)
install(TARGETS ovra-panel RUNTIME DESTINATION ${OVRA_PI_HOME}/Downloads/build)
install(DIRECTORY ${OVRA_TRANSLATIONS_DIR}/ DESTINATION ${OVRA_PI_HOME}/Downloads/translations
        FILES_MATCHING PATTERN "*.qm" PATTERN CMakeFiles EXCLUDE)
install(PROGRAMS ${CMAKE_SOURCE_DIR}/resources/scripts/autostartUserinterface.sh DESTINATION ${OVRA_PI_HOME})
install(PROGRAMS ${CMAKE_SOURCE_DIR}/resources/scripts/makeExecutable.py DESTINATION ${OVRA_PI_HOME}/Downloads)
install(PROGRAMS ${CMAKE_SOURCE_DIR}/resources/scripts/dispOn.py DESTINATION ${OVRA_PI_HOME}/DispOn)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/ovra-panel.service DESTINATION lib/systemd/system)
# The lab view's service: on the board for one furnace, disabled until the lab enables it.
install(TARGETS ovra-lab RUNTIME DESTINATION usr/bin)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/ovra-lab.service DESTINATION lib/systemd/system)
install(FILES ${CMAKE_SOURCE_DIR}/docs/labview.md DESTINATION usr/share/doc/ovra-panel)
# The lab link: its contract, and the bridge for a furnace that keeps a broker of its own.
install(FILES ${CMAKE_SOURCE_DIR}/docs/lablink.md ${CMAKE_SOURCE_DIR}/packaging/lablink-bridge.conf
        DESTINATION usr/share/doc/ovra-panel)

if(NOT OVRA_DEB_ARCHITECTURE)
  execute_process(COMMAND dpkg --print-architecture OUTPUT_VARIABLE OVRA_DEB_ARCHITECTURE
                  OUTPUT_STRIP_TRAILING_WHITESPACE)
endif()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ovra-panel)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Furnace service <service@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Touch-screen operating panel of the sintering furnace")
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${OVRA_DEB_ARCHITECTURE})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
# Named, not computed: dpkg-shlibdeps cannot see the board's libraries from a cross build.
# libqt5gui5 carries the eglfs and linuxfb platform plug-ins (and the lab view's offscreen one);
# the firing records need the SQLite driver, a plug-in no linker sees; the lab view's PDF
# report draws in DejaVu Sans, a font no linker sees either.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt5core5a (>= 5.15), libqt5gui5 (>= 5.15), libqt5widgets5 (>= 5.15), libqt5network5 (>= 5.15), libqt5serialport5 (>= 5.15), libqt5charts5 (>= 5.15), libqt5sql5 (>= 5.15), libqt5sql5-sqlite (>= 5.15), libqrencode4, libstdc++6, python3, libmosquitto1, libcpp-httplib0.11, fonts-dejavu-core, passwd")
# A furnace may keep a broker of its own and bridge it to the lab's (docs/board.md).
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "mosquitto")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/postinst ${CMAKE_SOURCE_DIR}/packaging/prerm)
include(CPack)
