# Install rules: the library, its headers, the CMake package and the pkg-config file.
