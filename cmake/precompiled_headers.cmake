# Headers of others that most sources of a target read are compiled once.
# A source names what it uses all the same: -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON builds without.
# Not in the core: its headers are few, and the optimiser of GCC 12 takes fright at strings that come from here. Nor where
# each target's compiler is told something else, as with Qt's test library.
set(standardHeaders <algorithm> <functional> <memory> <optional> <string> <utility> <vector>)
set(qtHeaders ${standardHeaders} <QApplication> <QKeyEvent> <QPainter> <QStyle> <QWidget>)
set(testHeaders ${standardHeaders} <doctest/doctest.h>)

# precompile(TARGET HEADERS): by the name of a list above. The first target that asks makes them for those behind it.
function(precompile target headers)
  get_property(maker GLOBAL PROPERTY makerOf_${headers})
  if(maker)
    target_precompile_headers(${target} REUSE_FROM ${maker})
  else()
    target_precompile_headers(${target} PRIVATE ${${headers}})
    set_property(GLOBAL PROPERTY makerOf_${headers} ${target})
  endif()
  # For compiler caches: the text of a source tells of them. The presets tell a cache not to mind their dates.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()
