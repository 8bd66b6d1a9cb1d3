# What draws the windows: a library for the tests, and the module that the program loads when one opens.

find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Svg PrintSupport)
house_library(qt DEPENDS forms PACKAGES Qt6::Widgets Qt6::Svg Qt6::PrintSupport)
set_target_properties(qt PROPERTIES AUTOMOC ON)

add_library(orlena-desktop MODULE qt/module/FrontEnd.cpp)
target_link_libraries(orlena-desktop PRIVATE qt house_flags)
# Nobody needs more of it than its entry point, and what is not exported is loaded faster.
target_link_options(orlena-desktop PRIVATE LINKER:--exclude-libs,ALL)
