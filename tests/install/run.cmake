# Installs the build in WORK/prefix, checks what stands there, and builds a
# consumer against it with find_package and with pkg-config.
# Arguments: BUILD, SOURCE, WORK, VERSION, MODEL, FLAGS (compile and link
# flags the library was built with).
file(REMOVE_RECURSE ${WORK})
set(prefix ${WORK}/prefix)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix} RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "cmake --install failed")
endif()
include(GNUInstallDirs)
set(lib ${prefix}/${CMAKE_INSTALL_LIBDIR})
foreach(file bin/quillmesh ${CMAKE_INSTALL_LIBDIR}/libquillmesh.so ${CMAKE_INSTALL_LIBDIR}/libquillmesh.a
             ${CMAKE_INSTALL_LIBDIR}/libConvertmsg.so include/quillmesh/quillmesh.hpp include/quillmesh/convert.h
             include/quillmesh/terminal.hpp include/quillmesh/version.h
             ${CMAKE_INSTALL_LIBDIR}/cmake/quillmesh/quillmeshConfig.cmake
             ${CMAKE_INSTALL_LIBDIR}/cmake/quillmesh/quillmeshConfigVersion.cmake
             ${CMAKE_INSTALL_LIBDIR}/pkgconfig/quillmesh.pc share/man/man1/quillmesh.1
             share/quillmesh/report.schema.json)
  if(NOT EXISTS ${prefix}/${file})
    message(FATAL_ERROR "not installed: ${file}")
  endif()
endforeach()

# The installed command line finds its library and the catalogue beside it.
file(MAKE_DIRECTORY ${WORK}/models)
file(COPY ${MODEL} DESTINATION ${WORK}/models)
get_filename_component(model ${MODEL} NAME)
set(model ${WORK}/models/${model})
execute_process(COMMAND ${prefix}/bin/quillmesh --version OUTPUT_VARIABLE out RESULT_VARIABLE rc)
if(NOT out STREQUAL "quillmesh ${VERSION}\n")
  message(FATAL_ERROR "installed quillmesh --version printed '${out}'")
endif()
execute_process(COMMAND ${prefix}/bin/quillmesh --no-progress ${model} OUTPUT_QUIET ERROR_VARIABLE err RESULT_VARIABLE rc)
if(NOT rc EQUAL 0 OR err MATCHES "DLL is not loaded")
  message(FATAL_ERROR "installed quillmesh: ${rc}\n${err}")
endif()

# The man page tells every option of the help.
execute_process(COMMAND ${prefix}/bin/quillmesh --help OUTPUT_VARIABLE help)
file(READ ${prefix}/share/man/man1/quillmesh.1 man)
string(REPLACE "\\-" "-" man "${man}")
string(REGEX MATCHALL "--[a-z-]+" options "${help}")
foreach(option ${options})
  string(FIND "${man}" "${option}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the man page does not tell ${option}")
  endif()
endforeach()
if(NOT man MATCHES "quillmesh ${VERSION}")
  message(FATAL_ERROR "the man page does not carry the version")
endif()

function(check_run program want)
  execute_process(COMMAND ${program} ${model} OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0 OR NOT out MATCHES "^${VERSION} ${want} 0 [1-9]")
    message(FATAL_ERROR "${program}: ${rc} '${out}' ${err}")
  endif()
endfunction()

# find_package: the shared library finds the catalogue beside it; a program
# linked with the static library looks beside itself, where there is none.
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE}/tests/install/consumer -B ${WORK}/consumer
                        -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Debug
                        "-DCMAKE_CXX_FLAGS=${FLAGS}" "-DCMAKE_EXE_LINKER_FLAGS=${FLAGS}"
                        "-DCMAKE_BUILD_RPATH=${lib}"
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "configuring the consumer with find_package failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK}/consumer RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "building the consumer with find_package failed")
endif()
check_run(${WORK}/consumer/consumer_shared catalogue)
check_run(${WORK}/consumer/consumer_static fallback)

# pkg-config
set(ENV{PKG_CONFIG_PATH} ${lib}/pkgconfig)
execute_process(COMMAND pkg-config --cflags --libs quillmesh OUTPUT_VARIABLE pc RESULT_VARIABLE rc
                OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "pkg-config does not know quillmesh")
endif()
separate_arguments(pc UNIX_COMMAND "${pc}")
separate_arguments(flags UNIX_COMMAND "${FLAGS}")
execute_process(COMMAND c++ -std=c++20 ${flags} ${SOURCE}/tests/install/consumer/consumer.cpp ${pc}
                        -Wl,-rpath,${lib} -o ${WORK}/consumer_pc
                RESULT_VARIABLE rc ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "building the consumer with pkg-config failed: ${err}")
endif()
check_run(${WORK}/consumer_pc catalogue)
