# A project with nothing but its data.
cmake_minimum_required(VERSION 3.25)
project(Data LANGUAGES NONE)
set(CMAKE_INSTALL_DATADIR share)
set(TARVO_DATA_DIR ${CMAKE_BINARY_DIR}/share/tarvo)
add_subdirectory(data)
