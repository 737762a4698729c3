# The headers that a layer's sources include most, read by the compiler once for the whole layer instead of once
# for each source. Sources and headers include all they use all the same: scripts/tidy builds without these.
option(TAVIK_PCH "Precompile the headers that each layer uses most (g++ only)" ON)
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(TAVIK_PCH OFF)
endif()

# What GCC 12 wrongly sees in the insides of std::string it says of precompiled headers, which it does not know for
# the system's. The presets without them keep these warnings.
if(TAVIK_PCH)
  target_compile_options(build_options INTERFACE -Wno-array-bounds -Wno-stringop-overflow)
endif()

# A compiler cache takes objects made with a precompiled header only when it is told to.
if(TAVIK_PCH AND CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache$")
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CMAKE_CXX_COMPILER_LAUNCHER})
  add_compile_options(-fpch-preprocess)
endif()

set(standard_headers <algorithm> <array> <charconv> <cmath> <cstdint> <filesystem> <fstream> <functional> <limits>
  <map> <memory> <optional> <span> <sstream> <string> <string_view> <unordered_map> <utility> <vector>)

# add_layer_headers(layer [LIBRARIES libraries...] [OPTIONS options...] HEADERS headers...): what the sources of
# `layer` include most, compiled as its targets are.
function(add_layer_headers layer)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES;OPTIONS;HEADERS")
  if(NOT TAVIK_PCH)
    return()
  endif()
  set(source ${CMAKE_BINARY_DIR}/${layer}_headers.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(${layer}_headers OBJECT ${source})
  set_target_properties(${layer}_headers PROPERTIES AUTOMOC OFF)
  target_link_libraries(${layer}_headers PRIVATE build_options ${arg_LIBRARIES})
  target_compile_options(${layer}_headers PRIVATE ${arg_OPTIONS})
  target_precompile_headers(${layer}_headers PRIVATE ${arg_HEADERS})
endfunction()

# use_layer_headers(layer targets...)
function(use_layer_headers layer)
  foreach(target IN LISTS ARGN)
    if(TAVIK_PCH)
      target_precompile_headers(${target} REUSE_FROM ${layer}_headers)
    endif()
  endforeach()
endfunction()

add_layer_headers(core HEADERS ${standard_headers})
add_layer_headers(form LIBRARIES Qt6::Widgets HEADERS ${standard_headers}
  <QApplication> <QComboBox> <QDialog> <QFile> <QGroupBox> <QLabel> <QLineEdit> <QMainWindow> <QMdiArea>
  <QMdiSubWindow> <QMenuBar> <QMessageBox> <QPainter> <QPushButton> <QRadioButton> <QSettings> <QTimer>)
set(command_options $<$<CONFIG:Release>:-O1>)
add_layer_headers(command LIBRARIES Qt6::Core CLI11::CLI11 nlohmann_json::nlohmann_json OPTIONS ${command_options}
  HEADERS ${standard_headers} <CLI/CLI.hpp> <nlohmann/json.hpp>)
