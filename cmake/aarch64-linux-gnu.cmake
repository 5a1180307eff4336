# The furnace's board: 64-bit ARM Debian. Needs crossbuild-essential-arm64 and the :arm64 -dev
# packages (scripts/package-board installs them). Qt's code generators (moc, uic, rcc, lrelease)
# run from the host's own -tools packages.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH /usr/aarch64-linux-gnu)
set(CMAKE_PREFIX_PATH /usr/lib/aarch64-linux-gnu/cmake)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
# pkg-config must read the board's .pc files, not this machine's.
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L /usr/aarch64-linux-gnu)
set(OVRA_DEB_ARCHITECTURE arm64)
# lrelease is a program of the build machine: its CMake macros come from the host's Qt.
execute_process(COMMAND dpkg-architecture -qDEB_BUILD_MULTIARCH OUTPUT_VARIABLE _ovra_host_multiarch
                OUTPUT_STRIP_TRAILING_WHITESPACE)
set(Qt5LinguistTools_DIR /usr/lib/${_ovra_host_multiarch}/cmake/Qt5LinguistTools CACHE PATH "")
